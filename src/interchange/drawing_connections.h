#pragma once

#include "compare/from_to_list.h"
#include "interchange/drawing.h"
#include "interchange/drawing_formats.h"

namespace zolt::interchange {

// A drawing as the check of a netlist against it reads it: the cavities of
// each net (a wire's, or those a splice joins) as connections from the net's
// first cavity, with the colour of the wire there; each component between a
// cavity of each of its sides. Names as the tables compare them (upper case).
compare::FromToList FromToListOf(const Drawing& drawing, bool namesParts);

// The drawing at `path`, of any kind the drawing formats read, as the check
// of a netlist takes it; the error says why it cannot be used.
compare::FromToList ReadDrawingConnections(const std::string& path, const DrawingOptions& options);

} // namespace zolt::interchange
