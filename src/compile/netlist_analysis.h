#pragma once

#include "compile/diagnostics.h"
#include "compile/netlist_feed.h"
#include "compile/program_image.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace zolt::compile {

// What the rest of the program tells the analysis of one netlist.
struct NetlistContext {
    int fixturePoints = 2048;
    int testParameterCount = 0;        // entries, the default one included
    std::set<std::string> deviceKinds; // kind codes of the devices
    std::set<std::string> codeNames;   // the codes a manual netlist may use
    // Another netlist's fixture may be MAIN's, linked, holding connectors it has
    // not: only MAIN's own fixture is held to its Connector table.
    bool ownFixture = false;
    // `SwitchType`: where each switch's common sits in the fixture (1 all on
    // connector "0", 2 one per connector, 3 one per switch).
    int switchType = 0;
};

struct NetlistAnalysis {
    ImageNetlist netlist;
    std::vector<Diagnostic> diagnostics;
    std::vector<std::string> buildOrder; // wire names
};

// Joins wires, pins and splices into nets (components keep their two nets
// apart), numbers them by test point and checks every row against the others.
NetlistAnalysis AnalyseNetlist(const NetlistFeed& feed, const NetlistContext& context);

// The order a harness maker lays the wires: connector by connector in table
// order, each connector's cavities in pin order (numbers by value before
// names), each wire at its first cavity; then the wires that reach no
// connector, in Wire table order.
std::vector<std::string> BuildOrder(const NetlistFeed& feed);

} // namespace zolt::compile
