// The main window's find and replace dialogs and the copies of a table from
// another tab or file.
#include "file/table_transfer.h"
#include "shell/find_dialog.h"
#include "shell/find_replace_dialog.h"
#include "shell/main_window.h"
#include "shell/tab_pick_dialog.h"
#include "shell/table_window.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

namespace zolt::shell {
namespace {

// Shows a find dialog beside the table window it searches, where the screen
// has room, so that it does not cover the rows it finds.
void showBeside(QDialog& dialog, QWidget* window) {
    if (!dialog.isVisible() && window) {
        dialog.adjustSize();
        const QPoint at = window->mapToGlobal(QPoint(window->width() + 8, 0));
        const QScreen* screen = QGuiApplication::screenAt(at);
        if (screen &&
            screen->availableGeometry().contains(QRect(at, dialog.frameGeometry().size())))
            dialog.move(at);
    }
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace

void MainWindow::bindFindCommands() {
    const auto idleTable = [this] {
        return state_->document().FileOpen && activeTableWindow() && !state_->session().GridEditing;
    };
    commands_.Bind(
        Command::Find, [this] { openFind(false); }, idleTable);
    commands_.Bind(
        Command::Replace, [this] { openFind(true); }, idleTable);
    commands_.Bind(
        Command::CopyTablefromOtherTab, [this] { copyTable(false); }, idleTable);
    commands_.Bind(
        Command::CopyTablefromOtherFile, [this] { copyTable(true); }, idleTable);
}

void MainWindow::openFind(bool replace) {
    TableWindow* window = activeTableWindow();
    if (!window)
        return;
    QWidget* frame = mdi_->activeSubWindow();
    // A table without its own search columns is searched cell by cell.
    if (!replace) {
        if (!find_)
            find_ = new FindDialog(this);
        if (find_->SetTarget(*window)) {
            if (replace_)
                replace_->hide();
            showBeside(*find_, frame);
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
    if (find_) {
        if (!find_->SearchText().isEmpty())
            replace_->SetSearchText(find_->SearchText());
        find_->hide();
    }
    showBeside(*replace_, frame);
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
