#pragma once

#include <string>

namespace zolt {
class SettingsStore;
}

namespace zolt::settings {

// How one kind of table text looks. An empty family or colour is the
// desktop's own; a size of 0 likewise.
struct TextStyle {
    std::string family;
    int pointSize = 0;
    bool bold = false;
    bool italic = false;
    std::string foreground; // "#rrggbb"
    std::string background;

    bool operator==(const TextStyle&) const = default;
};

// The text of the netlist tables, and of the sequence and the messages.
struct TableAppearance {
    TextStyle netlistTables;
    TextStyle sequenceText;

    bool operator==(const TableAppearance&) const = default;
};

// Kept in the settings section "Table Appearance"; missing or broken values
// fall back to the desktop's own.
TableAppearance LoadTableAppearance(SettingsStore& settings);
void SaveTableAppearance(SettingsStore& settings, const TableAppearance& appearance);
// "#rrggbb" in any case, or empty.
bool IsColorText(const std::string& text);

} // namespace zolt::settings
