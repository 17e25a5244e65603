#pragma once

#include <string>

namespace zolt {
class ProgramState;
}
namespace zolt::file {
struct ReadFacts;
}

namespace zolt::cli {

// The open project as one JSON object: the program file's header fields, the
// compiled image's size, parameters, the netlist table, every netlist with every
// table's rows (each cell's text, null for an empty cell) and the lists of the
// assembly feature family. `facts` are those of the read that opened the
// project; without them the header is the one a save would write.
std::string DumpProject(zolt::ProgramState& state, const file::ReadFacts* facts = nullptr);

} // namespace zolt::cli
