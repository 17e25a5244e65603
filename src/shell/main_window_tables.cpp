// The main window's side of the table windows: what each window is made of,
// and the sequence window's commands.
#include "core/table_kinds.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"
#include "shell/main_window.h"
#include "shell/sequence_window.h"
#include "shell/table_model.h"
#include "shell/table_window.h"

#include <QAction>
#include <QMdiSubWindow>
#include <QTableView>

namespace zolt::shell {

QWidget* MainWindow::makeTableContent(DataTable& table) {
    TableWindow* window = nullptr;
    QWidget* content = nullptr;
    if (auto* sequence = dynamic_cast<CSequenceTable*>(&table)) {
        const auto* dictionary =
            state_->project().MainNetlist
                ? state_->project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList)
                : nullptr;
        auto* frame = new SequenceWindow(*sequence, dictionary);
        window = &frame->table();
        content = frame;
        window->SetDetailView(Action(Command::Descriptions)->isChecked());
        connect(window, &TableWindow::DetailViewChanged, this, [this](bool on) {
            Action(Command::Descriptions)->setChecked(on);
            if (QMdiSubWindow* w = windows_->WindowOf(table::Sequence, 0))
                w->resize(w->widget()->sizeHint());
        });
    } else {
        window = new TableWindow(table);
        content = window;
    }
    connect(window, &TableWindow::RecordsChanged, this, [this] {
        state_->ShowRecordCount(true);
        recordEdit();
        UpdateControls();
    });
    // Save stays within reach of Ctrl+S while a row is typed into a clean project.
    connect(&window->model(), &TableModel::EditingChanged, this, [this] { refreshCommands(); });
    connect(window, &TableWindow::SaveRequested, this, [this] { ToolClick(Command::Save); });
    connect(window, &TableWindow::ShowTableRequested, this, [this](TableId number) {
        showTable(number);
        UpdateControls();
    });
    return content;
}

SequenceWindow* MainWindow::sequenceWindow() const {
    const QMdiSubWindow* w =
        state_->project().MainNetlist
            ? windows_->WindowOf(table::Sequence, state_->project().MainNetlist->netlistIndex)
            : nullptr;
    return w ? qobject_cast<SequenceWindow*>(w->widget()) : nullptr;
}

void MainWindow::setSequenceShown(bool shown) {
    if (!state_->project().MainNetlist)
        return;
    const int main = state_->project().MainNetlist->netlistIndex;
    if (shown) {
        windows_->ShowTable(table::Sequence, main);
        // Typing goes into the sequence, not into the instruction list beside it.
        if (SequenceWindow* w = sequenceWindow())
            w->table().grid().setFocus();
    } else if (QMdiSubWindow* w = windows_->WindowOf(table::Sequence, main))
        w->hide();
    state_->session().SequenceVisible = shown;
    QAction* sequence = Action(Command::Sequence);
    sequence->setChecked(shown);
    sequence->setToolTip(shown ? tr("Hide Sequence") : tr("Show Sequence"));
}

void MainWindow::toggleDescriptions() {
    QAction* action = Action(Command::Descriptions);
    // The descriptions stay as they are while a command is being picked from the list.
    if (state_->session().SequenceSelecting) {
        action->setChecked(!action->isChecked());
        return;
    }
    if (SequenceWindow* w = sequenceWindow())
        w->table().SetDetailView(action->isChecked());
}

} // namespace zolt::shell
