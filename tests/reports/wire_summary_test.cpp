#include "reports/wire_summary.h"

#include <gtest/gtest.h>
#include <sstream>

namespace zolt::reports {
namespace {

// Rows written as "cell cell;cell cell".
Grid MakeGrid(int columns, const std::string& rows) {
    Grid grid(0, columns);
    std::istringstream lines(rows);
    for (std::string line; std::getline(lines, line, ';');) {
        grid.ReDim(grid.Rows() + 1, columns);
        std::istringstream cells(line);
        int c = 0;
        for (std::string cell; cells >> cell;)
            grid.Set(grid.Rows(), c++, Value(cell));
    }
    return grid;
}

struct HarnessCase {
    const char* name;
    std::string wires, pins, components, splices, fixture;
    bool byGroup;
    // A line per summary row: "wire/colors group", then its two ends as "kind device number side".
    std::string expected;
};

void PrintTo(const HarnessCase& c, std::ostream* out) {
    *out << c.name;
}

std::string Describe(const WireSummaryRow& row) {
    std::string text = row.wire + "/" + row.colors + " " + std::to_string(row.group);
    for (const WireEnd& end : row.ends)
        text += end.kind.empty() ? " | -"
                                 : " | " + end.kind + " " + end.device + " " + end.number +
                                       (end.side.empty() ? "" : " " + end.side);
    return text;
}

class WireSummary : public testing::TestWithParam<HarnessCase> {};

TEST_P(WireSummary, NamesEachWiresEndsAndGroup) {
    const HarnessCase& c = GetParam();
    const Grid wires = MakeGrid(5, c.wires), pins = MakeGrid(5, c.pins),
               components = MakeGrid(10, c.components), splices = MakeGrid(4, c.splices),
               fixture = MakeGrid(5, c.fixture);
    std::string described;
    for (const auto& row : BuildWireSummary({wires, pins, components, splices, fixture}, c.byGroup))
        described += Describe(row) + "\n";
    EXPECT_EQ(described, c.expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Reports, WireSummary, testing::Values(
    // Two wires on nothing share no end, so no group.
    HarnessCase{"WireOnNothing", "W1 RED;W2 BLU", "", "", "", "", false, "W1/RED 1 | - | -\nW2/BLU 2 | - | -\n"},
    HarnessCase{"PinFirstThenTheComponentSide", "W1 RED", "X1 3 W1", "RES 4 W9 W1", "", "0-007 X1 3", false, "W1/RED 1 | Pin X1 3 0-007 | Component RES 4 Side 2\n"},
    HarnessCase{"ThirdPinAndLaterTablesIgnored", "W1", "X1 1 W1;X2 1 W1;X3 1 W1", "", "5 W1", "", false, "W1/ 1 | Pin X1 1 | Pin X2 1\n"},
    HarnessCase{"SpliceEndHasNoSide", "W1", "", "DIO 1 W1 W2", "12 W1", "", false, "W1/ 1 | Component DIO 1 Side 1 | Splice SPLICE 12\n"},
    HarnessCase{"TwoWiresOnOnePinShareAGroup", "W1;W2;W3", "X1 1 W1;X2 1 W2;X1 1 W3", "", "", "", false, "W1/ 1 | Pin X1 1 | -\nW2/ 2 | Pin X2 1 | -\nW3/ 1 | Pin X1 1 | -\n"},
    HarnessCase{"WiresOnOneSpliceShareAGroup", "W1;W2", "", "", "3 W1;3 W2", "", false, "W1/ 1 | Splice SPLICE 3 | -\nW2/ 1 | Splice SPLICE 3 | -\n"},
    // A joins B through P1; C and D through P3; D joins B through P2 only after
    // A has passed, so A keeps the old number while the others take the new one.
    HarnessCase{"LateJoinLeavesTwoNumbersInUse", "A;B;C;D", "P 1 A;P 1 B;P 2 B;P 3 C;P 2 D;P 3 D", "", "", "", false,
                "A/ 1 | Pin P 1 | -\nB/ 2 | Pin P 1 | Pin P 2\nC/ 2 | Pin P 3 | -\nD/ 2 | Pin P 2 | Pin P 3\n"},
    HarnessCase{"ByGroupSortsStably", "W1;W2;W3;W4", "X1 1 W1;X2 1 W2;X2 1 W3;X1 1 W4", "", "", "", true,
                "W1/ 1 | Pin X1 1 | -\nW4/ 1 | Pin X1 1 | -\nW2/ 2 | Pin X2 1 | -\nW3/ 2 | Pin X2 1 | -\n"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::reports
