#include "compile/label_file.h"

#include "core/value.h"

#include <fstream>

namespace zolt::compile {

std::optional<std::vector<std::string>> ReadLabelFields(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::vector<std::string> fields;
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::string text = vb::Trim(line);
        if (!text.empty() && text.front() != '#')
            fields.push_back(text);
    }
    if (in.bad())
        return std::nullopt;
    return fields;
}

} // namespace zolt::compile
