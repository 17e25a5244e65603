#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zolt::compile {

// A label's variable fields as our `.ejf` file lists them (docs/label-files.md):
// one field a line, in print order; blank lines and lines starting with '#' are
// not fields. nullopt when the file cannot be read.
std::optional<std::vector<std::string>> ReadLabelFields(const std::string& path);

// The most variable fields one label has: IDs 80 to 99, or 100 to 119.
inline constexpr int kMaxLabelFields = 20;

} // namespace zolt::compile
