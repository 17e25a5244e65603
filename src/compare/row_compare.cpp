#include "compare/row_compare.h"

#include "core/grid.h"
#include "core/table_columns.h"

#include <map>

namespace zolt::compare {
namespace {

std::map<std::string, int> Counted(const Grid& rows, int columns) {
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

int ShownColumns(TableId table, int gridColumns) {
    switch (table) {
    case table::Groups:
        return groups_column::Sequence;
    case table::Fixture:
        return fixture_column::Sequence;
    case table::Connector:
        return connector_column::Sequence;
    case table::Color:
        return color_column::ColorID;
    case table::Wire:
        return wire_column::Sequence;
    case table::Pin:
        return pin_column::Sequence;
    case table::Splice:
        return splice_column::Sequence;
    case table::Component:
        return component_column::Sequence;
    case table::Message:
        return message_column::Sequence;
    case table::TestParameter:
        return test_parameter_column::Sequence;
    case table::Switches:
        return switches_column::Seq;
    case table::Reversible:
        return reversible_column::Sequence;
    case table::Code:
        return code_column::Sequence;
    default:
        return gridColumns;
    }
}

std::string Cell(const Grid& rows, int row, int column) {
    return vb::Trim(rows.Text(row, column));
}

std::string RowText(const Grid& rows, int row, int columns) {
    std::string text;
    bool any = false;
    for (int c = 0; c < columns; ++c) {
        const std::string cell = vb::Trim(rows.Text(row, c));
        any = any || !cell.empty();
        text += (c ? " " : "") + (cell.empty() ? std::string("-") : cell);
    }
    return any ? text : std::string();
}

Differences CompareRows(const std::string& where, TableId table, const Grid& before,
                        const Grid& after) {
    const int columns = ShownColumns(table, before.Columns());
    const auto a = Counted(before, columns);
    const auto b = Counted(after, columns);
    Differences out;
    const std::string name = GetTableName(table);
    AddSurplus(a, b, "-", where, name, out);
    AddSurplus(b, a, "+", where, name, out);
    return out;
}

} // namespace zolt::compare
