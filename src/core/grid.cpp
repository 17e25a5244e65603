#include "core/grid.h"

#include <algorithm>

namespace zolt {
namespace {

GridChange rowsChange(GridChange::Kind kind, int row, int n, int columns) {
    return {kind, row, row + n - 1, 0, columns - 1};
}

} // namespace

Grid& Grid::operator=(const Grid& other) {
    if (this != &other)
        replace(other.rows_, other.columns_, other.cells_);
    return *this;
}

Grid& Grid::operator=(Grid&& other) {
    if (this != &other)
        replace(other.rows_, other.columns_, std::move(other.cells_));
    return *this;
}

const Value& Grid::At(int row, int column) const {
    static const Value kNull;
    return Contains(row, column) ? cells_[index(row, column)] : kNull;
}

void Grid::Set(int row, int column, Value value) {
    if (!Contains(row, column))
        return;
    Value& cell = cells_[index(row, column)];
    if (!observer_) {
        cell = std::move(value);
        return;
    }
    if (cell == value)
        return;
    const GridChange change{GridChange::Kind::CellsChanged, row, row, column, column};
    observer_->GridAboutToChange(change);
    GridLoss loss;
    loss.cells.push_back(std::exchange(cell, std::move(value)));
    observer_->GridChanged(change, std::move(loss));
}

void Grid::SetRow(int row, std::vector<Value> cells) {
    if (!Contains(row, 0))
        return;
    cells.resize(std::min(cells.size(), static_cast<std::size_t>(columns_)));
    const auto start = cells_.begin() + static_cast<std::ptrdiff_t>(index(row, 0));
    int first = 0;
    int last = static_cast<int>(cells.size()) - 1;
    const auto same = [&](int c) { return start[c] == cells[static_cast<std::size_t>(c)]; };
    while (first <= last && same(first))
        ++first;
    while (last >= first && same(last))
        --last;
    if (first > last)
        return;
    const GridChange change{GridChange::Kind::CellsChanged, row, row, first, last};
    if (observer_)
        observer_->GridAboutToChange(change);
    GridLoss loss;
    for (int c = first; c <= last; ++c) {
        Value& cell = start[c];
        if (observer_)
            loss.cells.push_back(
                std::exchange(cell, std::move(cells[static_cast<std::size_t>(c)])));
        else
            cell = std::move(cells[static_cast<std::size_t>(c)]);
    }
    if (observer_)
        observer_->GridChanged(change, std::move(loss));
}

void Grid::Replace(int rows, int columns, std::vector<Value> cells) {
    replace(rows, columns, std::move(cells));
}

void Grid::replace(int rows, int columns, std::vector<Value> cells) {
    if (!observer_) {
        rows_ = rows;
        columns_ = columns;
        cells_ = std::move(cells);
        return;
    }
    const GridChange change{GridChange::Kind::Reset, 1, rows, 0, columns - 1};
    observer_->GridAboutToChange(change);
    GridLoss loss{std::exchange(cells_, std::move(cells)), rows_, columns_};
    rows_ = rows;
    columns_ = columns;
    observer_->GridChanged(change, std::move(loss));
}

void Grid::ReDim(int rows, int columns) {
    rows = std::max(rows, 0);
    columns = std::max(columns, 0);
    if (columns == columns_ && columns == 0) {
        rows_ = rows;
        return;
    }
    if (columns == columns_) {
        if (rows > rows_)
            insertRows(rows_ + 1, std::vector<Value>(static_cast<std::size_t>(rows - rows_) *
                                                     static_cast<std::size_t>(columns)));
        else if (rows < rows_)
            DeleteRows(rows + 1, rows_ - rows);
        return;
    }
    std::vector<Value> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    for (int r = 1; r <= std::min(rows, rows_); ++r)
        for (int c = 0; c < std::min(columns, columns_); ++c)
            cells[static_cast<std::size_t>(r - 1) * static_cast<std::size_t>(columns) +
                  static_cast<std::size_t>(c)] = cells_[index(r, c)];
    replace(rows, columns, std::move(cells));
}

void Grid::InsertRows(int row, int n) {
    if (n > 0)
        InsertRows(row, std::vector<Value>(static_cast<std::size_t>(n) *
                                           static_cast<std::size_t>(columns_)));
}

void Grid::InsertRows(int row, std::vector<Value> cells) {
    if (row < 1 || row > rows_ + 1 || columns_ == 0 || cells.empty() ||
        cells.size() % static_cast<std::size_t>(columns_) != 0)
        return;
    insertRows(row, std::move(cells));
}

void Grid::insertRows(int row, std::vector<Value> cells) {
    const int n = static_cast<int>(cells.size() / static_cast<std::size_t>(columns_));
    const GridChange change = rowsChange(GridChange::Kind::RowsInserted, row, n, columns_);
    if (observer_)
        observer_->GridAboutToChange(change);
    cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(index(row, 0)),
                  std::make_move_iterator(cells.begin()), std::make_move_iterator(cells.end()));
    rows_ += n;
    if (observer_)
        observer_->GridChanged(change, {});
}

void Grid::DeleteRows(int row, int n) {
    if (n <= 0 || row < 1 || row > rows_)
        return;
    n = std::min(n, rows_ - row + 1);
    const GridChange change = rowsChange(GridChange::Kind::RowsRemoved, row, n, columns_);
    if (observer_)
        observer_->GridAboutToChange(change);
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(index(row, 0));
    const auto last = first + static_cast<std::ptrdiff_t>(n) * columns_;
    GridLoss loss;
    if (observer_)
        loss.cells.assign(std::make_move_iterator(first), std::make_move_iterator(last));
    cells_.erase(first, last);
    rows_ -= n;
    if (observer_)
        observer_->GridChanged(change, std::move(loss));
}

} // namespace zolt
