#pragma once

#include "core/table_kinds.h"

#include <string>
#include <vector>

namespace zolt {

// The captions of a table's columns in column order, hidden columns included,
// as its window and reports head them.
std::vector<std::string> ColumnCaptions(TableId tableNumber);

} // namespace zolt
