#pragma once

#include "interchange/drawing.h"

#include <string>
#include <vector>

namespace zolt {
class CNetList;
}

namespace zolt::interchange {

// A netlist as a drawing: its connectors, its wires with their colours (named
// by MAIN's Color table, `main`) and the cavities they land on, its splices and
// its components.
Drawing DrawingOfNetlist(const CNetList& netlist, const CNetList& main);

// The drawing as WireViz YAML: the connectors with their pins, one bundle
// holding every wire (labelled with its name, coloured by its IEC 60757 code),
// each splice a simple connector, one connection set a wire. What WireViz
// cannot show goes to `notes` (components, colours without a code).
std::string WireVizText(const Drawing& drawing, std::vector<std::string>& notes);

// The drawing as a from/to list with its heading: a row a wire between two
// cavities, and for a splice a row from its first cavity to each other one
// (named by the wire that reaches it). Components go to `notes`.
std::string FromToText(const Drawing& drawing, std::vector<std::string>& notes);

} // namespace zolt::interchange
