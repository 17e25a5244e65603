#pragma once

#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zolt {
class CNetList;
}

namespace zolt::compare {

// A cavity as the engineer names it: "J1-4".
std::string PinName(const std::string& connector, const std::string& pin);

// The electrical content of one netlist: which cavities are joined, apart
// from how the rows are ordered or the wires are numbered. Cavities are
// numbered in name order, so that two netlists compare by numbers.
struct Connections {
    std::vector<std::string> cavities;  // ascending
    std::vector<int> netOf;             // the net of each cavity
    std::vector<std::vector<int>> nets; // the cavities of each net, ascending
    // Every wire with its net; -1 for a wire that reaches no cavity.
    std::unordered_map<std::string, int> wireNet;

    // The cavity of that name; -1 when there is none.
    int Find(const std::string& name) const;
    // The cavities joined to a cavity, by name.
    std::set<std::string> Partners(int cavity) const;
    // The cavities a wire reaches: "J3-1, J3-2", or "wire W9" for none.
    std::string WireNetText(const std::string& wire) const;
};

// Wires join the cavities of the Pin table that carry them and the wires of
// a splice; components keep their two nets apart.
Connections ConnectionsOf(const CNetList& netlist);

// The same built from cavity pairs, as a drawing lists them.
Connections ConnectionsOfPairs(const std::vector<std::pair<std::string, std::string>>& pairs);

// Cavities with a key of their net (a number from 0, equal for the cavities of
// one net); a cavity named twice keeps its first key. Wires take the net of
// their key.
Connections GatherConnections(std::vector<std::pair<std::string, int>> cavityKeys,
                              const std::vector<std::pair<std::string, int>>& wireKeys = {});

// "J3-1, J3-2" or "nothing".
std::string Joined(const std::set<std::string>& pins);

} // namespace zolt::compare
