#pragma once

#include "core/grid.h"

#include <array>
#include <string>
#include <vector>

namespace zolt::reports {

// Where one end of a wire lands.
struct WireEnd {
    std::string kind;   // "Pin", "Component", "Splice"; empty when no end was found
    std::string device; // Conn/Device
    std::string number; // Pin/Number
    std::string side;   // Fixture/Side: a test point, "Side 1" or "Side 2"
};

struct WireSummaryRow {
    std::string wire;
    std::string colors;
    std::array<WireEnd, 2> ends;
    int group = 0;
};

// The test point the fixture table gives a connector pin; empty when it has none.
std::string TestPointOf(const Grid& fixture, const std::string& connector, const std::string& pin);

// The tables of one netlist the summary reads.
struct HarnessTables {
    const Grid& wires;
    const Grid& pins;
    const Grid& components;
    const Grid& splices;
    const Grid& fixture;
};

// One row per wire, in the Wire table's order or, `byGroup`, sorted by group.
// Ends come from pins, then component sides, then splices, two at most; a
// pin's test point is its row in the fixture table. Wires sharing an end get
// one group in a single pass, so a wire that joins two groups late leaves
// both numbers in use.
std::vector<WireSummaryRow> BuildWireSummary(const HarnessTables& tables, bool byGroup);

} // namespace zolt::reports
