#include "tables/table_find.h"

#include "core/app_info.h"
#include "core/netlist.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/value.h"
#include "tables/color_table.h"
#include "tables/data_table.h"

#include <algorithm>

namespace zolt {
namespace {

bool cellHolds(const ShownCells& cells, int row, int column, std::string_view text) {
    return vb::Trim(cells.Text(row, column)) == text;
}

bool rowMatches(const ShownCells& cells, int row, const FindMode& mode, std::string_view what,
                std::string_view pin, int& column) {
    if (mode.columns.size() == 2) {
        column = mode.columns[0];
        return cellHolds(cells, row, mode.columns[0], what) &&
               cellHolds(cells, row, mode.columns[1], pin);
    }
    for (const int c : mode.columns)
        if (cellHolds(cells, row, c, what)) {
            column = c;
            return true;
        }
    return false;
}

} // namespace

ShownCells::ShownCells(const DataTable& table, const Project& project)
    : grid_(table.gridarray()), colorColumns_(table.Descriptor().ColumnsOfKind(CellKind::Color)) {
    if (const CNetList* main = project.MainNetlist)
        colors_ = main->TableAs<CColorTable>(table::Color);
}

std::string ShownCells::Text(int row, int column) const {
    const std::string stored = grid_.Text(row, column);
    if (std::find(colorColumns_.begin(), colorColumns_.end(), column) == colorColumns_.end())
        return stored;
    return ShownColor(colors_, stored);
}

std::vector<int> ShownColumns(const DataTable& table, const Project& project) {
    std::vector<int> columns;
    for (int c = 0; c < table.FieldCount(); ++c)
        if (ShownBySettings(table.Descriptor().Column(c), project))
            columns.push_back(c);
    return columns;
}

const FindForm* FindFormOf(const DataTable& table) {
    const auto& find = table.Descriptor().find;
    return find ? &*find : nullptr;
}

std::optional<FindMode> FindModeOf(const DataTable& table, std::string_view name) {
    if (const FindForm* form = FindFormOf(table))
        for (const FindMode& mode : form->modes)
            if (vb::TextEqualsNoCase(mode.name, name))
                return mode;
    return std::nullopt;
}

std::optional<CellPosition> FindNextMatch(const ShownCells& cells, const FindRequest& request,
                                          int afterRow) {
    FindMode mode = request.mode;
    if (mode.columns.empty())
        mode.columns = request.visibleColumns;
    const std::string what = vb::Trim(request.what);
    const std::string pin = vb::Trim(request.pin);
    for (int row = std::max(afterRow, 0) + 1; row <= cells.Rows(); ++row) {
        int column = 0;
        if (rowMatches(cells, row, mode, what, pin, column))
            return CellPosition{row, column};
    }
    return std::nullopt;
}

std::optional<CellPosition> FindNextCell(const ShownCells& cells, const std::vector<int>& columns,
                                         std::optional<CellPosition> after, std::string_view what) {
    const std::string text = vb::Trim(what);
    int row = 1;
    std::size_t next = 0;
    // The cell after the cursor's: the rest of its row, then the rows below.
    if (after && after->row >= 1) {
        row = after->row;
        const auto at = std::find(columns.begin(), columns.end(), after->column);
        next = at == columns.end() ? columns.size()
                                   : static_cast<std::size_t>(at - columns.begin()) + 1;
    }
    for (; row <= cells.Rows(); ++row, next = 0)
        for (; next < columns.size(); ++next)
            if (cellHolds(cells, row, columns[next], text))
                return CellPosition{row, columns[next]};
    return std::nullopt;
}

std::optional<CellPosition> SearchPass::FindNext(Ui& ui, const ShownCells& cells,
                                                 const FindRequest& request, int currentRow) {
    // The Find dialog always goes on from the cursor, also after the end box.
    return finish(ui, FindNextMatch(cells, request, currentRow));
}

std::optional<CellPosition> SearchPass::FindNextCell(Ui& ui, const ShownCells& cells,
                                                     const std::vector<int>& columns,
                                                     std::optional<CellPosition> current,
                                                     std::string_view what) {
    return finish(ui, zolt::FindNextCell(cells, columns, fromTop_ ? std::nullopt : current, what));
}

std::optional<CellPosition> SearchPass::finish(Ui& ui, std::optional<CellPosition> match) {
    fromTop_ = false;
    if (match) {
        found_ = true;
        return match;
    }
    ShowSearchFinished(ui, found_);
    found_ = false;
    fromTop_ = true;
    return std::nullopt;
}

void ShowSearchFinished(Ui& ui, bool foundInPass) {
    ui.Message(foundInPass
                   ? "ZOLT 6.0 has finished searching the table."
                   : "ZOLT 6.0 has finished searching the table. The search item was not found.",
               kAppTitle, Buttons::Ok, Icon::Information);
}

} // namespace zolt
