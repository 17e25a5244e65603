// Find, replace and the copies of a table from another tab or file, as the
// desktop's dialogs do them.
#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/script_words.h"
#include "core/program_state.h"
#include "file/table_transfer.h"
#include "tables/data_table.h"
#include "tables/table_editor.h"
#include "tables/table_find.h"

#include <memory>
#include <ostream>

namespace zolt::cli {
namespace {

using Args = BatchSession::Args;

// Find Next of one Find dialog: the next `find` with the same table and texts
// goes on from the row the last one found.
struct FindDialogState {
    const DataTable* table = nullptr;
    std::vector<std::string> texts;
    int currentRow = 0;
    SearchPass pass;
};

void find(FindDialogState& dialog, BatchSession& s, const Args& args) {
    RequireArgs(args, 3, 4, "find TABLE MODE TEXT [PIN]");
    const DataTable& t = TableArg(s, args[0]);
    const FindForm* form = FindFormOf(t);
    if (!form)
        throw CommandError("the " + GetTableName(t.tableIndex()) + " table has no Find dialog");
    const auto mode = FindModeOf(t, args[1]);
    if (!mode) {
        std::string names;
        for (const FindMode& m : form->modes)
            names += (names.empty() ? "" : ", ") + m.name;
        throw CommandError("MODE must be one of " + names);
    }
    if (mode->columns.size() == 2 && args.size() != 4)
        throw CommandError("mode " + mode->name + " needs TEXT and PIN");
    const std::vector<std::string> texts(args.begin() + 1, args.end());
    if (dialog.table != &t || dialog.texts != texts)
        dialog = FindDialogState{&t, texts, 0, {}};
    const FindRequest request{*mode, args[2], args.size() == 4 ? args[3] : std::string(),
                              ShownColumns(t, s.state().project())};
    const auto match = dialog.pass.FindNext(s.ui(), ShownCells(t, s.state().project()), request,
                                            dialog.currentRow);
    if (match) {
        dialog.currentRow = match->row;
        s.out() << "FOUND ROW " << match->row << " COLUMN " << match->column << '\n';
    } else {
        s.out() << "END\n";
    }
}

// Find Next and Replace of the Replace dialog, cell after cell to the end of the table.
void replace(BatchSession& s, const Args& args) {
    RequireArgs(args, 3, 3, "replace TABLE FIND REPLACE");
    DataTable& t = TableArg(s, args[0]);
    if (args[2].empty())
        throw CommandError("REPLACE must not be empty (Replace does nothing then)");
    const Project& project = s.state().project();
    const std::vector<int> columns = ShownColumns(t, project);
    SearchPass pass;
    std::optional<CellPosition> at;
    while ((at = pass.FindNextCell(s.ui(), ShownCells(t, project), columns, at, args[1]))) {
        // A refused cell keeps its text; the walk goes on all the same.
        const ErrorCode code = TableEditor(t).EditCell(at->row, at->column, args[2]);
        s.out() << "REPLACED ROW " << at->row << " COLUMN " << at->column << " CODE "
                << ErrorNumber(code) << '\n';
    }
}

// The copy dialog answered with `name`: a name it does not list is refused
// unless no netlist has it (OK then reports it missing, as the dialog would).
file::TabPicker PickerFor(BatchSession& s, const std::string& name) {
    return [&s, name](const file::TabOffer& offer) -> std::optional<std::string> {
        s.out() << "TABS";
        for (const std::string& tab : offer.tabs)
            s.out() << ' ' << Quoted(tab);
        s.out() << '\n';
        for (const std::string& tab : offer.tabs)
            if (vb::UCase(tab) == vb::UCase(vb::Trim(name)))
                return tab;
        if (s.state().project().FindNetlist(vb::UCase(vb::Trim(name))))
            throw CommandError("'" + name + "' is not offered");
        return name;
    };
}

void printCopy(BatchSession& s, const DataTable& t, bool copied) {
    s.out() << (copied ? "COPIED" : "NOT COPIED") << '\n';
    s.out() << "ROWS " << t.gridarray().Rows() << '\n';
}

void copyTab(BatchSession& s, const Args& args) {
    RequireArgs(args, 2, 2, "copy-tab TABLE FROM-NETLIST");
    DataTable& t = TableArg(s, args[0]);
    printCopy(s, t, file::CopyTableFromOtherTab(s.state(), &t, PickerFor(s, args[1])));
}

void copyFile(BatchSession& s, const Args& args) {
    RequireArgs(args, 3, 3, "copy-file TABLE FILE NETLIST");
    DataTable& t = TableArg(s, args[0]);
    // The file dialog takes FILE.
    s.ui().QueueFirst(ScriptedUi::TextAnswer{args[1]});
    printCopy(s, t, file::CopyTableFromOtherFile(s.state(), &t, PickerFor(s, args[2])));
}

} // namespace

void RegisterTransferCommands(BatchSession& session) {
    session.Register("find", [dialog = std::make_shared<FindDialogState>()](
                                 BatchSession& s, const Args& args) { find(*dialog, s, args); });
    session.Register("replace", replace);
    session.Register("copy-tab", copyTab);
    session.Register("copy-file", copyFile);
}

} // namespace zolt::cli
