// A watched grid tells each change once, with the rows it touched and what it
// overwrote; a change that changes nothing is not told.
#include "core/grid.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zolt {
namespace {

struct Log final : GridObserver {
    std::vector<std::string> seen;
    void GridAboutToChange(const GridChange& c) override { seen.push_back("about " + text(c)); }
    void GridChanged(const GridChange& c, GridLoss loss) override {
        std::string lost;
        for (const Value& v : loss.cells)
            lost += v.text() + ",";
        seen.push_back(text(c) + " lost " + lost);
    }
    static std::string text(const GridChange& c) {
        const char* kinds[] = {"cells", "inserted", "removed", "reset"};
        return std::string(kinds[static_cast<int>(c.kind)]) + " " + std::to_string(c.firstRow) +
               "-" + std::to_string(c.lastRow) + " c" + std::to_string(c.firstColumn) + "-" +
               std::to_string(c.lastColumn);
    }
};

struct Case {
    const char* name;
    void (*change)(Grid&);
    std::vector<std::string> seen;
};

class GridChanges : public testing::TestWithParam<Case> {};

TEST_P(GridChanges, AreToldOnceWithWhatWasLost) {
    Grid grid(2, 2);
    grid.Set(1, 0, Value("A"));
    grid.Set(2, 0, Value("B"));
    Log log;
    grid.Watch(&log);
    GetParam().change(grid);
    EXPECT_EQ(log.seen, GetParam().seen);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Kinds, GridChanges, testing::Values(
    Case{"Cell", [](Grid& g) { g.Set(2, 0, Value("C")); }, {"about cells 2-2 c0-0", "cells 2-2 c0-0 lost B,"}},
    Case{"SameValue", [](Grid& g) { g.Set(1, 0, Value("A")); }, {}},
    Case{"OutsideTheStore", [](Grid& g) { g.Set(3, 0, Value("A")); }, {}},
    Case{"RowOfTheColumnsThatDiffer", [](Grid& g) { g.SetRow(1, {Value("A"), Value("X")}); }, {"about cells 1-1 c1-1", "cells 1-1 c1-1 lost ,"}},
    Case{"WholeRow", [](Grid& g) { g.SetRow(2, {Value("C"), Value("D")}); }, {"about cells 2-2 c0-1", "cells 2-2 c0-1 lost B,,"}},
    Case{"SameRow", [](Grid& g) { g.SetRow(1, {Value("A"), Value()}); }, {}},
    Case{"Insert", [](Grid& g) { g.InsertRows(2, 2); }, {"about inserted 2-3 c0-1", "inserted 2-3 c0-1 lost "}},
    Case{"Delete", [](Grid& g) { g.DeleteRows(1, 5); }, {"about removed 1-2 c0-1", "removed 1-2 c0-1 lost A,,B,,"}},
    Case{"GrowKeepingColumns", [](Grid& g) { g.ReDim(3, 2); }, {"about inserted 3-3 c0-1", "inserted 3-3 c0-1 lost "}},
    Case{"ShrinkKeepingColumns", [](Grid& g) { g.ReDim(1, 2); }, {"about removed 2-2 c0-1", "removed 2-2 c0-1 lost B,,"}},
    Case{"NewColumns", [](Grid& g) { g.ReDim(2, 3); }, {"about reset 1-2 c0-2", "reset 1-2 c0-2 lost A,,B,,"}},
    Case{"Assigned", [](Grid& g) { g = Grid(1, 2); }, {"about reset 1-1 c0-1", "reset 1-1 c0-1 lost A,,B,,"}}),
    [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });
// clang-format on

TEST(GridChanges, ACopyIsNotWatched) {
    Grid grid(1, 1);
    Log log;
    grid.Watch(&log);
    Grid copy = grid;
    copy.Set(1, 0, Value("X"));
    EXPECT_TRUE(log.seen.empty());
    EXPECT_NE(copy, grid);
}

} // namespace
} // namespace zolt
