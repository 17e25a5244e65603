#pragma once

#include "core/grid.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zolt {

// Hashes std::string keys and looks them up by string_view without a copy.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>{}(text);
    }
};
template <typename T> using TextMap = std::unordered_map<std::string, T, TextHash, std::equal_to<>>;

// How many rows carry each combination of trimmed texts in `columns`: the
// answer of a CountMatches over those columns without a scan. Rows come and
// go through Add and Remove; the caller keeps them in step with the grid.
class MatchIndex {
public:
    explicit MatchIndex(std::vector<int> columns) : columns_(std::move(columns)) {}

    const std::vector<int>& Columns() const { return columns_; }
    void Build(const Grid& grid);
    void Add(const Grid& grid, int firstRow, int lastRow) { change(grid, firstRow, lastRow, 1); }
    void Remove(const Grid& grid, int firstRow, int lastRow) {
        change(grid, firstRow, lastRow, -1);
    }
    // Rows whose cells equal `values`, one value per column, in column order.
    int Count(const std::vector<std::string_view>& values) const;

private:
    void change(const Grid& grid, int firstRow, int lastRow, int delta);
    std::string rowKey(const Grid& grid, int row) const;

    std::vector<int> columns_;
    TextMap<int> counts_;
};

// The different texts of `keyColumn` per text of `matchColumn`, each with the
// number of rows carrying it: the answer of a CountDistinct without a scan.
class DistinctIndex {
public:
    DistinctIndex(int matchColumn, int keyColumn)
        : matchColumn_(matchColumn), keyColumn_(keyColumn) {}

    int MatchColumn() const { return matchColumn_; }
    int KeyColumn() const { return keyColumn_; }
    void Build(const Grid& grid);
    void Add(const Grid& grid, int firstRow, int lastRow) { change(grid, firstRow, lastRow, 1); }
    void Remove(const Grid& grid, int firstRow, int lastRow) {
        change(grid, firstRow, lastRow, -1);
    }
    // Different keys among rows matching `value`, with `newValue` counted in.
    int Count(std::string_view value, std::string_view newValue) const;

private:
    void change(const Grid& grid, int firstRow, int lastRow, int delta);

    int matchColumn_;
    int keyColumn_;
    TextMap<TextMap<int>> keys_;
};

// The text a cell is compared by: trimmed, "" for null. Numbers by their text.
std::string_view TrimmedCellText(const Value& cell, std::string& scratch);

} // namespace zolt
