#pragma once

#include "interchange/drawing.h"

#include <string>

namespace zolt {
class CNetList;
class ProgramState;
} // namespace zolt

namespace zolt::interchange {

// Writes a drawing into a netlist of the open program row by row, each row
// through its table's own checks. Colours the Color table lacks are added as
// answering yes to the add-colour question adds them. Empty when all went in,
// else the refused row's message with its line; what went in before stays
// for the caller to take back.
std::string FillNetlist(ProgramState& state, CNetList& netlist, const Drawing& drawing);

} // namespace zolt::interchange
