#pragma once

#include "interchange/drawing_formats.h"

#include <optional>

namespace zolt::interchange {

// A KiCad netlist (the s-expression export). Parts whose reference is a
// connector prefix and a number are connectors, their pin counts from their
// library part; D, R and C parts are diodes, resistors and capacitors between
// the nets of their two pins (a diode's anode on side 1). A net of two ends is
// one wire, a net of three or more a splice with a wire to each end; a net
// with a name of its own lends it to its wires, the others are N and their code.
DrawingRead ReadKicadNetlist(std::string_view text, const DrawingOptions& options);

// A resistance as KiCad values write it ("470", "4k7", "1.5k", "2M2", "10R")
// in whole ohms; nullopt when it is none.
std::optional<long long> OhmsOf(std::string_view value);

} // namespace zolt::interchange
