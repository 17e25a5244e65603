#include "reports/wire_summary.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace zolt::reports {
namespace {

Grid Rows(int columns, std::initializer_list<std::initializer_list<const char*>> rows) {
    Grid grid(static_cast<int>(rows.size()), columns);
    int r = 1;
    for (const auto& row : rows) {
        int c = 0;
        for (const char* cell : row)
            grid.Set(r, c++, Value(cell));
        ++r;
    }
    return grid;
}

struct Harness {
    Grid wires{0, 5};
    Grid pins{0, 5};
    Grid components{0, 10};
    Grid splices{0, 4};
    Grid fixture{0, 5};

    std::vector<WireSummaryRow> summary(bool byGroup = false) const {
        return BuildWireSummary({wires, pins, components, splices, fixture}, byGroup);
    }
};

TEST(WireSummary, WireOnNothingHasOnlyNameColorAndAGroupOfItsOwn) {
    Harness h;
    h.wires = Rows(5, {{"W1", "RED"}, {"W2", "BLU"}});
    const auto rows = h.summary();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].wire, "W1");
    EXPECT_EQ(rows[0].colors, "RED");
    for (const auto& end : rows[0].ends) {
        EXPECT_TRUE(end.kind.empty());
        EXPECT_TRUE(end.device.empty() && end.number.empty() && end.side.empty());
    }
    // Two wires on nothing share no end.
    EXPECT_NE(rows[0].group, rows[1].group);
}

TEST(WireSummary, PinComesFirstThenTheComponentSide) {
    Harness h;
    h.wires = Rows(5, {{"W1", "RED"}});
    h.components = Rows(10, {{"RES", "4", "W9", "W1"}});
    h.pins = Rows(5, {{"X1", "3", "W1"}});
    h.fixture = Rows(5, {{"0-007", "X1", "3"}});
    const auto ends = h.summary()[0].ends;
    EXPECT_EQ(ends[0].kind, "Pin");
    EXPECT_EQ(ends[0].device, "X1");
    EXPECT_EQ(ends[0].number, "3");
    EXPECT_EQ(ends[0].side, "0-007");
    EXPECT_EQ(ends[1].kind, "Component");
    EXPECT_EQ(ends[1].device, "RES");
    EXPECT_EQ(ends[1].number, "4");
    EXPECT_EQ(ends[1].side, "Side 2");
}

TEST(WireSummary, ThirdPinAndLaterTablesAreIgnored) {
    Harness h;
    h.wires = Rows(5, {{"W1", "RED"}});
    h.pins = Rows(5, {{"X1", "1", "W1"}, {"X2", "1", "W1"}, {"X3", "1", "W1"}});
    h.splices = Rows(4, {{"5", "W1"}});
    const auto ends = h.summary()[0].ends;
    EXPECT_EQ(ends[0].device, "X1");
    EXPECT_EQ(ends[1].device, "X2");
}

TEST(WireSummary, SpliceEndNamesTheSpliceAndHasNoSide) {
    Harness h;
    h.wires = Rows(5, {{"W1", "RED"}});
    h.components = Rows(10, {{"DIO", "1", "W1", "W2"}});
    h.splices = Rows(4, {{"12", "W1"}});
    const auto ends = h.summary()[0].ends;
    EXPECT_EQ(ends[0].side, "Side 1");
    EXPECT_EQ(ends[1].kind, "Splice");
    EXPECT_EQ(ends[1].device, "SPLICE");
    EXPECT_EQ(ends[1].number, "12");
    EXPECT_EQ(ends[1].side, "");
}

TEST(WireSummary, TwoWiresOnOnePinShareAGroup) {
    Harness h;
    h.wires = Rows(5, {{"W1"}, {"W2"}, {"W3"}});
    h.pins = Rows(5, {{"X1", "1", "W1"}, {"X2", "1", "W2"}, {"X1", "1", "W3"}});
    const auto rows = h.summary();
    EXPECT_EQ(rows[0].group, 1);
    EXPECT_EQ(rows[1].group, 2);
    EXPECT_EQ(rows[2].group, 1);
}

TEST(WireSummary, WiresOnOneSpliceShareAGroup) {
    Harness h;
    h.wires = Rows(5, {{"W1"}, {"W2"}});
    h.splices = Rows(4, {{"3", "W1"}, {"3", "W2"}});
    const auto rows = h.summary();
    EXPECT_EQ(rows[0].group, rows[1].group);
}

// A joins B through p1; C and D through p3; D joins B through p2 only after
// A has passed, so A keeps the old number while the others take the new one.
TEST(WireSummary, LateJoinLeavesTwoNumbersInUse) {
    Harness h;
    h.wires = Rows(5, {{"A"}, {"B"}, {"C"}, {"D"}});
    h.pins = Rows(5, {{"P", "1", "A"},
                      {"P", "1", "B"},
                      {"P", "2", "B"},
                      {"P", "3", "C"},
                      {"P", "2", "D"},
                      {"P", "3", "D"}});
    const auto rows = h.summary();
    EXPECT_EQ(rows[0].group, 1);
    EXPECT_EQ(rows[1].group, 2);
    EXPECT_EQ(rows[2].group, 2);
    EXPECT_EQ(rows[3].group, 2);
}

TEST(WireSummary, ByGroupSortsStablyByGroup) {
    Harness h;
    h.wires = Rows(5, {{"W1"}, {"W2"}, {"W3"}, {"W4"}});
    h.pins = Rows(5, {{"X1", "1", "W1"}, {"X2", "1", "W2"}, {"X2", "1", "W3"}, {"X1", "1", "W4"}});
    std::vector<std::string> order;
    for (const auto& row : h.summary(true))
        order.push_back(row.wire);
    EXPECT_EQ(order, (std::vector<std::string>{"W1", "W4", "W2", "W3"}));
}

} // namespace
} // namespace zolt::reports
