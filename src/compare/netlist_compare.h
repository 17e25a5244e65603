#pragma once

#include "compare/connections.h"
#include "compare/difference.h"

namespace zolt {
class CNetList;
}

namespace zolt::compare {

// Each cavity whose net changed, told once for the nets it touches.
Differences CompareConnections(const std::string& where, const Connections& before,
                               const Connections& after);

// The tables of one netlist: connections, connectors with their pin counts,
// components by name with the nets of their sides and their values, and the
// rows of switches, groups, reversible pairs and fixture points.
Differences CompareNetlists(const CNetList& before, const CNetList& after);

} // namespace zolt::compare
