// The main window's find and replace dialogs and the copies of a table from
// another tab or file.
#include "file/table_transfer.h"
#include "shell/find_dialog.h"
#include "shell/find_replace_dialog.h"
#include "shell/main_window.h"
#include "shell/tab_pick_dialog.h"
#include "shell/table_window.h"

namespace zolt::shell {

void MainWindow::bindFindCommands() {
    const auto idleTable = [this] {
        return state_->FileOpen && activeTableWindow() && !state_->GridEditing;
    };
    commands_.Bind(
        "ID_Find", [this] { openFind(false); }, idleTable);
    commands_.Bind(
        "ID_Replace", [this] { openFind(true); }, idleTable);
    commands_.Bind(
        "ID_CopyTablefromOtherTab", [this] { copyTable(false); }, idleTable);
    commands_.Bind(
        "ID_CopyTablefromOtherFile", [this] { copyTable(true); }, idleTable);
}

void MainWindow::openFind(bool replace) {
    TableWindow* window = activeTableWindow();
    if (!window)
        return;
    // A table without its own search columns is searched cell by cell.
    if (!replace) {
        if (!find_)
            find_ = new FindDialog(this);
        if (find_->SetTarget(*window)) {
            find_->show();
            find_->raise();
            find_->activateWindow();
            return;
        }
    }
    if (!replace_) {
        replace_ = new FindReplaceDialog(this);
        connect(replace_, &FindReplaceDialog::Edited, this, [this] {
            state_->ShowRecordCount(true);
            recordEdit();
            UpdateControls();
        });
    }
    replace_->SetTarget(*window);
    replace_->show();
    replace_->raise();
    replace_->activateWindow();
}

void MainWindow::copyTable(bool fromFile) {
    TableWindow* window = activeTableWindow();
    DataTable* target = window ? &window->table() : nullptr;
    const QString form =
        fromFile ? QStringLiteral("frmImportDetail") : QStringLiteral("frmCopyDetail");
    const auto pick = [this, form](const file::TabOffer& offer) {
        return PickTab(offer, form, this);
    };
    const bool copied = fromFile ? file::CopyTableFromOtherFile(*state_, target, pick)
                                 : file::CopyTableFromOtherTab(*state_, target, pick);
    if (copied)
        state_->ShowRecordCount(true);
}

} // namespace zolt::shell
