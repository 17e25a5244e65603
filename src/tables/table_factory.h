#pragma once

#include <memory>

#include "core/table.h"

namespace zolt {

// The table object of each table number, with its record type and columns.
std::unique_ptr<Table> MakeTable(int tableNumber);

} // namespace zolt
