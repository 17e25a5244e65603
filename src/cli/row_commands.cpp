#include "cli/batch_session.h"
#include "cli/commands.h"
#include "core/table_kinds.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/sequence_table.h"
#include "sequence/sequence_typing.h"
#include "tables/table_editor.h"

#include <ostream>

namespace zolt::cli {
namespace {

// A table of the active netlist by its name; the project-wide ones from MAIN.
DataTable& EditableTable(BatchSession& s, const std::string& name) {
    ProgramState& state = s.RequireProject();
    const int number = TableNumberOf(name);
    if (number == 0)
        throw CommandError("no table named '" + name + "'");
    CNetList* netlist = IsNetlistTable(number) ? state.ActiveNetlist : state.MainNetlist;
    auto* table = netlist ? dynamic_cast<DataTable*>(netlist->GetTable(number)) : nullptr;
    if (!table)
        throw CommandError("the " + name + " table can not be edited");
    return *table;
}

// Typed values of a sequence line go through the line's own typing: the command
// completes from the dictionary, numeric parameters keep their digits.
std::vector<std::string> Typed(DataTable& table, int row, int firstColumn,
                               std::vector<std::string> values) {
    auto* sequence = dynamic_cast<CSequenceTable*>(&table);
    if (!sequence)
        return values;
    const Grid& grid = sequence->gridarray();
    std::string command = vb::Trim(grid.Text(row, sequence_column::Command));
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int column = firstColumn + static_cast<int>(i);
        const std::string previous = vb::Trim(grid.Text(row, column));
        values[i] = TypeSequenceCell(*sequence, column, command, previous, values[i]);
        if (column == sequence_column::Command)
            command = values[i];
    }
    return values;
}

// The sequence's line number is the program's: what is typed starts at the command.
std::vector<std::string> NewRowValues(DataTable& table, const BatchSession::Args& args,
                                      std::size_t first) {
    std::vector<std::string> values(args.begin() + static_cast<std::ptrdiff_t>(first), args.end());
    if (table.TableIndex() != table::Sequence)
        return values;
    values = Typed(table, 0, sequence_column::Command, values);
    values.insert(values.begin(), std::string());
    return values;
}

void result(BatchSession& s, int code) {
    s.out() << "RESULT " << code << '\n';
}

void row(BatchSession& s, const BatchSession::Args& args) {
    const std::string usage =
        "row add TABLE VALUE... | row insert TABLE ROW VALUE... | row delete TABLE ROW";
    RequireArgs(args, 2, 64, usage);
    DataTable& table = EditableTable(s, args[1]);
    TableEditor editor(table);
    if (args[0] == "add") {
        result(s, editor.AddRow(NewRowValues(table, args, 2)));
    } else if (args[0] == "insert") {
        RequireArgs(args, 3, 64, "row insert TABLE ROW VALUE...");
        result(s, editor.InsertRow(ParseInt(args[2], "ROW"), NewRowValues(table, args, 3)));
    } else if (args[0] == "delete") {
        RequireArgs(args, 3, 3, "row delete TABLE ROW");
        const bool deleted = editor.DeleteCurrent(ParseInt(args[2], "ROW"));
        s.out() << "DELETED " << (deleted ? "yes" : "no") << '\n';
    } else {
        throw CommandError("usage: " + usage);
    }
}

void cell(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 4, 64, "cell TABLE ROW COLUMN VALUE...");
    DataTable& table = EditableTable(s, args[0]);
    const int rowNumber = ParseInt(args[1], "ROW");
    const int column = ParseInt(args[2], "COLUMN");
    std::vector<std::string> values(args.begin() + 3, args.end());
    if (table.gridarray().Contains(rowNumber, 0))
        values = Typed(table, rowNumber, column, values);
    result(s, TableEditor(table).EditCells(rowNumber, column, values));
}

} // namespace

void RegisterRowCommands(BatchSession& session) {
    session.Register("row", row);
    session.Register("cell", cell);
}

} // namespace zolt::cli
