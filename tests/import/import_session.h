#pragma once

#include "core/ports/clock.h"
#include "file/program_session.h"
#include "import/import_support.h"

#include <gtest/gtest.h>

namespace zolt::test {

// A column of a table as an import should leave it.
struct Column {
    TableId table;
    int column;
    std::vector<std::string> cells;
    const char* netlist = "MAIN";
};

struct FixedClock final : Clock {
    LocalTime Now() const override { return {2024, 3, 7, 14, 5, 9}; }
};

// A session with what an import needs: a fixed clock, the data files of the build.
struct ImportSession : Session {
    FixedClock clock;
    import::ImportContext context{clock, ZOLT_BIN_DIR, "import.zlf"};

    std::vector<std::string> column(TableId tableIndex, int col,
                                    const std::string& netlist = "MAIN") {
        return ColumnTexts(grid(tableIndex, netlist), col);
    }
    std::vector<std::string> row(TableId tableIndex, int r, const std::string& netlist = "MAIN") {
        std::vector<std::string> cells;
        const Grid& g = grid(tableIndex, netlist);
        for (int c = 0; c < g.Columns(); ++c)
            cells.push_back(g.Text(r, c));
        return cells;
    }
    void expectColumns(const std::vector<Column>& columns) {
        for (const Column& c : columns)
            EXPECT_EQ(column(c.table, c.column, c.netlist), c.cells)
                << c.netlist << " " << GetTableName(c.table) << " " << c.column;
    }
    // MAIN alone, every table empty: what a failed import leaves.
    bool isEmptyProgram() const {
        if (state.project().NetlistCollection.Count() != 1 || !state.project().MainNetlist)
            return false;
        for (const TableId n : kAllTables)
            if (const Table* t =
                    n == table::SequenceList ? nullptr : state.project().MainNetlist->GetTable(n);
                t && t->gridarray().Rows() > 0)
                return false;
        return true;
    }
};

} // namespace zolt::test
