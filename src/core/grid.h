#pragma once

#include "core/value.h"

#include <utility>
#include <vector>

namespace zolt {

// One change of a grid's rows, as views and the edit history see it. Rows are
// 1-based and inclusive; a cell change names its column range too.
struct GridChange {
    enum class Kind { CellsChanged, RowsInserted, RowsRemoved, Reset };
    Kind kind = Kind::Reset;
    int firstRow = 0;
    int lastRow = 0;
    int firstColumn = 0;
    int lastColumn = 0;
};

// What a change overwrote or took out, enough to put it back: the old cell, the
// removed rows' cells, or the whole store before a reset.
struct GridLoss {
    std::vector<Value> cells;
    int rows = 0;
    int columns = 0;
};

// Told before and after every change of a grid it watches.
class GridObserver {
public:
    virtual void GridAboutToChange(const GridChange& change) = 0;
    virtual void GridChanged(const GridChange& change, GridLoss loss) = 0;

protected:
    ~GridObserver() = default;
};

// A table's row store (`gridarray`): rows count from 1, columns from 0; every
// cell a Value. Growing keeps contents, as the grid control's ReDim did.
class Grid {
public:
    Grid() = default;
    Grid(int rows, int columns) { ReDim(rows, columns); }
    // A copy holds the cells only; assigning to a watched grid is a reset.
    Grid(const Grid& other) : rows_(other.rows_), columns_(other.columns_), cells_(other.cells_) {}
    Grid(Grid&& other) noexcept
        : rows_(other.rows_), columns_(other.columns_), cells_(std::move(other.cells_)) {}
    Grid& operator=(const Grid& other);
    Grid& operator=(Grid&& other);
    ~Grid() = default;

    // Every later change is told to `observer` (one at a time; nullptr stops it).
    void Watch(GridObserver* observer) { observer_ = observer; }

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    int LowerBound(int dimension) const { return dimension == 1 ? 1 : 0; }
    int UpperBound(int dimension) const { return dimension == 1 ? rows_ : columns_ - 1; }
    bool Contains(int row, int column) const {
        return row >= 1 && row <= rows_ && column >= 0 && column < columns_;
    }

    // Reading outside the store gives null; writing outside it does nothing.
    const Value& At(int row, int column) const;
    void Set(int row, int column, Value value);
    // The cells of `row` from column 0 on, told as one change of the columns
    // that differ (nothing when none does).
    void SetRow(int row, std::vector<Value> cells);
    std::string Text(int row, int column) const { return At(row, column).text(); }

    void ReDim(int rows, int columns);
    // Inserts n empty rows so that the first new one is `row`; row Rows()+1 appends.
    void InsertRows(int row, int n = 1);
    // Inserts whole rows at `row`, their cells row after row.
    void InsertRows(int row, std::vector<Value> cells);
    // Takes other contents at once, as one reset.
    void Replace(int rows, int columns, std::vector<Value> cells);
    const std::vector<Value>& Cells() const { return cells_; }
    void DeleteRows(int row, int n = 1);
    void Clear() { ReDim(0, columns_); }

    bool operator==(const Grid& other) const {
        return rows_ == other.rows_ && columns_ == other.columns_ && cells_ == other.cells_;
    }

private:
    std::size_t index(int row, int column) const {
        return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    void replace(int rows, int columns, std::vector<Value> cells);
    void insertRows(int row, std::vector<Value> cells);

    int rows_ = 0;
    int columns_ = 0;
    std::vector<Value> cells_;
    GridObserver* observer_ = nullptr;
};

} // namespace zolt
