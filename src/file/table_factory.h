#pragma once

#include "core/table.h"

#include <memory>

namespace zolt {

class ProgramState;

// The table object of each table number; nullptr for a number no kind has. It
// lives here, above every folder that defines a table kind, because the program
// file is where whole projects are put together.
std::unique_ptr<Table> MakeTable(ProgramState& state, TableId tableIndex);

} // namespace zolt
