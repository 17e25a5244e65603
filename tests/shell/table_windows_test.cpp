#include "core/parameters.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "desktop.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/sequence_table.h"
#include "shell/cell_delegate.h"
#include "shell/sequence_window.h"
#include "shell/table_model.h"
#include "tables/color_table.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

// Which columns a setting shows is ShownBySettingsTest's; the window follows it.
TEST(TableWindows, ConnectorColumnsAndSwitchButtonFollowTheSettings) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    EXPECT_TRUE(w.grid().isColumnHidden(2));
    d.window.state().params().SetVal(param::Switches, Value(std::int32_t{1}));
    w.SetVisibleColumns();
    EXPECT_FALSE(w.grid().isColumnHidden(2));
    EXPECT_TRUE(w.Button(QStringLiteral("cmdEdit"))->isVisibleTo(&w));
}

TEST(TableWindows, TheNextButtonStartsARowWithTheNextNameAndTheCountFollows) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    w.Button(QStringLiteral("cmdNext"))->click();
    ASSERT_TRUE(w.model().IsEditing());
    EXPECT_EQ(w.model().index(0, 0).data().toString(), "P1");
    EXPECT_EQ(w.grid().currentIndex().column(), 1);
    Desktop::type(w, "4");
    zolt::test::Key(&w.grid(), Qt::Key_Return);
    EXPECT_EQ(w.table().gridarray().Text(1, 0), "P1");
    EXPECT_EQ(d.ui.PanelText(3), "Connectors: 1 Records");
}

// F7 fills the connector from the row above; what is typed next is the pin.
TEST(TableWindows, TextTypedAfterF7LandsInThePinCell) {
    Desktop d;
    CNetList& main = *d.window.state().project().MainNetlist;
    ASSERT_EQ(TableEditor(*main.TableAs<DataTable>(table::Connector)).AddRow({"J1", "3"}),
              code::None);
    main.GetTable(table::Fixture)
        ->AddRecord_v1(1, {Value("0-000"), Value("J1"), Value("1"), Value(std::int32_t{1}),
                           Value(std::int32_t{0})});
    TableWindow& w = d.open("ID_Fixture", table::Fixture);
    w.model().Reload();
    // On the new row: the connector comes from the row above it.
    w.grid().setCurrentIndex(w.model().index(w.model().NewRowLine(), 0));
    zolt::test::Key(&w.grid(), Qt::Key_F7);
    ASSERT_TRUE(w.model().IsEditing());
    EXPECT_EQ(w.grid().currentIndex().column(), 2);
    Desktop::type(w, "2");
    const int row = w.model().EditingRow();
    EXPECT_EQ(w.model().index(row, 1).data().toString(), "J1");
    EXPECT_EQ(w.model().index(row, 2).data().toString(), "2");
}

// Test parameters are fixed rows shown with two decimals; editing starts from the stored value.
TEST(TableWindows, TestParametersTakeNoNewRowAndShowTwoDecimals) {
    Desktop d;
    Table& parameters = *d.window.state().project().MainNetlist->GetTable(table::TestParameter);
    parameters.AddRecord_v1(1, {Value("1"), Value(5.0), Value(0.5), Value(2.0), Value(12.25),
                                Value(std::int32_t{1}), Value(std::int32_t{0})});
    TableWindow& w = d.open("ID_TestParameters", table::TestParameter);
    w.model().Reload();
    EXPECT_EQ(w.model().rowCount(), parameters.gridarray().Rows()) << "no new-row line";
    EXPECT_EQ(w.model().index(0, 1).data(Qt::DisplayRole).toString(), "5.00");
    EXPECT_EQ(w.model().index(0, 4).data(Qt::DisplayRole).toString(), "12.25");
    EXPECT_EQ(w.model().index(0, 1).data(Qt::EditRole).toString(), "5");
    w.Button(QStringLiteral("cmdAdd"))->click();
    EXPECT_FALSE(w.model().IsEditing());
}

