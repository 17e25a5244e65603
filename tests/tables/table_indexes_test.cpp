#include "core/edit_history.h"
#include "core/table_kinds.h"
#include "support/test_program.h"
#include "tables/data_table.h"
#include "tables/table_indexes.h"

#include <gtest/gtest.h>
#include <random>

namespace zolt {
namespace {

// A few texts, blanks around some of them and numbers among them, so that
// counts collide and trimming matters.
const std::vector<Value> kCells = {
    Value("J1"), Value(" J1"),    Value("J1 "), Value("J2"), Value("1"), Value(std::int16_t{1}),
    Value("W1"), Value("(none)"), Value(),      Value(""),   Value(" "), Value(std::int32_t{2})};
const std::vector<std::string> kQueries = {"J1", " J1", "J2", "1", "W1", "(none)", "", "2", "X"};

struct Workload {
    std::string name;
    TableId table;
    int columns; // columns filled and asked about
    unsigned seed;
};

std::ostream& operator<<(std::ostream& out, const Workload& w) {
    return out << w.name;
}

// Random edits of a table through every kind of change the rows know (cells,
// inserted and removed rows, resets, undo and redo); after each, every count
// the indexes answer equals the scan of the rows.
class TableIndexesMatchScans : public testing::TestWithParam<Workload> {
protected:
    test::TestProgram program;
    std::mt19937 random{GetParam().seed};

    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }
    const Value& cell() {
        return kCells[static_cast<std::size_t>(pick(static_cast<int>(kCells.size())))];
    }
    std::string_view query() {
        return kQueries[static_cast<std::size_t>(pick(static_cast<int>(kQueries.size())))];
    }

    void edit(Grid& grid, int columns) {
        switch (pick(6)) {
        case 0:
        case 1:
            if (grid.Rows() > 0)
                grid.Set(1 + pick(grid.Rows()), pick(columns), cell());
            break;
        case 2: {
            std::vector<Value> cells(static_cast<std::size_t>(grid.Columns() * (1 + pick(3))));
            for (std::size_t i = 0; i < cells.size(); ++i)
                if (static_cast<int>(i) % grid.Columns() < columns)
                    cells[i] = cell();
            grid.InsertRows(1 + pick(grid.Rows() + 1), std::move(cells));
            break;
        }
        case 3:
            if (grid.Rows() > 0)
                grid.DeleteRows(1 + pick(grid.Rows()), 1 + pick(2));
            break;
        case 4:
            grid.ReDim(pick(grid.Rows() + 3), grid.Columns());
            break;
        default:
            if (pick(4) == 0)
                grid = Grid(pick(6), grid.Columns());
            else if (program.state.history().CanUndo() && pick(2) == 0)
                program.state.history().Undo();
            else if (program.state.history().CanRedo())
                program.state.history().Redo();
            break;
        }
        program.state.history().Record();
    }

    void expectSameCounts(const DataTable& table, int columns) {
        const Grid& grid = table.gridarray();
        for (int q = 0; q < 12; ++q) {
            const std::string_view a = query();
            const std::string_view b = query();
            const std::string_view c = query();
            const int ca = pick(columns);
            const int cb = pick(columns);
            const int cc = pick(columns);
            const std::optional<int> except =
                pick(3) == 0 ? std::nullopt : std::optional<int>(pick(grid.Rows() + 2));
            EXPECT_EQ(CountMatches(table, {{a, ca}}, except),
                      CountMatches(grid, {{a, ca}}, except));
            EXPECT_EQ(CountMatches(table, {{a, ca}, {b, cb}}, except),
                      CountMatches(grid, {{a, ca}, {b, cb}}, except));
            EXPECT_EQ(CountMatches(table, {{a, ca}, {b, cb}, {c, cc}}, except),
                      CountMatches(grid, {{a, ca}, {b, cb}, {c, cc}}, except));
            EXPECT_EQ(CountDistinct(table, a, ca, b, cb), CountDistinct(grid, a, ca, b, cb));
        }
    }
};

TEST_P(TableIndexesMatchScans, AfterEveryEdit) {
    const Workload& w = GetParam();
    program.state.history().Reset();
    auto& table = dynamic_cast<DataTable&>(*program.state.project().MainNetlist->GetTable(w.table));
    Grid& grid = table.gridarray();
    grid.ReDim(8, grid.Columns());
    for (int r = 1; r <= grid.Rows(); ++r)
        for (int c = 0; c < w.columns; ++c)
            grid.Set(r, c, cell());
    for (int step = 0; step < 400 && !HasFailure(); ++step) {
        edit(grid, w.columns);
        expectSameCounts(table, w.columns);
    }
}

INSTANTIATE_TEST_SUITE_P(RandomTables, TableIndexesMatchScans,
                         testing::Values(Workload{"Pins", table::Pin, 3, 1},
                                         Workload{"Fixture", table::Fixture, 4, 2},
                                         Workload{"Components", table::Component, 4, 3},
                                         Workload{"Colors", table::Color, 3, 4}),
                         [](const auto& info) { return info.param.name; });

} // namespace
} // namespace zolt
