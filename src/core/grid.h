#pragma once

#include "core/value.h"

#include <vector>

namespace zolt {

// A table's row store (`gridarray`): rows count from 1, columns from 0; every
// cell a Value. Growing keeps contents, as the grid control's ReDim did.
class Grid {
public:
    Grid() = default;
    Grid(int rows, int columns) { ReDim(rows, columns); }

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
    std::string Text(int row, int column) const { return At(row, column).text(); }

    void ReDim(int rows, int columns);
    // Inserts n empty rows so that the first new one is `row`; row Rows()+1 appends.
    void InsertRows(int row, int n = 1);
    void DeleteRows(int row, int n = 1);
    void Clear() { ReDim(0, columns_); }

    bool operator==(const Grid&) const = default;

private:
    std::size_t index(int row, int column) const {
        return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    int rows_ = 0;
    int columns_ = 0;
    std::vector<Value> cells_;
};

} // namespace zolt
