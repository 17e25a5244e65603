#pragma once

#include "compare/difference.h"
#include "core/table_kinds.h"

#include <vector>

namespace zolt {
class Grid;
class Table;
} // namespace zolt

namespace zolt::compare {

// The rows of two tables of a kind as lists of entries without regard to
// order: each row only in one of them is "- row" or "+ row". The hidden
// columns are left out; a row of blank cells counts as no row.
Differences CompareRows(const std::string& where, const Table& before, const Table& after);

// A cell's text without the blanks around it, as the tables compare them.
std::string Cell(const Grid& rows, int row, int column);

// The shown cells of a row, trimmed, between blanks; empty for a blank row.
std::string RowText(const Grid& rows, int row, const std::vector<int>& columns);

// The columns of a table's rows the user types.
std::vector<int> ShownColumnsOf(const Table& table);

} // namespace zolt::compare
