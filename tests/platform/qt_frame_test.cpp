#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "platform/qt_frame_controls.h"
#include "platform/qt_window_registry.h"
#include "support/qt_app.h"

#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabBar>
#include <gtest/gtest.h>

namespace zolt {
namespace {

// The real Qt frame driven by the same netlist logic the batch tool drives.
struct QtFrameProgram {
    QApplication& app = test::QtApp(); // before any widget
    QWidget strip;
    QTabBar tabs{&strip};
    QMdiArea area;
    QtFrameControls frame{tabs, strip};
    int made = 0;
    QtWindowRegistry windows{area, [this](TableId table, int netlist) {
                                 auto* w = area.addSubWindow(new QLabel("table"));
                                 windows.Tag(*w, QString::fromStdString(TableFormName(table)),
                                             table, netlist);
                                 w->setWindowTitle(QString::fromStdString(TableCaption(table)));
                                 ++made;
                                 return w;
                             }};
    ScriptedUi ui;
    MemorySettingsStore settings;
    ProgramState state{Ports{ui, settings, windows, frame}, MakeTable};

    QtFrameProgram() {
        area.show();
        NewProject(state);
    }
    void add(const std::string& name) {
        ui.QueueFirst(ScriptedUi::TextAnswer{name});
        NewNetlistCommand(state);
    }
};

TEST(QtFrame, TabsFollowTheNetlistLogic) {
    QtFrameProgram p;
    p.add("DOOR");
    AddNetlist(p.state, "MANUAL NETLISTS"); // as the project setting adds it
    ASSERT_EQ(p.tabs.count(), 3);
    EXPECT_EQ(p.tabs.tabText(0), "MAIN");
    EXPECT_EQ(p.tabs.currentIndex(), 2);
    EXPECT_EQ(p.tabs.tabTextColor(2), QColor(0, 0, 255));
    std::string door = "DOOR";
    ActivateNetlist(p.state, door);
    EXPECT_EQ(p.tabs.currentIndex(), 1);
    p.ui.QueueFirst(ScriptedUi::TextAnswer{"DOOR"});
    DeleteNetlistCommand(p.state);
    EXPECT_EQ(p.tabs.count(), 2);
}

TEST(QtFrame, WindowsOfATabHideWhenItIsLeftAndComeBack) {
    QtFrameProgram p;
    p.add("DOOR");
    const int door = p.state.project().FindNetlist("DOOR")->netlistIndex;
    p.windows.ShowTable(table::Pin, door);
    p.windows.ShowTable(table::Wire, door);
    p.windows.ShowTable(table::Wire, door); // shown again, not made again
    EXPECT_EQ(p.made, 2);
    p.state.project().ActiveNetlist->VisibleCount = 2;
    std::string main = "MAIN", back = "DOOR";
    ActivateNetlist(p.state, main);
    for (const auto& w : p.windows.Windows())
        EXPECT_FALSE(w.visible) << w.formName;
    ActivateNetlist(p.state, back);
    for (const auto& w : p.windows.Windows())
        EXPECT_TRUE(w.visible) << w.formName;
    EXPECT_EQ(p.area.activeSubWindow(), p.windows.WindowOf(table::Wire, door));
}

} // namespace
} // namespace zolt
