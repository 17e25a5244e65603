#pragma once

#include <iosfwd>

namespace zolt::cli {

// Lists the command dictionary as a program of the kind loads it: name, type,
// low, high and description, one command a line under a heading.
void PrintCommandDictionary(std::ostream& out, bool grv);

// The help page of the command dictionary: every command a .grv program knows,
// each marked with the kinds of program that know it.
void PrintCommandDictionaryPage(std::ostream& out);

} // namespace zolt::cli
