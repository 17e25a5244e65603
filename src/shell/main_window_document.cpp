// The main window's document commands, undo and redo, and the editing
// commands that act on the active table window.
#include "core/edit_history.h"
#include "core/netlist.h"
#include "core/netlist_operations.h"
#include "core/ports/frame_controls.h"
#include "core/table_kinds.h"
#include "import/pid_command.h"
#include "interchange/drawing_commands.h"
#include "platform/data_locations.h"
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
void MainWindow::documentCommand(const std::function<void()>& command, bool keepWindows) {
    const int generation = document_->Generation();
    const std::vector<TableId> shown = shownTables();
    std::string active =
        state_->project().ActiveNetlist ? state_->project().ActiveNetlist->NetlistName : kMain;
    const bool sequenceShown = state_->session().SequenceVisible;
    command();
    // A command that left the project as it was (a cancelled dialog) keeps its history.
    if (document_->Generation() == generation) {
        frame_->SetTabBarVisible(state_->document().FileOpen);
        return;
    }
    afterDocumentChange();
    if (!state_->document().FileOpen)
        return;
    if (!keepWindows) {
        openStartTables();
        return;
    }
    if (active != kMain && state_->project().FindNetlist(active))
        ActivateNetlist(*state_, active);
    showTables(shown);
    if (sequenceShown)
        setSequenceShown(true);
}

void MainWindow::importPid() {
    const std::string dataDirectory = DataDirectory().toStdString();
    const import::ImportContext context{clock_, dataDirectory, state_->document().CurrentFile};
    if (import::ImportPidCommand(*state_, context) == Answer::Cancel)
        return;
    // The program was replaced, imported or empty: tabs, windows and history start again on MAIN.
    afterDocumentChange();
    std::string main = kMain;
    ActivateNetlist(*state_, main);
    openStartTables();
    UpdateControls();
}

void MainWindow::importDrawing() {
    // The new netlist is one step of the history, as any edit; its tab shows
    // what came in, as a program opened does.
    if (interchange::ImportDrawingCommand(*state_) == Answer::Yes) {
        recordEdit();
        openStartTables();
    }
    UpdateControls();
}

void MainWindow::OpenFromCommandLine(const QString& path) {
    documentCommand([&] { document_->OpenFromCommandLine(path.toStdString()); });
    UpdateControls();
}

void MainWindow::afterDocumentChange() {
    // A project opened, closed or read back after Save As starts its history anew.
    history().Reset();
    frame_->SetTabBarVisible(state_->document().FileOpen);
    closeViews();
}

void MainWindow::recordEdit() {
    if (state_->document().FileOpen && !state_->session().GridEditing)
        history().Record();
}

void MainWindow::stepHistory(bool undo) {
    // Open windows follow the rows the step changes by themselves.
    if (state_->session().GridEditing)
        return;
    const auto place = undo ? history().UndoPlace() : history().RedoPlace();
    const bool bringsNetlistBack =
        place && !place->netlist.empty() && !state_->project().FindNetlist(place->netlist);
    undo ? history().Undo() : history().Redo();
    if (bringsNetlistBack) {
        // An import redone: its tab shows its tables as the import did.
        std::string name = place->netlist;
        ActivateNetlist(*state_, name);
        openStartTables();
    }
    if (place)
        showEditPlace(*place);
    state_->ShowRecordCount(true);
}

void MainWindow::showEditPlace(const EditPlace& place) {
    // A step on a tab or table out of sight would change nothing the user sees.
    ProgramState& state = *state_;
    if (!place.netlist.empty()) {
        // A step that took its netlist away (an import undone) left no rows to show.
        if (!state.project().FindNetlist(place.netlist))
            return;
        if (!vb::TextEqualsNoCase(place.netlist, state.project().ActiveNetlist->NetlistName)) {
            std::string name = place.netlist;
            ActivateNetlist(state, name);
        }
    }
    showTable(place.table);
    const bool own = KindOf(place.table).scope != TableScope::Project;
    const CNetList& owner = own ? *state.project().ActiveNetlist : *state.project().MainNetlist;
    QMdiSubWindow* frame = windows_->WindowOf(place.table, owner.netlistIndex);
    if (!frame)
        return;
    mdi_->setActiveSubWindow(frame);
    auto* window = qobject_cast<TableWindow*>(frame->widget());
    if (!window)
        window = frame->widget()->findChild<TableWindow*>();
    if (window && place.firstRow > 0)
        window->SelectRows(place.firstRow, place.lastRow);
}

TableWindow* MainWindow::activeTableWindow() const {
    QMdiSubWindow* active = mdi_->activeSubWindow();
    if (!active)
        return nullptr;
    if (auto* window = qobject_cast<TableWindow*>(active->widget()))
        return window;
    return active->widget()->findChild<TableWindow*>();
}

TableWindow* MainWindow::editingTableWindow() const {
    for (TableWindow* window : mdi_->findChildren<TableWindow*>())
        if (window->IsTyping())
            return window;
    return nullptr;
}

void MainWindow::clipboardCommand(bool cut) {
    TableWindow* window = activeTableWindow();
    const std::string lines = window ? window->CopySelection(cut) : std::string();
    if (!lines.empty())
        QApplication::clipboard()->setText(QString::fromStdString(lines));
}

} // namespace zolt::shell
