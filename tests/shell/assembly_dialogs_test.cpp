#include "desktop.h"
#include "shell/feature_code_dialogs.h"
#include "shell/test_ordering_dialog.h"

#include <QAction>
#include <QApplication>
#include <QTableWidget>
#include <QTimer>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;
using Lines = std::vector<std::string>;

struct GrvDesktop : Desktop {
    GrvDesktop() {
        for (const char* name : {"DOOR", "SEAT"}) {
            ui.QueueFirst(ScriptedUi::TextAnswer{name});
            NewNetlistCommand(window.state());
        }
        window.state().document().CurrentFile = "/tmp/family.grv";
        window.UpdateControls();
    }
    ProgramState& state() { return window.state(); }
};

TEST(AssemblyDialogs, EditFeatureCodesNamesTicksAndStores) {
    GrvDesktop d;
    d.state().project().Assembly.FeatureCodeData = {"Base,MAIN"};
    EditFeatureCodesDialog dialog(d.state());
    dialog.AddFeatureCode();
    ASSERT_EQ(dialog.codesGrid().rowCount(), 2);
    EXPECT_EQ(dialog.codesGrid().item(1, 0)->text(), QStringLiteral("FeatureCode2"));
    dialog.codesGrid().item(1, 0)->setText(QStringLiteral("Doors"));
    dialog.codesGrid().selectRow(1);
    dialog.netlistGrid().item(1, 0)->setCheckState(Qt::Checked); // DOOR
    dialog.netlistGrid().item(2, 0)->setCheckState(Qt::Checked); // SEAT
    dialog.accept();
    EXPECT_EQ(d.state().project().Assembly.FeatureCodeData,
              (Lines{"Base,MAIN", "Doors,DOOR,SEAT"}));
    EXPECT_TRUE(d.state().IsDirty());
}

TEST(AssemblyDialogs, SelectFeatureCodesOpensWithTheLastTicks) {
    GrvDesktop d;
    d.state().project().Assembly.FeatureCodeData = {"A,DOOR", "B", "C,SEAT"};
    d.state().project().SelectedFeatureCodes = {"C,SEAT"};
    SelectFeatureCodesDialog dialog(d.state());
    ASSERT_EQ(dialog.grid().rowCount(), 3);
    EXPECT_EQ(dialog.grid().item(2, 0)->checkState(), Qt::Checked);
    EXPECT_EQ(dialog.grid().item(0, 0)->checkState(), Qt::Unchecked);
    dialog.grid().item(0, 0)->setCheckState(Qt::Checked);
    dialog.accept();
    EXPECT_EQ(d.state().project().SelectedFeatureCodes, (Lines{"A,DOOR", "C,SEAT"}));
}

// The test compile combines the door and lamp tables into MAIN under its open
// Pins window: the status bar counts the rows that are there now.
TEST(AssemblyDialogs, TestCompileRecountsTheRecordsOfTheOpenTable) {
    test_desktop::ExampleDesktop d("family.grv");
    ASSERT_TRUE(d.window.state().document().FileOpen);
    const auto mainPins = [&] {
        return d.window.state().project().MainNetlist->GetTable(table::Pin)->gridarray().Rows();
    };
    d.open("ID_Pins", table::Pin);
    d.window.state().ShowRecordCount(true);
    const int before = mainPins();
    ASSERT_EQ(d.ui.PanelText(3), "Pins: " + std::to_string(before) + " Records");

    d.window.state().project().SelectedFeatureCodes = {"Base,MAIN", "LeftHand,DOOR_LH",
                                                       "Lamp,LAMP"};
    QTimer::singleShot(0, [] {
        if (auto* dialog =
                qobject_cast<SelectFeatureCodesDialog*>(QApplication::activeModalWidget()))
            dialog->accept();
    });
    // "Save New Test Program", then the file dialog is cancelled: the new program
    // stays open unnamed, under the windows.
    d.ui.Queue(Answer::Ok);
    d.window.ToolClick("ID_GRVTestCompile");
    EXPECT_GT(mainPins(), before);
    EXPECT_EQ(d.ui.PanelText(3), "Pins: " + std::to_string(mainPins()) + " Records");
}

TEST(AssemblyDialogs, AssemblyOrderTreeFollowsTheModel) {
    GrvDesktop d;
    TestOrderingDialog dialog(d.state());
    QTreeWidget& tree = dialog.tree();
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(tree.topLevelItem(0)->text(0), QStringLiteral("General"));
    EXPECT_EQ(tree.topLevelItem(0)->childCount(), 3);
    dialog.NewStation();
    dialog.SetPattern(7);
    tree.setCurrentItem(tree.topLevelItem(0));
    dialog.NewStation();
    dialog.SetPattern(3);
    ASSERT_EQ(tree.topLevelItemCount(), 3);
    EXPECT_EQ(tree.topLevelItem(1)->text(0), QStringLiteral("Station2"));
    EXPECT_TRUE(dialog.Drop(tree.topLevelItem(0)->child(1), tree.topLevelItem(2)));
    EXPECT_TRUE(dialog.Drop(tree.topLevelItem(0)->child(1), tree.topLevelItem(1)));
    tree.setCurrentItem(tree.topLevelItem(2)->child(0));
    dialog.TogglePartOfMain();
    dialog.accept();
    const CNetlistInfoList& info = d.state().project().Assembly.NetlistInfoList;
    ASSERT_EQ(info.Count(), 2u);
    EXPECT_EQ(info.Item("SEAT")->Station, "Station2");
    EXPECT_EQ(info.Item("SEAT")->Pattern, 3);
    EXPECT_EQ(info.Item("DOOR")->Pattern, 7);
    EXPECT_TRUE(info.Item("DOOR")->PartOfMain);
}

} // namespace
} // namespace zolt::shell