TEST(TableWindows, CutAndCopyNeedExactlyOneRowOrSelectedText) {
    Desktop d;
    TableWindow& w = d.open("ID_Wires", table::Wire);
    Desktop::addRow(w, {"W1"});
    Desktop::addRow(w, {"W2"});
    zolt::test::Key(&w.grid(), Qt::Key_Escape);
    auto enabled = [&w] {
        w.ContextMenu();
        return std::pair(w.ContextAction("ID_Cut")->isEnabled(),
                         w.ContextAction("ID_Copy")->isEnabled());
    };
    w.grid().clearSelection();
    EXPECT_EQ(enabled(), std::pair(false, false));
    w.grid().selectRow(0);
    EXPECT_EQ(enabled(), std::pair(true, true));
    w.grid().selectionModel()->select(w.model().index(1, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(enabled(), std::pair(false, false));
    w.grid().selectRow(1);
    EXPECT_EQ(w.CopySelection(false).rfind("$CopyData~5~", 0), 0u);
}

TEST(TableWindows, ColorCellsCompleteFromTheColorTable) {
    Desktop d;
    auto* colors = d.window.state().project().MainNetlist->TableAs<CColorTable>(table::Color);
    for (const char* c : {"RED", "RED/BLK", "BLUE"})
        colors->AddNewColor(c);
    TableWindow& w = d.open("ID_Wires", table::Wire);
    w.AddLine();
    Desktop::type(w, "W1");
    zolt::test::Type(Desktop::target(w), "r");
    QLineEdit* cell = Desktop::cell();
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(), "RED");
    EXPECT_EQ(cell->selectedText(), "ED");
    zolt::test::Type(cell, "/");
    EXPECT_EQ(cell->text(), "RED/BLK");
    EXPECT_EQ(cell->selectedText(), "BLK");
    zolt::test::Key(cell, Qt::Key_Tab);
    zolt::test::Key(&w.grid(), Qt::Key_Return);
    EXPECT_EQ(w.table().gridarray().Text(1, 1), "2");
    EXPECT_EQ(w.model().index(0, 1).data().toString(), "RED/BLK");
}

// The side's name shows while its cell is typed; Return on a row whose required
// Parameter is empty shows the box, and typing goes on in Parameter.
TEST(TableWindows, ComponentRowsShowTheSidesAndARefusalKeepsTheCaretOnItsCell) {
    Desktop d;
    d.window.state().project().DeviceList.Add(CComponent{"RES", "PLUS", "MINUS", {}}, "RES");
    TableWindow& wires = d.open("ID_Wires", table::Wire);
    Desktop::addRow(wires, {"W1"});
    Desktop::addRow(wires, {"W2"});
    TableWindow& w = d.open("ID_Components", table::Component);
    EXPECT_EQ(w.delegate().Items(0), std::vector<std::string>{"RES"});
    w.AddLine();
    ASSERT_NE(Desktop::cell(), nullptr);
    EXPECT_NE(qobject_cast<QComboBox*>(Desktop::cell()->parentWidget()), nullptr);
    Desktop::type(w, "RES");
    Desktop::type(w, "1");
    EXPECT_EQ(d.ui.PanelText(3), "PLUS");
    Desktop::type(w, "W1");
    EXPECT_EQ(d.ui.PanelText(3), "MINUS");
    Desktop::type(w, "W2");
    EXPECT_EQ(d.ui.PanelText(3), "") << "the side's name goes with its cell";

    zolt::test::Type(Desktop::target(w), "100");
    zolt::test::Key(Desktop::target(w), Qt::Key_Return);
    ASSERT_FALSE(d.ui.ShownBoxes().empty());
    EXPECT_EQ(d.ui.ShownBoxes().back().text, "Numeric value must be Entered!");
    EXPECT_EQ(w.grid().currentIndex().column(), 7);
    ASSERT_NE(Desktop::cell(), nullptr);
    zolt::test::Type(Desktop::target(w), "1");
    zolt::test::Key(Desktop::target(w), Qt::Key_Return);
    EXPECT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(w.table().gridarray().Rows(), 1);
    EXPECT_EQ(w.table().gridarray().Text(1, 7), "1");
}

// A wire typed into Pins that does not exist yet: after its box and the Add
// New Wire dialog the row is stored and the keys reach the grid again.
TEST(TableWindows, KeysReachTheGridAfterTheDialogsACellOpened) {
    Desktop d;
    Desktop::addRow(d.open("ID_Connectors", table::Connector), {"J1", "4"});
    TableWindow& w = d.open("ID_Pins", table::Pin);
    QTimer::singleShot(0, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->accept();
    });
    d.ui.Queue(Answer::Yes);
    Desktop::addRow(w, {"J1", "1", "W9"});
    ASSERT_EQ(w.table().gridarray().Rows(), 1);
    EXPECT_EQ(w.table().gridarray().Text(1, 2), "W9");
    // The keyboard comes back to the grid with the main window.
    EXPECT_EQ(d.window.focusWidget(), &w.grid());
    zolt::test::Key(&w.grid(), Qt::Key_F5);
    EXPECT_TRUE(w.model().IsEditing()) << "F5 opened the next pin";
}

