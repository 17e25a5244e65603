#include "compare/drawing_files.h"

#include "core/value.h"
#include "file/csv.h"

#include <filesystem>
#include <fstream>

namespace zolt::compare {
namespace {

FromToList ReadFromToCsv(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return {{}, "cannot read '" + path + "'"};
    std::vector<std::vector<std::string>> rows;
    if (!file::ReadCsv(in, rows))
        return {{}, path + ": a quote is left open"};
    FromToList list = ReadFromToRows(rows);
    if (!list.ok())
        list.error = path + ": " + list.error;
    return list;
}

std::string Patterns(const std::vector<std::string>& extensions) {
    std::string text;
    for (const auto& extension : extensions)
        text += (text.empty() ? "*." : ";*.") + extension;
    return text;
}

std::vector<std::string> AllExtensions() {
    std::vector<std::string> all;
    for (const auto& format : DrawingFormats())
        all.insert(all.end(), format.extensions.begin(), format.extensions.end());
    return all;
}

} // namespace

const std::vector<DrawingFormat>& DrawingFormats() {
    static const std::vector<DrawingFormat> formats = {
        {"From/To List", {"csv"}, ReadFromToCsv},
    };
    return formats;
}

std::string DrawingFilter() {
    std::string filter;
    for (const auto& format : DrawingFormats()) {
        const std::string patterns = Patterns(format.extensions);
        filter += (filter.empty() ? "" : "|") + format.name + " (" + patterns + ")|" + patterns;
    }
    if (DrawingFormats().size() > 1) {
        const std::string all = Patterns(AllExtensions());
        filter = "All Drawings (" + all + ")|" + all + "|" + filter;
    }
    return filter;
}

FromToList ReadDrawingFile(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    if (!extension.empty())
        extension = vb::LCase(extension.substr(1));
    for (const auto& format : DrawingFormats())
        for (const auto& known : format.extensions)
            if (known == extension)
                return format.read(path);
    return {{}, path + ": no drawing of a kind ZOLT reads (" + Patterns(AllExtensions()) + ")"};
}

} // namespace zolt::compare
