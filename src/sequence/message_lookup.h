#pragma once

#include <string>

namespace zolt {

class Table;

// The text of the first message of the Message table with this number (compared
// by value); empty when no message has it or the number is no number.
std::string GetMessage(const Table& messages, const std::string& number);

} // namespace zolt
