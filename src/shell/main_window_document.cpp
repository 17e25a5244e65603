// The main window's document commands, undo and redo, and the editing
// commands that act on the active table window.
#include "core/ports/frame_controls.h"
#include "shell/main_window.h"
#include "shell/table_model.h"
#include "shell/table_window.h"

#include <QApplication>
#include <QClipboard>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>
#include <utility>
#include <vector>

namespace zolt::shell {
namespace {

bool is(const QString& id, const char* name) {
    return id == QLatin1String(name);
}

} // namespace

bool MainWindow::routeDocumentCommand(const QString& id) {
    const int generation = document_->Generation();
    if (is(id, "ID_New"))
        document_->New();
    else if (is(id, "ID_Open"))
        document_->Open();
    else if (is(id, "ID_Save")) {
        // The history stays: only the state that counts as clean moves.
        document_->Save();
        if (!state_->IsDirty())
            history_->MarkSaved();
        return true;
    } else if (is(id, "ID_SaveAs"))
        document_->SaveAs();
    else if (is(id, "ID_SaveAsTemplate"))
        document_->SaveAsTemplate();
    else if (is(id, "ID_Close"))
        document_->Close();
    else if (is(id, "ID_Undo") || is(id, "ID_Redo")) {
        stepHistory(is(id, "ID_Undo"));
        return true;
    } else
        return false;
    // A command that left the project as it was (a cancelled dialog) keeps its history.
    if (document_->Generation() != generation)
        afterDocumentChange();
    else
        frame_->SetTabBarVisible(state_->FileOpen);
    return true;
}

void MainWindow::OpenFromCommandLine(const QString& path) {
    document_->OpenFromCommandLine(path.toStdString());
    afterDocumentChange();
    UpdateControls();
}

void MainWindow::afterDocumentChange() {
    // A project opened, closed or read back after Save As starts its history anew.
    history_->Reset();
    frame_->SetTabBarVisible(state_->FileOpen);
}

void MainWindow::recordEdit() {
    if (state_->FileOpen && !state_->GridEditing)
        history_->Record();
}

void MainWindow::stepHistory(bool undo) {
    if (state_->GridEditing)
        return;
    // Table windows show rows that the step replaces: note which were open,
    // let them go with the old rows, and open them again over the new ones.
    std::vector<std::pair<int, std::string>> open;
    for (const WindowInfo& w : windows_->Windows())
        if (w.visible && w.tableIndex > 0)
            if (const CNetList* n = state_->NetlistByIndex(w.netlistIndex))
                open.emplace_back(w.tableIndex, n->NetlistName);
    if (undo ? history_->Undo() : history_->Redo()) {
        for (const auto& [table, name] : open)
            if (const CNetList* n = state_->FindNetlist(name))
                windows_->ShowTable(table, n->netlistIndex);
    }
    frame_->SetTabBarVisible(state_->FileOpen);
}

TableWindow* MainWindow::activeTableWindow() const {
    QMdiSubWindow* active = mdi_->activeSubWindow();
    if (!active)
        return nullptr;
    if (auto* window = qobject_cast<TableWindow*>(active->widget()))
        return window;
    return active->widget()->findChild<TableWindow*>();
}

bool MainWindow::routeEditCommand(const QString& id) {
    TableWindow* window = activeTableWindow();
    const bool lineCommand = is(id, "ID_AddLine") || is(id, "ID_InsertLine") ||
                             is(id, "ID_DeleteLine") || is(id, "ID_AbortEdit") ||
                             is(id, "ID_ClearTable") || is(id, "ID_Cut") || is(id, "ID_Copy") ||
                             is(id, "ID_Paste");
    if (!lineCommand)
        return false;
    if (!window)
        return true;
    if (is(id, "ID_AddLine"))
        window->AddLine();
    else if (is(id, "ID_InsertLine"))
        window->InsertLine();
    else if (is(id, "ID_DeleteLine"))
        window->DeleteLine();
    else if (is(id, "ID_AbortEdit"))
        window->AbortEdit();
    else if (is(id, "ID_ClearTable"))
        window->ClearTable();
    else if (is(id, "ID_Cut") || is(id, "ID_Copy")) {
        const std::string lines = window->CopySelection(is(id, "ID_Cut"));
        if (!lines.empty())
            QApplication::clipboard()->setText(QString::fromStdString(lines));
    } else if (is(id, "ID_Paste")) {
        const QString text = QApplication::clipboard()->text();
        if (text.startsWith(QLatin1String("$CopyData")))
            window->Paste(text.toStdString());
        else
            window->PasteText(text);
    }
    return true;
}

void MainWindow::enableEditTools() {
    const bool open = state_->FileOpen;
    const bool table = open && activeTableWindow() != nullptr;
    for (const char* id : {"ID_AddLine", "ID_InsertLine", "ID_DeleteLine", "ID_ClearTable",
                           "ID_Cut", "ID_Copy", "ID_Paste"})
        frame_->EnableCommand(id, table && !state_->GridEditing);
    frame_->EnableCommand("ID_AbortEdit", table && state_->GridEditing);
    frame_->EnableCommand("ID_Undo", open && history_->CanUndo() && !state_->GridEditing);
    frame_->EnableCommand("ID_Redo", open && history_->CanRedo() && !state_->GridEditing);
    for (const char* id : {"ID_Close", "ID_SaveAs", "ID_SaveAsTemplate"})
        frame_->EnableCommand(id, open);
    frame_->EnableCommand(cmd::Save, open && state_->IsDirty());
}

} // namespace zolt::shell
