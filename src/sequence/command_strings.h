#pragma once

#include <string>

namespace zolt {

// The identifiers of the program's string table that hold the analyzer's command
// language: one command a line, "NAME,FLAG,TYPE,LOW,HIGH,DESCRIPTION", from
// kFirstCommandString on, closed by an entry that reads kCommandStringsEnd.
inline constexpr int kFirstCommandString = 101;
inline constexpr const char* kCommandStringsEnd = "ZEND";

// The string of an identifier; empty for an identifier the table does not hold.
std::string LoadCommandString(int id);

} // namespace zolt
