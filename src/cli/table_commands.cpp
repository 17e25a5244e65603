#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/script_words.h"
#include "cli/sequence_values.h"
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "interchange/csv.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"
#include "tables/table_editor.h"

#include <fstream>
#include <ostream>

namespace zolt::cli {
using Args = BatchSession::Args;

DataTable& TableArg(BatchSession& s, const std::string& name) {
    ProgramState& state = s.RequireProject();
    const auto found = TableIndexOf(name);
    if (!found)
        throw CommandError("unknown table '" + name + "'");
    const TableId number = *found;
    // Tables that exist once per project are MAIN's; the code table is the manual netlist's.
    CNetList* netlist = state.project().ActiveNetlist && IsNetlistTable(number)
                            ? state.project().ActiveNetlist
                            : state.project().MainNetlist;
    if (number == table::Code) {
        netlist = state.project().FindNetlist(kManualNetlists);
        if (!netlist)
            throw CommandError(
                "the code table belongs to the netlist MANUAL NETLISTS; there is none");
    }
    auto* t = netlist->TableAs<DataTable>(number);
    if (!t)
        throw CommandError("table '" + name + "' cannot be edited here");
    return *t;
}

namespace {

std::vector<int> RowArgs(const Args& args, std::size_t first) {
    std::vector<int> rows;
    for (std::size_t i = first; i < args.size(); ++i)
        rows.push_back(ParseInt(args[i], "ROW"));
    return rows;
}

void PrintCode(BatchSession& s, ErrorCode code) {
    s.out() << "CODE " << ErrorNumber(code) << '\n';
}

void PrintRows(BatchSession& s, const DataTable& t) {
    s.out() << "ROWS " << t.gridarray().Rows() << '\n';
}

void row(BatchSession& s, const Args& args) {
    const std::string usage =
        "row add TABLE V... | row insert TABLE ROW V... | row delete TABLE ROW...";
    if (args.size() < 2)
        throw CommandError("usage: " + usage);
    DataTable& t = TableArg(s, args[1]);
    TableEditor editor(t);
    if (args[0] == "add") {
        PrintCode(s, editor.AddRow(NewRowValues(t, Args(args.begin() + 2, args.end()))));
    } else if (args[0] == "insert") {
        RequireArgs(args, 3, 1000, "row insert TABLE ROW V...");
        PrintCode(s, editor.InsertRow(ParseInt(args[2], "ROW"),
                                      NewRowValues(t, Args(args.begin() + 3, args.end()))));
    } else if (args[0] == "delete") {
        const auto rows = RowArgs(args, 2);
        if (rows.size() == 1)
            editor.DeleteCurrent(rows[0]);
        else
            editor.DeleteSelected(rows);
        PrintRows(s, t);
    } else {
        throw CommandError("usage: " + usage);
    }
}

void cell(BatchSession& s, const Args& args) {
    RequireArgs(args, 4, 1000, "cell TABLE ROW COL VALUE...");
    DataTable& t = TableArg(s, args[0]);
    const int rowNumber = ParseInt(args[1], "ROW");
    const int column = ParseInt(args[2], "COL");
    PrintCode(s, TableEditor(t).EditCells(
                     rowNumber, column,
                     TypedValues(t, rowNumber, column, Args(args.begin() + 3, args.end()))));
}

void copy(BatchSession& s, const Args& args) {
    RequireArgs(args, 2, 100000, "copy TABLE ROW...");
    TableEditor(TableArg(s, args[0])).CopyLines(RowArgs(args, 1));
    s.out() << "CLIPBOARD " << Quoted(JoinCopyData(s.state().session().CopyData)) << '\n';
}

void cut(BatchSession& s, const Args& args) {
    RequireArgs(args, 2, 100000, "cut TABLE ROW...");
    DataTable& t = TableArg(s, args[0]);
    TableEditor(t).CutLines(RowArgs(args, 1));
    s.out() << "CLIPBOARD " << Quoted(JoinCopyData(s.state().session().CopyData)) << '\n';
    PrintRows(s, t);
}

void PrintPaste(BatchSession& s, const DataTable& t, const PasteResult& r) {
    switch (r.outcome) {
    case PasteResult::Outcome::Pasted:
        s.out() << "PASTED " << r.rows << '\n';
        PrintCode(s, code::None);
        break;
    case PasteResult::Outcome::Stopped:
        s.out() << "PASTED " << r.rows << '\n';
        s.out() << "STOPPED ROW " << r.failedRow << " COLUMN " << r.failedColumn << '\n';
        PrintCode(s, r.code);
        break;
    case PasteResult::Outcome::WrongTable:
        s.out() << "PASTED 0\n";
        break;
    case PasteResult::Outcome::NotCopyData:
        s.out() << "NOT COPIED LINES\n";
        break;
    }
    PrintRows(s, t);
}

void paste(BatchSession& s, const Args& args) {
    RequireArgs(args, 1, 2, "paste TABLE [ROW]");
    DataTable& t = TableArg(s, args[0]);
    std::optional<int> at;
    if (args.size() == 2)
        at = ParseInt(args[1], "ROW");
    PrintPaste(s, t, TableEditor(t).Paste(JoinCopyData(s.state().session().CopyData), at));
}

void clear(BatchSession& s, const Args& args) {
    RequireArgs(args, 1, 1, "clear TABLE");
    DataTable& t = TableArg(s, args[0]);
    TableEditor(t).ClearTable();
    PrintRows(s, t);
}

void keyCommand(BatchSession& s, const Args& args) {
    RequireArgs(args, 3, 1000, "key TABLE ROW F5|F6|F7|F8 [V...]");
    DataTable& t = TableArg(s, args[0]);
    const std::string& name = args[2];
    int key = 0;
    if (name.size() == 2 && (name[0] == 'F' || name[0] == 'f') && name[1] >= '5' && name[1] <= '8')
        key = name[1] - '0';
    else
        throw CommandError("KEY must be F5, F6, F7 or F8");
    const auto result =
        TableEditor(t).PressKey(key, ParseInt(args[1], "ROW"), Args(args.begin() + 3, args.end()));
    if (!result)
        s.out() << "NO KEY\n";
    else
        PrintCode(s, *result);
}

void rows(BatchSession& s, const Args& args) {
    RequireArgs(args, 1, 1, "rows TABLE");
    const DataTable& t = TableArg(s, args[0]);
    for (int r = 1; r <= t.gridarray().Rows(); ++r) {
        s.out() << "ROW " << r;
        for (const std::string& text : t.RowTexts(r))
            s.out() << ' ' << Quoted(text);
        s.out() << '\n';
    }
    PrintRows(s, t);
}

void exportCsv(BatchSession& s, const Args& args) {
    RequireArgs(args, 2, 2, "export-csv TABLE PATH");
    const DataTable& t = TableArg(s, args[0]);
    std::ofstream out(args[1], std::ios::binary);
    if (!out)
        throw CommandError("cannot write '" + args[1] + "'");
    for (int r = 1; r <= t.gridarray().Rows(); ++r)
        interchange::WriteCsvRow(out, t.RowTexts(r));
    s.out() << "EXPORTED " << t.gridarray().Rows() << '\n';
}

void importCsv(BatchSession& s, const Args& args) {
    RequireArgs(args, 2, 2, "import-csv TABLE PATH");
    DataTable& t = TableArg(s, args[0]);
    std::ifstream in(args[1], std::ios::binary);
    if (!in)
        throw CommandError("cannot read '" + args[1] + "'");
    std::vector<std::vector<std::string>> rows;
    if (!interchange::ReadCsv(in, rows))
        throw CommandError("'" + args[1] + "' ends inside a quoted cell");
    // The rows go the way of copied lines: one clipboard text, pasted after the last row.
    std::vector<std::string> data{"$CopyData", std::to_string(ToInt(t.tableIndex())), ""};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        auto cells = rows[i];
        cells.resize(static_cast<std::size_t>(t.FieldCount()));
        for (auto& c : cells) {
            if (c.find('~') != std::string::npos)
                throw CommandError("row " + std::to_string(i + 1) +
                                   " holds a '~', which no cell may hold");
            data.push_back(vb::Trim(c));
        }
    }
    data[2] = std::to_string(data.size() - 3);
    const int before = t.gridarray().Rows();
    const PasteResult r = TableEditor(t).Paste(JoinCopyData(data), std::nullopt);
    s.out() << "IMPORTED " << r.rows << '\n';
    if (r.outcome == PasteResult::Outcome::Stopped) {
        s.out() << "STOPPED LINE " << (r.failedRow - before) << " ROW " << r.failedRow << '\n';
        PrintCode(s, r.code);
        s.out() << "MESSAGE " << Quoted(ErrorText(r.code, t.FieldDef(r.failedColumn + 1))) << '\n';
    } else {
        PrintCode(s, code::None);
    }
}

} // namespace

void RegisterTableCommands(BatchSession& session) {
    session.Register("row", row);
    session.Register("cell", cell);
    session.Register("copy", copy);
    session.Register("cut", cut);
    session.Register("paste", paste);
    session.Register("clear", clear);
    session.Register("key", keyCommand);
    session.Register("rows", rows);
    session.Register("export-csv", exportCsv);
    session.Register("import-csv", importCsv);
}

} // namespace zolt::cli
