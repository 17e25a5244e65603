#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zolt::test {

// A sequence as the engineer reads it, "TEST MAIN; BER 4; END": each line a command
// and whatever follows its first blank; empty lines are skipped.
inline std::vector<std::pair<std::string, std::string>> SequenceLines(std::string_view text) {
    std::vector<std::pair<std::string, std::string>> lines;
    while (!text.empty()) {
        const auto end = text.find(';');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        while (line.starts_with(' '))
            line.remove_prefix(1);
        if (line.empty())
            continue;
        const auto blank = line.find(' ');
        lines.emplace_back(line.substr(0, blank),
                           blank == std::string_view::npos ? "" : line.substr(blank + 1));
    }
    return lines;
}

} // namespace zolt::test
