#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace zolt {
class CNetList;
}

namespace zolt::compare {

// A cavity as the engineer names it: "J1-4".
std::string PinName(const std::string& connector, const std::string& pin);

// The electrical content of one netlist: which cavities are joined, apart
// from how the rows are ordered or the wires are numbered.
struct Connections {
    // Every cavity with the other cavities of its net (empty: joins nothing).
    std::map<std::string, std::set<std::string>> partners;
    // Every wire with the cavities of its net; a wire reaching none names itself.
    std::map<std::string, std::string> wireNet;
};

// Wires join the cavities of the Pin table that carry them and the wires of
// a splice; components keep their two nets apart.
Connections ConnectionsOf(const CNetList& netlist);

// The same built from cavity pairs, as a drawing lists them.
Connections ConnectionsOfPairs(const std::vector<std::pair<std::string, std::string>>& pairs);

// "J3-1, J3-2" or "nothing".
std::string Joined(const std::set<std::string>& pins);

} // namespace zolt::compare
