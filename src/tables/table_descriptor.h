#pragma once

#include "core/param_keys.h"
#include "core/table_kinds.h"
#include "tables/field_def.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt {

class CParamList;

// When a table window shows a column.
enum class ColumnShown {
    Always,
    Never,       // bookkeeping: the file's running number, the owning netlist
    ByParameter, // while the parameter `parameter` is not 0
    MainSplit,   // MAIN's side of a split fixture, on the other netlists
    DetailView,  // the sequence's description columns, under ">>"
};

// How a cell of the column is typed: a plain cell, a list to pick from, a
// color with its type-ahead, or the sequence's command with its completion.
enum class CellKind { Plain, List, Color, Command };

// How a stored value shows in the grid; editing always shows it as stored.
enum class CellFormat { AsStored, TwoDecimals };

// One column of a table's row store. Typed columns carry the rules of what
// may be typed into them and always come first.
struct ColumnSpec {
    std::string caption = {};
    std::optional<CFieldDef> field = {};
    ColumnShown shown = ColumnShown::Always;
    std::optional<ParamKey> parameter = {};
    CellKind kind = CellKind::Plain;
    CellFormat format = CellFormat::AsStored;
};

// A typed column, and a bookkeeping column nobody sees.
ColumnSpec TypedColumn(std::string caption, CFieldDef field);
ColumnSpec HiddenColumn(std::string caption);

// What a button of a table window does beyond the three line buttons.
enum class ButtonAction {
    FunctionKey, // the table's F-key `key`
    ShowTable,   // opens the window of table `table`
    Rename,      // the manual netlists' rename of the block under the cursor
    ViewSelect,  // the sequence's "<<"/">>" switch of the description columns
};

// One button of a table window, in the order the window lines them up.
struct TableButton {
    const char* name;
    const char* caption;
    const char* tip;
    ButtonAction action;
    int key = 0;                            // F5 to F8 for FunctionKey
    TableId table = table::Connector;       // for ShowTable
    std::optional<ParamKey> parameter = {}; // when set, shown while that parameter is not 0
};

// Captions of the Add, Insert and Delete buttons; empty where the window has none.
struct LineButtonCaptions {
    const char* add = "&Add";
    const char* insert = "&Insert";
    const char* remove = "&Delete";
};

// Everything about a kind of table that does not change with its rows: its
// place in the program file, its columns and the buttons of its window.
struct TableSpec {
    TableId id;
    int recordType;
    std::vector<ColumnSpec> columns;
    std::vector<TableButton> buttons = {};
    LineButtonCaptions lineButtons = {};

    int ColumnCount() const { return static_cast<int>(columns.size()); }
    // The column `column`; throws std::out_of_range past the last.
    const ColumnSpec& Column(int column) const;
    // The captions in column order, hidden columns included.
    std::vector<std::string> Captions() const;
    // The columns typed with a drop-down of this kind.
    std::vector<int> ColumnsOfKind(CellKind kind) const;
    bool HasColumnShown(ColumnShown shown) const;
};

// Whether the project's settings let a column show: false for bookkeeping
// columns and for parameter columns whose parameter is 0. The window's own
// switches (MAIN's split, the detail view) count as shown here.
bool ShownBySettings(const ColumnSpec& column, CParamList& params);
bool ShownBySettings(const TableButton& button, CParamList& params);

} // namespace zolt
