#include "core/grid.h"

#include <algorithm>

namespace zolt {

const Value& Grid::At(int row, int column) const {
    static const Value kNull;
    return Contains(row, column) ? cells_[index(row, column)] : kNull;
}

void Grid::Set(int row, int column, Value value) {
    if (Contains(row, column))
        cells_[index(row, column)] = std::move(value);
}

void Grid::ReDim(int rows, int columns) {
    rows = std::max(rows, 0);
    columns = std::max(columns, 0);
    if (columns == columns_) {
        cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
        rows_ = rows;
        return;
    }
    std::vector<Value> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    for (int r = 1; r <= std::min(rows, rows_); ++r)
        for (int c = 0; c < std::min(columns, columns_); ++c)
            cells[static_cast<std::size_t>(r - 1) * static_cast<std::size_t>(columns) +
                  static_cast<std::size_t>(c)] = std::move(cells_[index(r, c)]);
    cells_ = std::move(cells);
    rows_ = rows;
    columns_ = columns;
}

void Grid::InsertRows(int row, int n) {
    if (n <= 0 || row < 1 || row > rows_ + 1)
        return;
    cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(index(row, 0)),
                  static_cast<std::size_t>(n) * static_cast<std::size_t>(columns_), Value());
    rows_ += n;
}

void Grid::DeleteRows(int row, int n) {
    if (n <= 0 || row < 1 || row > rows_)
        return;
    n = std::min(n, rows_ - row + 1);
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(index(row, 0));
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(n) * columns_);
    rows_ -= n;
}

} // namespace zolt
