#pragma once

#include <string>
#include <vector>

namespace zolt::compare {

// One change between two programs, in the engineer's terms: where it lies
// (a netlist's name, or "sequence", "messages", "settings") and what changed.
struct Difference {
    std::string where;
    std::string table;
    std::string text;

    bool operator==(const Difference&) const = default;
};

using Differences = std::vector<Difference>;

// "DOOR_LH: J1-4 now joins J3-2 (was J3-1)".
std::string ChangeLine(const Difference& difference);

} // namespace zolt::compare
