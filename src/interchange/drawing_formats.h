#pragma once

#include "interchange/drawing.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::interchange {

// What the readers take from the settings.
struct DrawingOptions {
    // A KiCad part whose reference starts with one of these is a connector.
    std::vector<std::string> connectorPrefixes = {"J", "P", "X"};
};
// Where the settings keep the connector prefixes, as a list such as "J,P,X".
inline constexpr const char* kDrawingsSection = "Drawings";
inline constexpr const char* kConnectorPrefixesKey = "ConnectorPrefixes";
inline constexpr const char* kDefaultConnectorPrefixes = "J,P,X";

// The prefixes of a list, upper case, blanks and empty entries left out.
std::vector<std::string> ConnectorPrefixesOf(const std::string& list);
// Why a typed list cannot be the connector prefixes; empty when it can.
std::string ConnectorPrefixesRefusal(const std::string& list);
// The options as the settings keep them; the default prefixes where the
// stored list is none.
DrawingOptions DrawingOptionsOf(SettingsStore& settings);

// A kind of drawing file other tools write.
struct DrawingFormat {
    std::string name;                    // "WireViz"
    std::string nameFilter;              // "WireViz Files (*.yml;*.yaml)|*.yml;*.yaml"
    std::vector<std::string> extensions; // upper case, without the dot
    DrawingRead (*read)(std::string_view text, const DrawingOptions& options);
    // Its drawings name every part of the harness (a verify checks the components).
    bool namesParts = false;
};

// Every drawing kind, in the order the dialogs list them.
const std::vector<DrawingFormat>& DrawingFormats();
// The kind of a file by its extension; nullptr when none takes it.
const DrawingFormat* FindDrawingFormat(const std::string& path);
// "WireViz Files (*.yml;*.yaml)|…|From/To Lists (*.csv)|*.csv", and the whole as one entry first.
std::string DrawingFilter();

// The largest drawing file read.
inline constexpr std::size_t kMaxDrawingFileSize = 16u << 20;

// Reads a drawing file by its kind; the error names the file's trouble.
DrawingRead ReadDrawingFile(const std::string& path, const DrawingOptions& options);

} // namespace zolt::interchange
