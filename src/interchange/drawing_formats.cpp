#include "interchange/drawing_formats.h"

#include "core/ports/settings_store.h"
#include "core/value.h"
#include "file/file_bytes.h"
#include "file/path_names.h"
#include "interchange/from_to_reader.h"
#include "interchange/kicad_reader.h"
#include "interchange/wireviz_reader.h"

#include <algorithm>
#include <filesystem>

namespace zolt::interchange {

std::vector<std::string> ConnectorPrefixesOf(const std::string& list) {
    std::vector<std::string> prefixes;
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t comma = std::min(list.find(',', start), list.size());
        const std::string prefix = vb::UCase(vb::Trim(list.substr(start, comma - start)));
        if (!prefix.empty())
            prefixes.push_back(prefix);
        start = comma + 1;
    }
    return prefixes;
}

std::string ConnectorPrefixesRefusal(const std::string& list) {
    const std::vector<std::string> prefixes = ConnectorPrefixesOf(list);
    if (prefixes.empty())
        return "Enter at least one connector prefix: letters, separated by commas (J,P,X).";
    for (auto p = prefixes.begin(); p != prefixes.end(); ++p) {
        const bool letters =
            std::all_of(p->begin(), p->end(), [](char c) { return (c >= 'A' && c <= 'Z'); });
        if (!letters)
            return "\"" + *p + "\" is no connector prefix: a prefix is letters only (J, CN).";
        // The reader takes these for diodes, resistors and capacitors.
        if (*p == "D" || *p == "R" || *p == "C")
            return "\"" + *p +
                   "\" cannot be a connector prefix: D, R and C are diodes, "
                   "resistors and capacitors.";
        if (std::find(prefixes.begin(), p, *p) != p)
            return "\"" + *p + "\" is listed twice among the connector prefixes.";
    }
    return {};
}

DrawingOptions DrawingOptionsOf(SettingsStore& settings) {
    const std::string list =
        settings.ReadOr(kDrawingsSection, kConnectorPrefixesKey, kDefaultConnectorPrefixes);
    DrawingOptions options;
    if (ConnectorPrefixesRefusal(list).empty())
        options.connectorPrefixes = ConnectorPrefixesOf(list);
    return options;
}

const std::vector<DrawingFormat>& DrawingFormats() {
    static const std::vector<DrawingFormat> formats{
        {"WireViz", "WireViz Files (*.yml;*.yaml)|*.yml;*.yaml", {"YML", "YAML"}, ReadWireViz},
        {"KiCad", "KiCad Netlists (*.net)|*.net", {"NET"}, ReadKicadNetlist, true},
        {"From/To", "From/To Lists (*.csv)|*.csv", {"CSV"}, ReadFromToList},
    };
    return formats;
}

const DrawingFormat* FindDrawingFormat(const std::string& path) {
    const std::string extension = file::UpperExtensionOf(path);
    for (const DrawingFormat& format : DrawingFormats())
        if (std::find(format.extensions.begin(), format.extensions.end(), extension) !=
            format.extensions.end())
            return &format;
    return nullptr;
}

std::string DrawingFilter() {
    std::string all;
    std::string each;
    for (const DrawingFormat& format : DrawingFormats()) {
        const std::string patterns = format.nameFilter.substr(format.nameFilter.find('|') + 1);
        all += (all.empty() ? "" : ";") + patterns;
        each += "|" + format.nameFilter;
    }
    return "Drawings (" + all + ")|" + all + each;
}

DrawingRead ReadDrawingFile(const std::string& path, const DrawingOptions& options) {
    const DrawingFormat* format = FindDrawingFormat(path);
    if (!format)
        return {{}, "no drawing of a kind ZOLT reads (.yml, .yaml, .net, .csv)"};
    std::error_code ec;
    const auto size = std::filesystem::file_size(path, ec);
    if (!ec && size > kMaxDrawingFileSize)
        return {{},
                "the file is larger than " + std::to_string(kMaxDrawingFileSize >> 20) +
                    " MB, more than any drawing"};
    const auto bytes = file::ReadFileBytes(path, kMaxDrawingFileSize);
    if (!bytes)
        return {{}, "the file cannot be read"};
    return format->read(*bytes, options);
}

} // namespace zolt::interchange
