#pragma once

#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::cli {

// The open project as one JSON object: parameters, the netlist table and every
// netlist with every table's rows (each cell's text, null for an empty cell).
std::string DumpProject(zolt::ProgramState& state);

} // namespace zolt::cli
