#pragma once

#include <iterator>
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
inline std::string ChangeLine(const Difference& difference) {
    return difference.where + ": " + difference.text;
}

inline void Append(Differences& to, Differences more) {
    to.insert(to.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace zolt::compare
