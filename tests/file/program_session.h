#pragma once

#include "core/table_kinds.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

#include <string>
#include <vector>

namespace zolt::test {

// A program state without a screen, with a project holding MAIN only.
struct Session : TestProgram {
    Table& table(TableId n, const std::string& netlist = "MAIN") {
        return *state.project().FindNetlist(netlist)->GetTable(n);
    }
    Grid& grid(TableId n, const std::string& netlist = "MAIN") {
        return table(n, netlist).gridarray();
    }
    // Appends a row given in column order.
    void addRow(TableId n, const std::vector<Value>& cells, const std::string& netlist = "MAIN") {
        Grid& g = grid(n, netlist);
        table(n, netlist).ReDimGrid(g.Rows() + 1, g.Columns());
        for (std::size_t c = 0; c < cells.size(); ++c)
            g.Set(g.Rows(), static_cast<int>(c), cells[c]);
    }
};

} // namespace zolt::test
