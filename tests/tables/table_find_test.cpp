#include "core/headless/scripted_ui.h"
#include "core/table_columns.h"
#include "file/program_file.h"
#include "support/test_program.h"
#include "tables/color_table.h"
#include "tables/data_table.h"
#include "tables/table_find.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

// Connector, pin, wire, sequence, netlist: the pins table's rows.
Grid PinGrid() {
    const std::vector<std::vector<std::string>> rows = {
        {"J1", "1", "W1"}, {"J1", "2", "W2"}, {"J2", "1", "J1"}, {" J2 ", "2", "W1"}};
    Grid grid(static_cast<int>(rows.size()), 5);
    for (std::size_t r = 0; r < rows.size(); ++r)
        for (std::size_t c = 0; c < rows[r].size(); ++c)
            grid.Set(static_cast<int>(r) + 1, static_cast<int>(c), Value(rows[r][c]));
    return grid;
}

// A search mode of the pins table's Find dialog.
FindMode PinMode(const char* name) {
    test::TestProgram p;
    return *FindModeOf(*p.state.project().MainNetlist->TableAs<DataTable>(table::Pin), name);
}

struct MatchCase {
    const char* name;
    const char* mode;
    const char* what;
    const char* pin;
    int afterRow;
    std::optional<CellPosition> expected;
};

class FindNextMatchTest : public ::testing::TestWithParam<MatchCase> {};

TEST_P(FindNextMatchTest, FindsTheNextRowThatMatches) {
    const MatchCase& c = GetParam();
    const FindRequest request{PinMode(c.mode), c.what, c.pin, {0, 1, 2}};
    EXPECT_EQ(FindNextMatch(PinGrid(), request, c.afterRow), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Pins, FindNextMatchTest,
    ::testing::Values(
        MatchCase{"AllTakesTheFirstColumnThatHolds", "All", "J1", "", 2, CellPosition{3, 2}},
        MatchCase{"NamedColumnOnly", "Connector", "J1", "", 2, std::nullopt},
        MatchCase{"StartsAfterTheCurrentRow", "Wire", "W1", "", 1, CellPosition{4, 2}},
        MatchCase{"FromTheTopWithNoCurrentRow", "wire", "W1", "", 0, CellPosition{1, 2}},
        MatchCase{"CellsAreTrimmed", "Connector", "J2", "", 3, CellPosition{4, 0}},
        MatchCase{"TextIsTrimmed", "Connector", " J2 ", "", 0, CellPosition{3, 0}},
        MatchCase{"CaseCounts", "All", "w1", "", 0, std::nullopt},
        MatchCase{"ConnectorPinNeedsBoth", "Connector/Pin", "J2", "2", 0, CellPosition{4, 0}},
        MatchCase{"ConnectorPinWrongPin", "Connector/Pin", "J1", "3", 0, std::nullopt}),
    [](const auto& info) { return std::string(info.param.name); });

constexpr const char* kFinished = "ZOLT 6.0 has finished searching the table.";
constexpr const char* kNotFound =
    "ZOLT 6.0 has finished searching the table. The search item was not found.";

TEST(SearchPassTest, EmptyTableGivesTheNotFoundBoxAtOnce) {
    ScriptedUi ui;
    SearchPass pass;
    const FindRequest request{{"All", {}}, "J1", "", {0, 1, 2}};
    EXPECT_FALSE(pass.FindNext(ui, Grid(0, 5), request, 0));
    ASSERT_EQ(ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(ui.ShownBoxes()[0].text, kNotFound);
    EXPECT_EQ(ui.ShownBoxes()[0].icon, Icon::Information);
}

TEST(SearchPassTest, EndBoxSaysWhetherThePassFoundAnythingAndFindGoesOnFromTheCursor) {
    ScriptedUi ui;
    SearchPass pass;
    const Grid grid = PinGrid();
    const FindRequest request{{"Wire", {2}}, "W1", "", {}};
    auto match = pass.FindNext(ui, grid, request, 0);
    ASSERT_TRUE(match);
    match = pass.FindNext(ui, grid, request, match->row);
    ASSERT_EQ(match, (CellPosition{4, 2}));
    EXPECT_FALSE(pass.FindNext(ui, grid, request, match->row));
    EXPECT_EQ(ui.ShownBoxes().back().text, kFinished);
    // The next Find goes on from the cursor's row, not from row 1: from row 4
    // nothing is left, and this pass found nothing.
    EXPECT_FALSE(pass.FindNext(ui, grid, request, 4));
    EXPECT_EQ(ui.ShownBoxes().back().text, kNotFound);
    EXPECT_EQ(pass.FindNext(ui, grid, request, 2), (CellPosition{4, 2}));
}

TEST(FindNextCellTest, WalksVisibleColumnsRowByRowFromTheCursor) {
    const Grid grid = PinGrid();
    const std::vector<int> columns{2, 0}; // the window shows the wire first; the pin is hidden
    EXPECT_EQ(FindNextCell(grid, columns, std::nullopt, "J1"), (CellPosition{1, 0}));
    EXPECT_EQ(FindNextCell(grid, columns, CellPosition{1, 0}, "J1"), (CellPosition{2, 0}));
    EXPECT_EQ(FindNextCell(grid, columns, CellPosition{2, 0}, "J1"), (CellPosition{3, 2}));
    EXPECT_EQ(FindNextCell(grid, columns, CellPosition{3, 2}, "J1"), std::nullopt);
    // A cursor in a hidden column goes on with the next row.
    EXPECT_EQ(FindNextCell(grid, columns, CellPosition{1, 1}, "W1"), (CellPosition{4, 2}));
    EXPECT_EQ(FindNextCell(grid, columns, std::nullopt, "1"), std::nullopt);
}

// A program read as a value belongs to no running program: what its tables show
// comes from the project read with them.
TEST(ShownOfLoadedTableTest, ColumnsAndColorsComeFromTheLoadedProject) {
    test::TestProgram p;
    p.state.params().SetVal(param::Switches, Value(std::int32_t{1}));
    CNetList& main = *p.state.project().MainNetlist;
    const int red = main.TableAs<CColorTable>(table::Color)->AddNewColor("RED");
    test::AppendRow(main, table::Connector, {Value("J1"), Value(std::int32_t{2})});
    test::AppendRow(main, table::Wire, {Value("W1"), Value(std::int32_t{red})});
    const auto bytes = file::ProgramFileBytes(p.state, "shown.zlf");
    ASSERT_TRUE(bytes);
    const file::LoadedProgram loaded = file::LoadProgram(*bytes, "shown.zlf");
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    const CNetList& read = *loaded.project->MainNetlist;

    const std::vector<int> columns =
        ShownColumns(*read.TableAs<DataTable>(table::Connector), *loaded.project);
    EXPECT_EQ(columns, (std::vector<int>{connector_column::Connector, connector_column::PinsQty,
                                         connector_column::SwitchesQty}));
    EXPECT_EQ(ShownCells(*read.TableAs<DataTable>(table::Wire), *loaded.project)
                  .Text(1, wire_column::BaseColor),
              "RED");
}

} // namespace
} // namespace zolt
