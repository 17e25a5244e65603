#pragma once

#include "core/table.h"

#include <functional>
#include <vector>

namespace zolt {

// Replaces a table's rows by `rows` rows, row r's cells from `row(r)`.
inline void fill(Table& table, int rows, const std::function<std::vector<Value>(int)>& row) {
    table.ReDimGrid(rows, table.gridColumns());
    for (int r = 1; r <= rows; ++r) {
        const auto cells = row(r);
        for (std::size_t c = 0; c < cells.size(); ++c)
            table.gridarray().Set(r, static_cast<int>(c), cells[c]);
    }
}

} // namespace zolt
