#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zolt::cli {

// One option that takes a value: "--netlist" and where its value goes.
using ValueOption = std::pair<std::string_view, std::string*>;

// "FILE [--option VALUE]…" in any order: false for a second file, an unknown
// option or one without its value, or no file at all.
bool ParseFileAndOptions(const std::vector<std::string>& args, std::string& file,
                         const std::vector<ValueOption>& options);

} // namespace zolt::cli
