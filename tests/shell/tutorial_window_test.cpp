// The groups tutorial in the desktop: started from the Help menu over its own
// example, pointing at the cell to type in, following the real table windows.
#include "desktop.h"
#include "file/program_file.h"
#include "file/program_session.h"
#include "shell/tutorial_window.h"
#include "tables/data_table.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

struct TutorialDesk : Desktop {
    test::ScratchFolder dir;

    TutorialDesk() {
        settings.Write("Tutorials", "TutorialTemplate", dir.file("Tutorial.zlt"));
        file::WriteProgramFile(window.state(), dir.file("Tutorial.zlt"));
    }
    TutorialWindow* tutorial() { return window.tutorialWindow(); }
    void click(const char* name) { tutorial()->button(QString::fromUtf8(name))->click(); }
    TableWindow* activeTable() {
        QMdiSubWindow* active = window.workspace().activeSubWindow();
        return active ? qobject_cast<TableWindow*>(active->widget()) : nullptr;
    }
};

TEST(GroupsTutorialWindow, PointsAtTheCellFollowsTheTableAndHoldsTheTools) {
    TutorialDesk d;
    d.window.state().params().SetVal(param::Group, Value(true));
    d.window.ToolClick(QStringLiteral("ID_GroupsTutorial"));
    ASSERT_NE(d.tutorial(), nullptr);
    EXPECT_TRUE(d.tutorial()->isVisible());
    EXPECT_TRUE(d.window.state().session().TutorialActive);
    EXPECT_FALSE(d.window.Action(QStringLiteral("ID_Open"))->isEnabled());
    EXPECT_FALSE(d.window.Action(QStringLiteral("ID_Wires"))->isEnabled());
    EXPECT_EQ(d.tutorial()->titleText(), "Step 1 of 10: The group method");
    // A step longer than the window scrolls rather than being cut off.
    d.tutorial()->resize(400, 200);
    QApplication::processEvents();
    auto* scroll = d.tutorial()->findChild<QScrollArea*>(QStringLiteral("scrInstruction"));
    ASSERT_NE(scroll, nullptr);
    EXPECT_GT(scroll->verticalScrollBar()->maximum(), 0);

    d.click("cmdNext");
    EXPECT_EQ(d.tutorial()->titleText(), "Step 2 of 10: Connector J1");
    TableWindow* connectors = d.activeTable();
    ASSERT_NE(connectors, nullptr);
    EXPECT_EQ(connectors->table().tableIndex(), table::Connector);
    EXPECT_EQ(connectors->grid().currentIndex().row(), 0) << "the new-row line";
    EXPECT_TRUE(d.tutorial()->statusText().startsWith("Waiting: "));

    Desktop::addRow(*connectors, {QStringLiteral("J1"), QStringLiteral("4")});
    d.tutorial()->Refresh();
    EXPECT_TRUE(d.tutorial()->statusText().startsWith("Done."));
    d.click("cmdNext");
    EXPECT_EQ(d.tutorial()->titleText(), "Step 3 of 10: Connector J2");
    d.click("cmdSkip");
    EXPECT_EQ(d.tutorial()->titleText(), "Step 4 of 10: Group 1");
    ASSERT_NE(d.activeTable(), nullptr);
    EXPECT_EQ(d.activeTable()->table().tableIndex(), table::Groups);
    // The buttons the step points at stay in sight beside the tutorial.
    for (const QPushButton* b : d.activeTable()->findChildren<QPushButton*>()) {
        const QRect button(b->mapToGlobal(QPoint(0, 0)), b->size());
        EXPECT_FALSE(d.tutorial()->frameGeometry().intersects(button)) << b->text().toStdString();
    }
    EXPECT_EQ(
        d.window.state().project().MainNetlist->GetTable(table::Connector)->gridarray().Rows(), 2);
    EXPECT_TRUE(d.window.history().CanUndo()) << "a skip is an edit like any other";

    d.click("cmdQuit");
    QApplication::processEvents();
    EXPECT_EQ(d.tutorial(), nullptr);
    EXPECT_FALSE(d.window.state().session().TutorialActive);
    EXPECT_TRUE(d.window.Action(QStringLiteral("ID_Open"))->isEnabled());
    EXPECT_TRUE(d.window.state().document().FileOpen) << "the example stays open";
}

} // namespace
} // namespace zolt::shell
