#include "assembly/pattern_blocks.h"
#include "sequence/sequence_renumbering.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

Grid commands(const std::vector<std::pair<std::string, std::string>>& rows) {
    Grid grid(static_cast<int>(rows.size()), 7);
    int row = 0;
    for (const auto& [command, parameter] : rows) {
        ++row;
        grid.Set(row, sequence_column::Command, Value(command));
        grid.Set(row, sequence_column::Parameter, Value(parameter));
    }
    return grid;
}

TEST(ScanPatternBlocks, BlocksInRowOrder) {
    // clang-format off
    const auto blocks = ScanPatternBlocks(commands({{"BEEP", ""}, {" pbegin ", "3"}, {"BEEP", ""}, {"PEND", ""}, {"PBEGIN", "7"}, {"PEND", ""}}));
    // clang-format on
    ASSERT_TRUE(blocks);
    ASSERT_EQ(blocks->size(), 2u);
    EXPECT_EQ((*blocks)[0].Start, 2);
    EXPECT_EQ((*blocks)[0].End, 4);
    EXPECT_EQ((*blocks)[0].Length, 1);
    EXPECT_EQ((*blocks)[0].Pattern, 3);
    EXPECT_EQ((*blocks)[1].Length, 0);
}

TEST(ScanPatternBlocks, UnbalancedMarkersFail) {
    EXPECT_FALSE(ScanPatternBlocks(commands({{"PEND", ""}, {"PBEGIN", "1"}, {"PEND", ""}})));
    EXPECT_FALSE(ScanPatternBlocks(commands({{"PBEGIN", "1"}, {"PEND", ""}, {"PBEGIN", "2"}})));
}

TEST(ScanPatternBlocks, SecondBeginTakesOverTheOpenBlock) {
    const auto blocks =
        ScanPatternBlocks(commands({{"PBEGIN", "1"}, {"PBEGIN", "4"}, {"BEEP", ""}, {"PEND", ""}}));
    ASSERT_TRUE(blocks);
    ASSERT_EQ(blocks->size(), 1u);
    EXPECT_EQ((*blocks)[0].Start, 2);
    EXPECT_EQ((*blocks)[0].Pattern, 4);
}

// clang-format off
struct RenumberCase { const char* name; int line; int expected; };
// clang-format on

// Block A rows 10-15 (4 rows, pattern 2, three netlists: +8), block B rows
// 20-23 (2 rows, pattern 3, two netlists: +2).
const LineRenumbering& twoBlocks() {
    static const LineRenumbering lines({{10, 15, 4, 2}, {20, 23, 2, 3}}, {{2, 3}, {3, 2}});
    return lines;
}

class OutsideReference : public ::testing::TestWithParam<RenumberCase> {};

TEST_P(OutsideReference, Lands) {
    EXPECT_EQ(twoBlocks().Outside(GetParam().line), GetParam().expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(LineRenumbering, OutsideReference, ::testing::Values(
    RenumberCase{"BeforeAllBlocks", 9, 9},
    RenumberCase{"BetweenBlocks", 17, 23},
    RenumberCase{"BehindAllBlocks", 25, 31},
    // Into the first block from outside: as if behind all blocks.
    RenumberCase{"IntoFirstBlock", 12, 18}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(LineRenumbering, CountsAndInBlockReferences) {
    const LineRenumbering& lines = twoBlocks();
    EXPECT_EQ(lines.ExtraLines(), 10);
    EXPECT_EQ(lines.ExtraLinesBefore(17), 8);
    EXPECT_EQ(lines.BlocksBefore(17), 1);
    const PatternBlock first{10, 15, 4, 2};
    // Row 12 is the second row of the block: new row 11 in copy 1, then +4 a copy.
    EXPECT_EQ(lines.InBlock(12, 1, first), 11);
    EXPECT_EQ(lines.InBlock(12, 3, first), 19);
    EXPECT_EQ(lines.InBlock(5, 2, first), 5);
    EXPECT_EQ(lines.InBlock(30, 2, first), 36);
    const PatternBlock last{20, 23, 2, 3};
    // Row 21 is the first row of the last block: behind block A's 12 rows and rows 16-19.
    EXPECT_EQ(lines.InBlock(21, 1, last), 26);
    EXPECT_EQ(lines.InBlock(21, 2, last), 28);
}

TEST(LineRenumbering, ABlockWithoutNetlistsTakesItsRowsAway) {
    const LineRenumbering lines({{3, 6, 2, 9}}, {});
    EXPECT_EQ(lines.ExtraLines(), -2);
    EXPECT_EQ(lines.Outside(8), 4);
}

} // namespace
} // namespace zolt
