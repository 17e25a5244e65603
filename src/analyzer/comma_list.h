#pragma once

#include <string_view>
#include <vector>

namespace zolt::analyzer {

// The parts of "a,b,c" as typed, an empty text being one empty part.
inline std::vector<std::string_view> CommaList(std::string_view text) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0;;) {
        const auto comma = text.find(',', start);
        parts.push_back(text.substr(start, comma - start));
        if (comma == std::string_view::npos)
            return parts;
        start = comma + 1;
    }
}

} // namespace zolt::analyzer
