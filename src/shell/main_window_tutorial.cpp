// The groups tutorial: its example project, its window and the cell it points at.
#include "platform/data_locations.h"
#include "shell/main_window.h"
#include "shell/table_window.h"
#include "shell/tutorial_window.h"
#include "tutorial/groups_tutorial.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace zolt::shell {
namespace {

// The height of a table window's button row, at its bottom edge.
constexpr int kButtonStrip = 48;

} // namespace

void MainWindow::startTutorial() {
    if (tutorial_) {
        tutorial_->raise();
        return;
    }
    const std::string templatePath =
        tutorial::TutorialTemplatePath(settings_, DataDirectory().toStdString());
    bool started = false;
    documentCommand(
        [&] { started = tutorial::OpenTutorialExample(*state_, *document_, templatePath); });
    if (!started)
        return;
    // The group method's tools as the example needs them; the tutorial holds
    // those that would replace the example under it.
    UpdateControls();

    tutorial_ = std::make_unique<TutorialWindow>(*state_, this);
    TutorialWindow* w = tutorial_.get();
    connect(w, &TutorialWindow::FocusRequested, this, &MainWindow::showTutorialFocus);
    connect(w, &TutorialWindow::SaveRequested, this, [this] { ToolClick(Command::Save); });
    connect(w, &TutorialWindow::TablesEdited, this, [this] {
        recordEdit();
        state_->ShowRecordCount(true);
    });
    connect(w, &TutorialWindow::Ended, this, &MainWindow::endTutorial);
    // Bottom right, where the table windows' default places leave the workspace free.
    const QRect area(mdi_->mapToGlobal(QPoint(0, 0)), mdi_->size());
    w->move(area.right() - w->width() - 8, area.bottom() - w->height() - 8);
    w->show();
    // The first step's window came forward before the tutorial was shown.
    showTutorialFocus(w->walk().Check().focus);
}

void MainWindow::showTutorialFocus(const tutorial::StepFocus& focus) {
    if (!state_->document().FileOpen || !state_->project().MainNetlist)
        return;
    showTable(focus.table);
    QMdiSubWindow* w = windows_->WindowOf(focus.table, state_->project().MainNetlist->netlistIndex);
    if (!w)
        return;
    // Keyboard first: the user types on in the cell without reaching for the mouse.
    activateWindow();
    mdi_->setActiveSubWindow(w);
    auto* table = qobject_cast<TableWindow*>(w->widget());
    if (!table && w->widget())
        table = w->widget()->findChild<TableWindow*>();
    if (table)
        table->ShowCell(focus.row, focus.column);
    if (tutorial_)
        keepClearOf(*tutorial_, *w);
}

void MainWindow::keepClearOf(QWidget& floating, const QMdiSubWindow& window) {
    // A window floating above the workspace goes to the corner that hides least
    // of the window it points at.
    const QRect target(window.mapToGlobal(QPoint(0, 0)), window.size());
    const QRect area(mdi_->mapToGlobal(QPoint(0, 0)), mdi_->size());
    const QSize size = floating.frameGeometry().size();
    // Its buttons are what a step asks the user to press: covering them costs most.
    const QRect buttons(target.left(), target.bottom() - kButtonStrip, target.width(),
                        kButtonStrip);
    const auto covered = [](const QRect& r, const QRect& part) {
        const QRect both = r.intersected(part);
        return both.isEmpty() ? 0 : both.width() * both.height();
    };
    const auto hidden = [&](const QRect& r) {
        return covered(r, target) + 10 * covered(r, buttons);
    };
    QRect best = floating.frameGeometry();
    for (const QPoint corner :
         {QPoint(area.right() - size.width() - 8, area.bottom() - size.height() - 8),
          QPoint(area.left() + 8, area.bottom() - size.height() - 8),
          QPoint(area.right() - size.width() - 8, area.top() + 8),
          QPoint(area.left() + 8, area.top() + 8)}) {
        const QRect candidate(corner, size);
        if (hidden(candidate) < hidden(best))
            best = candidate;
    }
    if (best.topLeft() != floating.frameGeometry().topLeft())
        floating.move(best.topLeft());
}

void MainWindow::endTutorial() {
    // Called from the window's own signal: it goes once the signal is over.
    if (tutorial_)
        tutorial_.release()->deleteLater();
    UpdateControls();
}

} // namespace zolt::shell
