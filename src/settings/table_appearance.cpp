#include "settings/table_appearance.h"

#include "core/ports/settings_store.h"
#include "core/value.h"

#include <cctype>

namespace zolt::settings {
namespace {

constexpr const char* kSection = "Table Appearance";

struct StyleKeys {
    const char* prefix;
    TextStyle TableAppearance::*style;
};

constexpr StyleKeys kStyles[] = {
    {"Netlist Table Text", &TableAppearance::netlistTables},
    {"Sequence and Message Text", &TableAppearance::sequenceText},
};

std::string key(const char* prefix, const char* what) {
    return std::string(prefix) + " " + what;
}

} // namespace

bool IsColorText(const std::string& text) {
    if (text.empty())
        return true;
    if (text.size() != 7 || text[0] != '#')
        return false;
    for (std::size_t i = 1; i < text.size(); ++i)
        if (!std::isxdigit(static_cast<unsigned char>(text[i])))
            return false;
    return true;
}

TableAppearance LoadTableAppearance(SettingsStore& settings) {
    TableAppearance appearance;
    for (const StyleKeys& s : kStyles) {
        TextStyle& style = appearance.*s.style;
        style.family = settings.ReadOr(kSection, key(s.prefix, "Font"), "");
        const double size = vb::Val(settings.ReadOr(kSection, key(s.prefix, "Size"), "0"));
        style.pointSize = size >= 1 && size <= 72 ? static_cast<int>(size) : 0;
        style.bold = settings.ReadOr(kSection, key(s.prefix, "Bold"), "False") == "True";
        style.italic = settings.ReadOr(kSection, key(s.prefix, "Italic"), "False") == "True";
        for (auto [what, colour] :
             {std::pair{"Color", &style.foreground}, std::pair{"Back Color", &style.background}}) {
            const std::string text = settings.ReadOr(kSection, key(s.prefix, what), "");
            *colour = IsColorText(text) ? text : std::string();
        }
    }
    return appearance;
}

void SaveTableAppearance(SettingsStore& settings, const TableAppearance& appearance) {
    for (const StyleKeys& s : kStyles) {
        const TextStyle& style = appearance.*s.style;
        settings.Write(kSection, key(s.prefix, "Font"), style.family);
        settings.Write(kSection, key(s.prefix, "Size"), std::to_string(style.pointSize));
        settings.Write(kSection, key(s.prefix, "Bold"), style.bold ? "True" : "False");
        settings.Write(kSection, key(s.prefix, "Italic"), style.italic ? "True" : "False");
        settings.Write(kSection, key(s.prefix, "Color"), style.foreground);
        settings.Write(kSection, key(s.prefix, "Back Color"), style.background);
    }
}

} // namespace zolt::settings