TEST(TableWindows, FixtureOfAnotherNetlistShowsMainsSplitAndNoAutoGen) {
    Desktop d;
    TableWindow& main = d.open("ID_Fixture", table::Fixture);
    EXPECT_TRUE(main.grid().isColumnHidden(5));
    EXPECT_TRUE(main.Button("cmdAutoGen")->isEnabled());

    AddNetlist(d.window.state(), "HARNESS");
    std::string name = "HARNESS";
    ActivateNetlist(d.window.state(), name);
    TableWindow& other = d.open("ID_Fixture", table::Fixture);
    ASSERT_NE(&other, &main);
    EXPECT_FALSE(other.grid().isColumnHidden(5));
    EXPECT_FALSE(other.Button("cmdAutoGen")->isEnabled());
    // A greyed AutoGen says why, and so does F8.
    EXPECT_TRUE(other.Button("cmdAutoGen")->toolTip().contains("MAIN tab only"));
    zolt::test::Key(&other.grid(), Qt::Key_F8);
    EXPECT_NE(d.ui.PanelText(3).find("MAIN tab only"), std::string::npos);
    EXPECT_EQ(other.findChild<QLabel*>("lblLinkedToMain"), nullptr);

    // A tab linked to MAIN says so over its empty grid and takes no rows.
    d.ui.Queue(ScriptedUi::TextAnswer{"LINKED"});
    d.ui.Queue(ScriptedUi::TextAnswer{"Link to MAIN"});
    d.window.ToolClick("ID_NewNetlistTab");
    TableWindow& linked = d.open("ID_Fixture", table::Fixture);
    ASSERT_NE(linked.findChild<QLabel*>("lblLinkedToMain"), nullptr);
    EXPECT_TRUE(linked.Button("cmdAutoGen")->toolTip().contains("Link to MAIN"));
    EXPECT_FALSE(linked.model().AllowsAddNew());
    // A function key is refused as the command line refuses it.
    linked.PressFunctionKey(key::F5);
    EXPECT_EQ(d.ui.ShownBoxes().back().text,
              "This tab uses MAIN's fixture (Link to MAIN): edit the fixture on the MAIN tab.");
    EXPECT_FALSE(linked.model().IsEditing());
}

TEST(TableWindows, SequenceWindowCompletesCommandsAndTogglesDescriptions) {
    Desktop d;
    LoadSystemSequenceTable(d.window.state(), "test.zlf");
    AddNetlist(d.window.state(), "DOOR");
    QAction* sequence = d.window.Action("ID_Sequence");
    ASSERT_TRUE(sequence->isEnabled());
    sequence->trigger();
    QMdiSubWindow* frame = d.window.windows().WindowOf(table::Sequence, 0);
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(frame->isVisible());
    auto* opened = qobject_cast<SequenceWindow*>(frame->widget());
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(QApplication::focusWidget(), &opened->table().grid()) << "keys go to the sequence";
    EXPECT_TRUE(d.window.state().session().SequenceVisible);
    ASSERT_NE(opened->instructions(), nullptr);
    EXPECT_GT(opened->instructions()->list().rowCount(), 20);

    TableWindow& w = opened->table();
    EXPECT_TRUE(w.grid().isColumnHidden(3));
    w.Button("cmdViewSelect")->click();
    EXPECT_FALSE(w.grid().isColumnHidden(3));
    EXPECT_TRUE(d.window.Action("ID_Descriptions")->isChecked());
    d.window.Action("ID_Descriptions")->trigger();
    EXPECT_TRUE(w.grid().isColumnHidden(4));

    w.AddLine();
    w.grid().setCurrentIndex(w.model().index(0, 1));
    w.grid().edit(w.model().index(0, 1));
    zolt::test::Type(Desktop::target(w), "go");
    // The first command of the sorted list with that prefix, its tail selected.
    const QString completed = Desktop::cell()->text();
    EXPECT_TRUE(completed.startsWith("GO") && completed.size() > 2);
    EXPECT_EQ(Desktop::cell()->selectedText(), completed.mid(2));
    const int beeps = d.ui.Beeps();
    zolt::test::Type(Desktop::target(w), "Q");
    EXPECT_EQ(Desktop::cell()->text(), completed);
    EXPECT_EQ(d.ui.Beeps(), beeps + 1);
    // A line typed here takes the command line's road: the command fills its parameter.
    Desktop::cell()->clear();
    for (const QChar c : QStringLiteral("con"))
        zolt::test::Type(Desktop::target(w), QString(c));
    zolt::test::Key(Desktop::target(w), Qt::Key_Tab);
    EXPECT_EQ(w.model().index(0, sequence_column::Command).data().toString(), "CONTINUITY");
    EXPECT_EQ(w.model().index(0, sequence_column::Parameter).data().toString(), "MAIN");
    Desktop::cell()->selectAll();
    zolt::test::Type(Desktop::target(w), "door");
    zolt::test::Key(Desktop::target(w), Qt::Key_Return);
    EXPECT_TRUE(d.ui.ShownBoxes().empty());
    ASSERT_EQ(w.table().gridarray().Rows(), 1);
    EXPECT_EQ(w.table().gridarray().Text(1, sequence_column::Parameter), "DOOR");

    sequence->trigger();
    EXPECT_FALSE(frame->isVisible());
    EXPECT_FALSE(d.window.state().session().SequenceVisible);
    // Its close box takes the check mark off as well.
    sequence->trigger();
    ASSERT_TRUE(sequence->isChecked());
    frame->close();
    EXPECT_FALSE(sequence->isChecked());
    EXPECT_FALSE(d.window.state().session().SequenceVisible);
}

} // namespace
} // namespace zolt::shell
