#include "compare/row_compare.h"

#include "core/grid.h"
#include "core/table_columns.h"
#include "tables/data_table.h"

#include <map>
#include <numeric>

namespace zolt::compare {
namespace {

std::map<std::string, int> Counted(const Grid& rows, const std::vector<int>& columns) {
    std::map<std::string, int> counts;
    for (int r = 1; r <= rows.Rows(); ++r)
        if (auto text = RowText(rows, r, columns); !text.empty())
            ++counts[std::move(text)];
    return counts;
}

void AddSurplus(const std::map<std::string, int>& from, const std::map<std::string, int>& other,
                const std::string& sign, const std::string& where, const std::string& tableName,
                Differences& out) {
    for (const auto& [text, count] : from) {
        const auto found = other.find(text);
        const int extra = count - (found == other.end() ? 0 : found->second);
        for (int i = 0; i < extra; ++i)
            out.push_back({where, tableName, sign + " " + text});
    }
}

} // namespace

std::vector<int> ShownColumnsOf(const Table& table) {
    // Every typed column counts, shown by the settings or not (a hidden column
    // still differs); the bookkeeping ones behind them do not.
    const auto* data = dynamic_cast<const DataTable*>(&table);
    std::vector<int> columns(
        static_cast<std::size_t>(data ? data->FieldCount() : table.gridarray().Columns()));
    std::iota(columns.begin(), columns.end(), 0);
    return columns;
}

std::string Cell(const Grid& rows, int row, int column) {
    return vb::Trim(rows.Text(row, column));
}

std::string RowText(const Grid& rows, int row, const std::vector<int>& columns) {
    std::string text;
    bool any = false;
    for (const int c : columns) {
        const std::string cell = vb::Trim(rows.Text(row, c));
        any = any || !cell.empty();
        text += (text.empty() ? "" : " ") + (cell.empty() ? std::string("-") : cell);
    }
    return any ? text : std::string();
}

Differences CompareRows(const std::string& where, const Table& before, const Table& after) {
    const auto columns = ShownColumnsOf(before);
    const auto a = Counted(before.gridarray(), columns);
    const auto b = Counted(after.gridarray(), columns);
    Differences out;
    const std::string name = GetTableName(before.tableIndex());
    AddSurplus(a, b, "-", where, name, out);
    AddSurplus(b, a, "+", where, name, out);
    return out;
}

} // namespace zolt::compare
