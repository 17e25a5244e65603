#pragma once

#include "interchange/drawing_formats.h"

namespace zolt::interchange {

// A WireViz harness (YAML). Connectors become connectors with their pin
// counts, pins named by their ids (labels are read to find them); each wire of
// a cable or bundle a wire with its colours, named by its label or as cable
// and number ("W1-3", the shield "W1-S"); a connector's loops wires between its
// own pins. A simple (ferrule) connector, or one that autogenerates, is a
// splice of the wires it joins (one wire alone just ends there).
DrawingRead ReadWireViz(std::string_view text, const DrawingOptions& options);

} // namespace zolt::interchange
