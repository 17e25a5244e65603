// Undo and redo on the desktop: the open windows follow each step, whichever
// netlist it touched, and no step leaves a window over rows that are gone.
#include "core/table_kinds.h"
#include "desktop.h"
#include "shell/tab_strip.h"
#include "shell/table_model.h"

#include <QMdiSubWindow>
#include <QTabBar>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

namespace fs = std::filesystem;
using test_desktop::Desktop;

struct Example : test_desktop::ExampleDesktop {
    void selectTab(const std::string& name) {
        QTabBar& tabs = window.tabStrip().Tabs();
        for (int i = 0; i < tabs.count(); ++i)
            if (tabs.tabText(i).toStdString() == name) {
                tabs.setCurrentIndex(i);
                emit tabs.tabBarClicked(i);
            }
    }
    Table& pinsOf(const std::string& netlist) {
        return *window.state().project().FindNetlist(netlist)->GetTable(table::Pin);
    }
    // Deletes the row (1-based) of a window, answering its question with OK.
    void deletePin(TableWindow& w, int row) {
        w.grid().setCurrentIndex(w.model().index(row - 1, 0));
        ui.Queue(Answer::Ok);
        w.DeleteLine();
    }
};

// Ctrl+Z on MAIN after a delete on another tab: that tab, its Pins window and
// the row come to the front, and the menu said which netlist it would touch.
TEST(Undo, AStepOnAnotherTabBringsItsTabTableAndRowsToTheFront) {
    Example d;
    ASSERT_TRUE(d.window.state().document().FileOpen);
    d.selectTab("DOOR_LH");
    TableWindow& doorPins = d.open("ID_Pins", table::Pin);
    Table& door = d.pinsOf("DOOR_LH");
    const int doorRows = door.gridarray().Rows();
    const int mainRows = d.pinsOf("MAIN").gridarray().Rows();
    ASSERT_GE(doorRows, 4);
    const std::string doorFourth = door.gridarray().Text(4, 1);
    d.deletePin(doorPins, 4);
    ASSERT_EQ(door.gridarray().Rows(), doorRows - 1);
    EXPECT_EQ(doorPins.model().rowCount(), doorRows - 1 + 1) << "the window follows the delete";
    d.selectTab("MAIN");
    EXPECT_FALSE(doorPins.isVisible()) << "a tab's windows hide when it is left";
    TableWindow& mainPins = d.open("ID_Pins", table::Pin);
    ASSERT_NE(&mainPins, &doorPins);
    d.window.UpdateControls();
    EXPECT_EQ(d.window.Action("ID_Undo")->text(), "&Undo Delete Pin Record (DOOR_LH)");
    // The toolbar keeps a short button, the tooltip the whole text.
    EXPECT_EQ(d.window.Action("ID_Undo")->iconText(), "Undo");
    EXPECT_EQ(d.window.Action("ID_Undo")->toolTip(), "Undo Delete Pin Record (DOOR_LH)");

    d.window.ToolClick("ID_Undo");
    EXPECT_EQ(d.window.state().project().ActiveNetlist->NetlistName, "DOOR_LH");
    EXPECT_TRUE(doorPins.isVisible());
    EXPECT_EQ(doorPins.SelectedRows(), std::vector<int>{4});
    EXPECT_EQ(door.gridarray().Rows(), doorRows);
    EXPECT_EQ(d.pinsOf("MAIN").gridarray().Rows(), mainRows);
    EXPECT_EQ(d.ui.PanelText(3), "Pins: " + std::to_string(doorRows) + " Records");
    EXPECT_EQ(doorPins.model().rowCount(), doorRows + 1) << "the same window shows the row again";
    EXPECT_EQ(doorPins.model().data(doorPins.model().index(3, 1), Qt::DisplayRole).toString(),
              QString::fromStdString(doorFourth));
    EXPECT_EQ(d.window.Action("ID_Redo")->text(), "&Redo Delete Pin Record (DOOR_LH)");

    d.window.ToolClick("ID_Redo");
    EXPECT_EQ(door.gridarray().Rows(), doorRows - 1);
    d.window.ToolClick("ID_Undo");
    EXPECT_FALSE(d.window.state().IsDirty()) << "back at the state that was read";
}

