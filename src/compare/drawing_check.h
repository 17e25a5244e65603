#pragma once

#include "compare/difference.h"
#include "compare/from_to_list.h"

namespace zolt {
class CNetList;
}

namespace zolt::compare {

// A netlist against the wire list of its drawing: each connection the drawing
// has and the netlist lacks ("missing"), each one the netlist has beyond it
// ("extra"), told once for the nets they join, and each wire whose colour
// differs. Colours are read through `colours` (MAIN's Color table).
Differences CheckAgainstDrawing(const CNetList& netlist, const CNetList& colours,
                                const FromToList& drawing);

} // namespace zolt::compare
