#include "tables/table_find.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <algorithm>

namespace zolt {
namespace {

bool cellHolds(const Grid& grid, int row, int column, std::string_view text) {
    return vb::Trim(grid.Text(row, column)) == text;
}

bool rowMatches(const Grid& grid, int row, const FindMode& mode, std::string_view what,
                std::string_view pin, int& column) {
    if (mode.columns.size() == 2) {
        column = mode.columns[0];
        return cellHolds(grid, row, mode.columns[0], what) &&
               cellHolds(grid, row, mode.columns[1], pin);
    }
    for (const int c : mode.columns)
        if (cellHolds(grid, row, c, what)) {
            column = c;
            return true;
        }
    return false;
}

} // namespace

std::optional<FindForm> FindFormOf(TableId tableNumber) {
    const FindMode all{"All", {}};
    switch (tableNumber) {
    case table::Connector:
        return FindForm{"Find in Connectors Table",
                        {all, {"Connector", {connector_column::Connector}}}};
    case table::Pin:
        return FindForm{"Find in Pins Table",
                        {all,
                         {"Connector", {pin_column::Connector}},
                         {"Connector/Pin", {pin_column::Connector, pin_column::Pin}},
                         {"Wire", {pin_column::Wire}}}};
    case table::Wire:
        return FindForm{"Find in Wires Table", {all, {"Wire", {wire_column::Wire}}}};
    case table::Splice:
        return FindForm{"Find in Splices Table", {all, {"Wire", {splice_column::Wire}}}};
    case table::Groups:
        return FindForm{"Find in Groups Table",
                        {all,
                         {"Group ID", {groups_column::Group}},
                         {"Connector", {groups_column::Connector}},
                         {"Connector/Pin", {groups_column::Connector, groups_column::Pin}}}};
    case table::Fixture:
        return FindForm{"Find in Fixture Connections Table",
                        {all,
                         {"Test Point", {fixture_column::TestPoint}},
                         {"Connector", {fixture_column::Connector}},
                         {"Connector/Pin", {fixture_column::Connector, fixture_column::Pin}}}};
    default:
        return std::nullopt;
    }
}

std::optional<FindMode> FindModeOf(TableId tableNumber, std::string_view name) {
    if (const auto form = FindFormOf(tableNumber))
        for (const FindMode& mode : form->modes)
            if (vb::TextEqualsNoCase(mode.name, name))
                return mode;
    return std::nullopt;
}

std::optional<CellPosition> FindNextMatch(const Grid& grid, const FindRequest& request,
                                          int afterRow) {
    FindMode mode = request.mode;
    if (mode.columns.empty())
        mode.columns = request.visibleColumns;
    const std::string what = vb::Trim(request.what);
    const std::string pin = vb::Trim(request.pin);
    for (int row = std::max(afterRow, 0) + 1; row <= grid.Rows(); ++row) {
        int column = 0;
        if (rowMatches(grid, row, mode, what, pin, column))
            return CellPosition{row, column};
    }
    return std::nullopt;
}

std::optional<CellPosition> FindNextCell(const Grid& grid, const std::vector<int>& columns,
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
    for (; row <= grid.Rows(); ++row, next = 0)
        for (; next < columns.size(); ++next)
            if (cellHolds(grid, row, columns[next], text))
                return CellPosition{row, columns[next]};
    return std::nullopt;
}

std::optional<CellPosition> SearchPass::FindNext(Ui& ui, const Grid& grid,
                                                 const FindRequest& request, int currentRow) {
    return finish(ui, FindNextMatch(grid, request, fromTop_ ? 0 : currentRow));
}

std::optional<CellPosition> SearchPass::FindNextCell(Ui& ui, const Grid& grid,
                                                     const std::vector<int>& columns,
                                                     std::optional<CellPosition> current,
                                                     std::string_view what) {
    return finish(ui, zolt::FindNextCell(grid, columns, fromTop_ ? std::nullopt : current, what));
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
