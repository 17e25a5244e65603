#pragma once

#include "core/param_keys.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/field_def.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zolt {

struct Project;

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
ColumnSpec TypedColumn(CFieldDef field);
ColumnSpec HiddenColumn();

// A descriptor's column by its number of core/table_columns.h.
struct ColumnAt {
    int column;
    ColumnSpec definition;
};

std::vector<ColumnSpec> ColumnsFromList(std::span<const std::string_view> captions,
                                        std::span<const ColumnAt> columns);

// A table's columns, captioned from its one list of captions: a list of
// another length does not compile, and a column out of its place stops the
// start (std::logic_error).
template <std::size_t N>
std::vector<ColumnSpec> ColumnsOf(const std::array<std::string_view, N>& captions,
                                  const ColumnAt (&columns)[N]) {
    return ColumnsFromList(captions, columns);
}

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

// One entry of the Find dialog's search column list: the columns whose cells
// must hold the texts. No columns means every visible one ("All"); two mean a
// connector and its pin, both of which must match.
struct FindMode {
    std::string name;
    std::vector<int> columns;
};

// The Find dialog of a table window: its caption and column list, "All" first.
struct FindForm {
    std::string caption;
    std::vector<FindMode> modes;
};

// Captions of the Add, Insert and Delete buttons; empty where the window has none.
struct LineButtonCaptions {
    const char* add = "&Add";
    const char* insert = "&Insert";
    const char* remove = "&Delete";
};

// The columns of a kind of table and the buttons of its window; the rest of
// what is known of the kind is its `TableKind`.
struct TableSpec {
    TableId id;
    std::vector<ColumnSpec> columns;
    std::vector<TableButton> buttons = {};
    LineButtonCaptions lineButtons = {};
    std::optional<FindForm> find = {};

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
// switches (MAIN's split, the detail view) count as shown here. The parameters
// are the project's File group, so that a project read as a value answers too.
bool ShownBySettings(const ColumnSpec& column, const Project& project);
bool ShownBySettings(const TableButton& button, const Project& project);

} // namespace zolt
