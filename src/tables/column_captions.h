#pragma once

#include <string>
#include <vector>

namespace zolt {

// The captions of a table's columns in column order, hidden columns included,
// as its window and reports head them.
std::vector<std::string> ColumnCaptions(int tableNumber);

} // namespace zolt