// AutoGen is one step; a file handed over by a later start, refused at the save
// question, leaves it on the history.
TEST(Undo, AutoGenIsOneStepTheFixtureWindowFollowsAndARefusedHandOverKeepsIt) {
    Example d;
    TableWindow& fixture = d.open("ID_Fixture", table::Fixture);
    Table& table = *d.window.state().project().MainNetlist->GetTable(table::Fixture);
    const Grid before = table.gridarray();
    d.ui.Queue(Answer::Ok);
    fixture.PressFunctionKey(key::F8);
    d.window.UpdateControls();
    ASSERT_TRUE(d.window.Action("ID_Undo")->isEnabled());
    EXPECT_EQ(d.window.Action("ID_Undo")->text(), "&Undo AutoGen (MAIN)");
    const Grid generated = table.gridarray();
    d.window.ToolClick("ID_Undo");
    EXPECT_EQ(table.gridarray(), before);
    EXPECT_EQ(fixture.model().rowCount(), before.Rows() + 1);
    d.window.ToolClick("ID_Redo");
    EXPECT_EQ(table.gridarray(), generated);
    d.ui.Queue(Answer::Cancel);
    d.window.OpenFromCommandLine(QString::fromStdString(
        (fs::path(ZOLT_TEST_DATA_DIR) / "../../examples/family.grv").string()));
    EXPECT_EQ(d.window.state().document().CurrentFile, d.program.string());
    EXPECT_TRUE(d.window.Action("ID_Undo")->isEnabled());
}

TEST(Undo, ADeletedNetlistComesBackAndItsWindowsOpenOverTheSameTables) {
    Example d;
    d.ui.Queue(ScriptedUi::TextAnswer{"SPARE"});
    d.window.ToolClick("ID_NewNetlistTab");
    ASSERT_NE(d.window.state().project().FindNetlist("SPARE"), nullptr);
    Desktop::addRow(d.open("ID_Connectors", table::Connector), {"J7", "4"});
    const Table* connectors =
        d.window.state().project().FindNetlist("SPARE")->GetTable(table::Connector);
    ASSERT_EQ(connectors->gridarray().Rows(), 1);
    const int spare = d.window.state().project().FindNetlist("SPARE")->netlistIndex;

    d.ui.Queue(ScriptedUi::TextAnswer{"SPARE"});
    d.window.ToolClick("ID_DeleteNetlistTab");
    ASSERT_EQ(d.window.state().project().FindNetlist("SPARE"), nullptr);
    EXPECT_EQ(d.window.windows().WindowOf(table::Connector, spare), nullptr)
        << "its windows went with it";
    EXPECT_EQ(d.window.Action("ID_Undo")->text(), "&Undo Delete Netlist");

    d.window.ToolClick("ID_Undo");
    ASSERT_NE(d.window.state().project().FindNetlist("SPARE"), nullptr);
    EXPECT_EQ(d.window.state().project().FindNetlist("SPARE")->GetTable(table::Connector),
              connectors);
    TableWindow& again = d.open("ID_Connectors", table::Connector);
    EXPECT_EQ(again.model().rowCount(), 2);
    d.window.ToolClick("ID_Redo");
    EXPECT_EQ(d.window.state().project().FindNetlist("SPARE"), nullptr);
    EXPECT_EQ(d.window.windows().WindowOf(table::Connector, spare), nullptr);
}

// An imported netlist's tab shows its tables, and again when the import is
// redone. Undoing it leaves the tab before it as it was: the rows the import
// wrote are not selected on a table of the same kind there.
TEST(Undo, AnImportedNetlistShowsItsTablesAndUndoneSelectsNothingOnTheTabLeft) {
    Example d;
    TableWindow& connectors = d.open("ID_Connectors", table::Connector);
    ASSERT_TRUE(connectors.SelectedRows().empty());
    const auto drawing = d.folder.path() / "rear.csv";
    std::ofstream(drawing) << "J9,1,J8,1,R1,BLK\n";
    d.ui.Queue(ScriptedUi::TextAnswer{drawing.string()});
    d.ui.Queue(ScriptedUi::TextAnswer{"REAR"});
    d.window.ToolClick("ID_ImportDrawing");
    const auto expectTablesShown = [&](const char* when) {
        const CNetList* rear = d.window.state().project().FindNetlist("REAR");
        ASSERT_NE(rear, nullptr) << when;
        for (const TableId shown : {table::Connector, table::Wire, table::Pin}) {
            const QMdiSubWindow* frame = d.window.windows().WindowOf(shown, rear->netlistIndex);
            EXPECT_TRUE(frame && frame->isVisible()) << when << ": " << KindOf(shown).name;
        }
    };
    expectTablesShown("imported");
    d.selectTab("MAIN");

    d.window.ToolClick("ID_Undo");
    EXPECT_EQ(d.window.state().project().FindNetlist("REAR"), nullptr);
    EXPECT_TRUE(connectors.SelectedRows().empty());
    d.window.ToolClick("ID_Redo");
    expectTablesShown("redone");
}

} // namespace
} // namespace zolt::shell
