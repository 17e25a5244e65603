#include "tables/table_indexes.h"

#include "tables/data_table.h"

#include <algorithm>

namespace zolt {
namespace {

bool touches(const GridChange& change, const std::vector<int>& columns) {
    return std::any_of(columns.begin(), columns.end(),
                       [&](int c) { return c >= change.firstColumn && c <= change.lastColumn; });
}

bool rowMatches(const Grid& grid, int row, std::initializer_list<Match> conditions) {
    std::string scratch;
    return std::all_of(conditions.begin(), conditions.end(), [&](const Match& m) {
        return TrimmedCellText(grid.At(row, m.column), scratch) == m.value;
    });
}

} // namespace

TableIndexes::TableIndexes(Table& table) : table_(table) {
    table_.AddListener(*this);
}

TableIndexes::~TableIndexes() {
    table_.RemoveListener(*this);
}

MatchIndex& TableIndexes::matchIndex(const std::vector<int>& columns) {
    for (const auto& index : matches_)
        if (index->Columns() == columns)
            return *index;
    auto& index = matches_.emplace_back(std::make_unique<MatchIndex>(columns));
    index->Build(table_.gridarray());
    return *index;
}

int TableIndexes::CountMatches(std::initializer_list<Match> conditions,
                               std::optional<int> exceptRow) {
    const Grid& grid = table_.gridarray();
    if (loading_)
        return zolt::CountMatches(grid, conditions, exceptRow);
    // One index serves the same columns asked in any order. Checks ask this
    // for every row an import adds: the lists keep their room between calls,
    // and the few conditions are sorted in place (std::stable_sort would take
    // a buffer from the heap each time).
    sorted_.assign(conditions);
    for (std::size_t i = 1; i < sorted_.size(); ++i)
        for (std::size_t j = i; j > 0 && sorted_[j].column < sorted_[j - 1].column; --j)
            std::swap(sorted_[j], sorted_[j - 1]);
    columns_.clear();
    values_.clear();
    for (const Match& m : sorted_) {
        columns_.push_back(m.column);
        values_.push_back(m.value);
    }
    const int count = matchIndex(columns_).Count(values_);
    const bool exceptCounted = exceptRow && *exceptRow >= 1 && *exceptRow <= grid.Rows() &&
                               rowMatches(grid, *exceptRow, conditions);
    return count - (exceptCounted ? 1 : 0);
}

int TableIndexes::CountDistinct(std::string_view value, int matchColumn, std::string_view newValue,
                                int keyColumn) {
    if (loading_)
        return zolt::CountDistinct(table_.gridarray(), value, matchColumn, newValue, keyColumn);
    for (const auto& index : distincts_)
        if (index->MatchColumn() == matchColumn && index->KeyColumn() == keyColumn)
            return index->Count(value, newValue);
    auto& index = distincts_.emplace_back(std::make_unique<DistinctIndex>(matchColumn, keyColumn));
    index->Build(table_.gridarray());
    return index->Count(value, newValue);
}

template <typename F> void TableIndexes::forTouched(const GridChange& change, F f) {
    const bool allColumns = change.kind != GridChange::Kind::CellsChanged;
    for (const auto& index : matches_)
        if (allColumns || touches(change, index->Columns()))
            f(*index);
    for (const auto& index : distincts_)
        if (allColumns || touches(change, {index->MatchColumn(), index->KeyColumn()}))
            f(*index);
}

void TableIndexes::TableAboutToChange(const GridChange& change) {
    using Kind = GridChange::Kind;
    // Until a reset ends the rows may change unheard (a load): questions go to the rows.
    if (change.kind == Kind::Reset)
        loading_ = true;
    if (change.kind != Kind::CellsChanged && change.kind != Kind::RowsRemoved)
        return;
    const Grid& grid = table_.gridarray();
    forTouched(change, [&](auto& index) { index.Remove(grid, change.firstRow, change.lastRow); });
}

void TableIndexes::TableChanged(const GridChange& change) {
    using Kind = GridChange::Kind;
    if (change.kind == Kind::Reset) {
        // Rebuilt when next asked: a reset is a load or a large undo, not typing.
        loading_ = false;
        matches_.clear();
        distincts_.clear();
        return;
    }
    if (change.kind == Kind::RowsRemoved)
        return;
    const Grid& grid = table_.gridarray();
    forTouched(change, [&](auto& index) { index.Add(grid, change.firstRow, change.lastRow); });
}

int CountMatches(const Table& table, std::initializer_list<Match> conditions,
                 std::optional<int> exceptRow) {
    if (const auto* data = dynamic_cast<const DataTable*>(&table))
        return data->Indexes().CountMatches(conditions, exceptRow);
    return CountMatches(table.gridarray(), conditions, exceptRow);
}

int CountDistinct(const Table& table, std::string_view value, int matchColumn,
                  std::string_view newValue, int keyColumn) {
    if (const auto* data = dynamic_cast<const DataTable*>(&table))
        return data->Indexes().CountDistinct(value, matchColumn, newValue, keyColumn);
    return CountDistinct(table.gridarray(), value, matchColumn, newValue, keyColumn);
}

} // namespace zolt
