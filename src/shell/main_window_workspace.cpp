// The main window's workspace: which tables show, the tables a program opens
// with, the hint over an empty workspace and the Window menu's list of windows.
#include "core/table_kinds.h"
#include "shell/main_window.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

const char* const kWindowListEntry = "zoltWindowListEntry";

} // namespace

std::vector<TableId> MainWindow::shownTables() const {
    std::vector<TableId> shown;
    for (const WindowInfo& w : windows_->Windows())
        if (w.visible && w.tableIndex && *w.tableIndex != table::Sequence)
            shown.push_back(*w.tableIndex);
    return shown;
}

void MainWindow::showTables(const std::vector<TableId>& tables) {
    for (const TableId t : tables)
        showTable(t);
    UpdateControls();
}

void MainWindow::openStartTables() {
    if (!state_->document().FileOpen || !state_->project().ActiveNetlist || !shownTables().empty())
        return;
    if (groupMethod())
        showTables({table::Connector, table::Groups});
    else
        showTables({table::Connector, table::Wire, table::Pin});
    // Places made for a larger screen would pile the first windows on each other.
    const auto shown = mdi_->subWindowList();
    for (const QMdiSubWindow* a : shown)
        for (const QMdiSubWindow* b : shown)
            if (a != b && a->isVisible() && b->isVisible() &&
                a->geometry().intersects(b->geometry())) {
                Arrange(*mdi_, Arrangement::TileVertically);
                return;
            }
}

void MainWindow::buildWorkspaceAids() {
    hint_ = new QLabel(mdi_->viewport());
    hint_->setObjectName(QStringLiteral("WorkspaceHint"));
    hint_->setAlignment(Qt::AlignCenter);
    // Its lines are broken where they read well; the label is as wide as the longest.
    hint_->setWordWrap(false);
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint_->setForegroundRole(QPalette::Light);
    auto* layout = new QVBoxLayout(mdi_->viewport());
    layout->addWidget(hint_, 0, Qt::AlignCenter);
    hint_->lower();

    auto* windowMenu = menuBar()->findChild<QMenu*>(QStringLiteral("ID_mnuWindow"));
    if (windowMenu)
        connect(windowMenu, &QMenu::aboutToShow, this,
                [this, windowMenu] { listWindows(*windowMenu); });
}

void MainWindow::updateWorkspaceHint() {
    bool anyShown = false;
    for (const QMdiSubWindow* w : mdi_->subWindowList())
        anyShown = anyShown || !w->isHidden();
    if (!state_->document().FileOpen)
        hint_->setText(tr("Open a program with File > Open (Ctrl+O),\n"
                          "or start one with File > New (Ctrl+N)."));
    else
        hint_->setText(
            tr("No table is open.\nOpen one from the Netlist Tables menu or the netlist toolbar."));
    hint_->setVisible(!anyShown);
    if (!anyShown) {
        // The area measures its scroll range only when resized: hidden windows leave none.
        QResizeEvent resize(mdi_->viewport()->size(), mdi_->viewport()->size());
        QCoreApplication::sendEvent(mdi_->viewport(), &resize);
    }
}

void MainWindow::activateTopWindow() {
    const QMdiSubWindow* active = mdi_->activeSubWindow();
    if (active && !active->isHidden())
        return;
    const auto stack = mdi_->subWindowList(QMdiArea::StackingOrder);
    for (auto it = stack.rbegin(); it != stack.rend(); ++it)
        if (!(*it)->isHidden()) {
            mdi_->setActiveSubWindow(*it);
            return;
        }
}

void MainWindow::listWindows(QMenu& menu) {
    // Entries live only while the menu is open: they are made anew each time it opens.
    for (QAction* a : menu.actions())
        if (a->property(kWindowListEntry).toBool()) {
            menu.removeAction(a);
            a->deleteLater();
        }
    std::vector<QMdiSubWindow*> shown;
    for (QMdiSubWindow* w : mdi_->subWindowList())
        if (!w->isHidden())
            shown.push_back(w);
    if (shown.empty())
        return;
    QAction* separator = menu.addSeparator();
    separator->setProperty(kWindowListEntry, true);
    int number = 0;
    for (QMdiSubWindow* w : shown) {
        ++number;
        const QString caption = number < 10 ? QStringLiteral("&%1 %2").arg(number)
                                            : QStringLiteral("%1 %2").arg(number);
        QAction* entry = menu.addAction(caption.arg(w->windowTitle()));
        entry->setProperty(kWindowListEntry, true);
        entry->setCheckable(true);
        entry->setChecked(w == mdi_->activeSubWindow());
        connect(entry, &QAction::triggered, this, [this, w = QPointer<QMdiSubWindow>(w)] {
            if (w)
                mdi_->setActiveSubWindow(w);
        });
    }
}

} // namespace zolt::shell
