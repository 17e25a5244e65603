#pragma once

#include "bench_tables.h"
#include "core/netlist.h"
#include "core/table_kinds.h"

#include <string>

namespace zolt {

inline constexpr int kPinsPerNetlist = 128;

inline std::string tp(int board, int point) {
    std::string p = std::to_string(point);
    return std::to_string(board) + "-" + std::string(3 - p.size(), '0') + p;
}

// Netlist n: connector "C<n>" with 128 pins on board n % 16. Pins 1-96 pair up
// on 48 wires, 97-112 run to four splices, 113-120 meet on four components,
// 121-128 are spare.
inline void fillNetlist(CNetList& n, int index) {
    const std::string c = "C" + std::to_string(index);
    const int board = index % 16;
    auto wire = [&](int k) { return Value("W" + std::to_string(k)); };
    fill(*n.GetTable(table::Fixture), kPinsPerNetlist, [&](int r) {
        return std::vector<Value>{tp(board, r - 1), c, std::to_string(r)};
    });
    fill(*n.GetTable(table::Connector), 1,
         [&](int) { return std::vector<Value>{c, "128", "4", "", "", "0"}; });
    fill(*n.GetTable(table::Switches), 4, [&](int r) {
        return std::vector<Value>{c, "S" + std::to_string(r), "121"};
    });
    fill(*n.GetTable(table::Groups), 8, [&](int r) {
        return std::vector<Value>{"G" + std::to_string(r % 2), c, std::to_string(r), "RED",
                                  "(none)"};
    });
    fill(*n.GetTable(table::Wire), 72, [&](int r) {
        return std::vector<Value>{wire(r), "RED", "0"};
    });
    fill(*n.GetTable(table::Pin), kPinsPerNetlist, [&](int r) {
        Value w = r <= 96 ? wire((r + 1) / 2) : r <= 120 ? wire(r - 48) : Value("(none)");
        return std::vector<Value>{c, std::to_string(r), w};
    });
    fill(*n.GetTable(table::Splice), 16, [&](int r) {
        return std::vector<Value>{std::to_string((r + 3) / 4), wire(48 + r)};
    });
    fill(*n.GetTable(table::Component), 4, [&](int r) {
        return std::vector<Value>{r % 2 ? "DIODE" : "RESISTOR",
                                  std::to_string(r),
                                  wire(63 + 2 * r),
                                  wire(64 + 2 * r),
                                  "100",
                                  "5",
                                  "5",
                                  std::to_string(r)};
    });
    fill(*n.GetTable(table::Reversible), 4, [&](int r) {
        return std::vector<Value>{std::to_string(r), c, std::to_string(2 * r - 1), c,
                                  std::to_string(2 * r)};
    });
}

} // namespace zolt
