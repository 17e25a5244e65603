#pragma once

#include "core/table.h"
#include "tables/data_validation.h"
#include "tables/match_index.h"

#include <initializer_list>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace zolt {

// The uniqueness and existence counts of one table, answered from indexes
// instead of scans. An index is built on its first question and from then on
// follows every change of the rows, whoever makes it (edits, undo, paste,
// imports, AutoGen); a reset of the whole store drops them until asked again.
// It listens from the table's construction on, so it has heard of a change
// before any later listener can ask about it.
class TableIndexes : private TableListener {
public:
    explicit TableIndexes(Table& table);
    ~TableIndexes();
    TableIndexes(const TableIndexes&) = delete;
    TableIndexes& operator=(const TableIndexes&) = delete;

    // The same answers as the scans of data_validation.h over the table's rows.
    int CountMatches(std::initializer_list<Match> conditions, std::optional<int> exceptRow);
    int CountDistinct(std::string_view value, int matchColumn, std::string_view newValue,
                      int keyColumn);

private:
    void TableAboutToChange(const GridChange& change) override;
    void TableChanged(const GridChange& change) override;
    MatchIndex& matchIndex(const std::vector<int>& columns);
    // Calls f on every built index whose columns the change touches.
    template <typename F> void forTouched(const GridChange& change, F f);

    Table& table_;
    std::vector<std::unique_ptr<MatchIndex>> matches_;
    std::vector<std::unique_ptr<DistinctIndex>> distincts_;
    bool loading_ = false;
    std::vector<Match> sorted_;
    std::vector<int> columns_;
    std::vector<std::string_view> values_;
};

// CountMatches and CountDistinct of a table: from its indexes where it keeps
// them, else by a scan of its rows.
int CountMatches(const Table& table, std::initializer_list<Match> conditions,
                 std::optional<int> exceptRow = std::nullopt);
int CountDistinct(const Table& table, std::string_view value, int matchColumn,
                  std::string_view newValue, int keyColumn);

} // namespace zolt
