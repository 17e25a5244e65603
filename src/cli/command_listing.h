#pragma once

#include <iosfwd>

namespace zolt::cli {

// Lists the command dictionary as a program of the kind loads it: name, type,
// low, high and description, one command a line under a heading.
void PrintCommandDictionary(std::ostream& out, bool grv);

} // namespace zolt::cli
