#pragma once

#include "core/ports/ui.h"

namespace zolt {
class ProgramState;
}

namespace zolt::interchange {

// File > Import Drawing: the drawing's file, then the name of the netlist it
// becomes (the file's name unless changed), then the import. Yes when
// imported; Cancel when the user stopped; No after the box that says why.
Answer ImportDrawingCommand(ProgramState& state);

// File > Export Drawing: the netlist (the active one unless another is
// picked), then the file, whose kind (.yml WireViz, .csv from/to list) its
// name tells. Yes when written, with what the drawing cannot hold in one box
// after; Cancel when the user stopped; No after the box that says why.
Answer ExportDrawingCommand(ProgramState& state);

} // namespace zolt::interchange
