#pragma once

#include "core/grid.h"
#include "core/table_kinds.h"
#include "tables/table_descriptor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zolt {

class CColorTable;
class DataTable;
struct Project;
class Ui;

// The Find dialog of a table (its descriptor's); nullptr for tables that have none.
const FindForm* FindFormOf(const DataTable& table);
// The mode of that name ("Connector/Pin"), compared without case; nullopt when
// the table offers none of that name.
std::optional<FindMode> FindModeOf(const DataTable& table, std::string_view name);

struct CellPosition {
    int row = 0; // from 1
    int column = 0;
    bool operator==(const CellPosition&) const = default;
};

// The cells a search compares, as a table window shows them: a color column's
// number as its color's name. Holds the grid by reference.
class ShownCells {
public:
    // Cells that show as they are stored; implicit, so that a plain grid is searched as is.
    ShownCells(const Grid& grid) : grid_(grid) {}
    // The colors are those of `project`'s MAIN, the project the table belongs to.
    ShownCells(const DataTable& table, const Project& project);
    int Rows() const { return grid_.Rows(); }
    std::string Text(int row, int column) const;

private:
    const Grid& grid_;
    std::vector<int> colorColumns_;
    const CColorTable* colors_ = nullptr;
};

// The columns a search walks when no window shows the table: its typed columns
// that the settings of `project`, the table's own, show, left to right.
std::vector<int> ShownColumns(const DataTable& table, const Project& project);

// What Find Next looks for.
struct FindRequest {
    FindMode mode;
    std::string what;
    std::string pin; // the second text of a connector/pin mode
    // The columns "All" compares, in the order the window shows them.
    std::vector<int> visibleColumns;
};

// The first row after `afterRow` (0 searches from the first row) whose cells
// match, with the cell the cursor goes to; nullopt when none does. Cells
// compare as the uniqueness checks do: trimmed, to the letter.
std::optional<CellPosition> FindNextMatch(const ShownCells& cells, const FindRequest& request,
                                          int afterRow);
// The first cell after `after` (nullopt: from the first cell) that holds
// `what`, walking the columns from left to right, row after row.
std::optional<CellPosition> FindNextCell(const ShownCells& cells, const std::vector<int>& columns,
                                         std::optional<CellPosition> after, std::string_view what);

// One search through a table, as the find dialogs keep it between clicks: the
// end of the table shows its box (whether anything was found on the way there).
class SearchPass {
public:
    // Find Next of the Find dialog from the cursor's row (0 when on none), also
    // after the end box.
    std::optional<CellPosition> FindNext(Ui& ui, const ShownCells& cells,
                                         const FindRequest& request, int currentRow);
    // Find Next of the Replace dialog from the cursor's cell (nullopt when on
    // none); after the end box from the first cell.
    std::optional<CellPosition> FindNextCell(Ui& ui, const ShownCells& cells,
                                             const std::vector<int>& columns,
                                             std::optional<CellPosition> current,
                                             std::string_view what);
    // What is looked for changed: a new pass, from where the cursor is.
    void Restart() { found_ = false; }

private:
    std::optional<CellPosition> finish(Ui& ui, std::optional<CellPosition> match);

    bool found_ = false;
    bool fromTop_ = false;
};

// The end-of-table box of the find dialogs.
void ShowSearchFinished(Ui& ui, bool foundInPass);

} // namespace zolt
