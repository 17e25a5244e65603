// What the workspace shows a newcomer: which tables open, the hint when none
// is, the Window menu's list, the status bar's count, captions that fit.
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "desktop.h"
#include "shell/tab_strip.h"
#include "shell/window_layouts.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

bool shown(Desktop& d, TableId table) {
    const QMdiSubWindow* w = d.frameOf(table);
    return w && !w->isHidden();
}

QLabel& hint(Desktop& d) {
    return *d.window.workspace().viewport()->findChild<QLabel*>(QStringLiteral("WorkspaceHint"));
}

bool anyOverlap(Desktop& d) {
    const auto windows = d.window.workspace().subWindowList();
    for (const QMdiSubWindow* a : windows)
        for (const QMdiSubWindow* b : windows)
            if (a != b && a->isVisible() && b->isVisible() &&
                a->geometry().intersects(b->geometry()))
                return true;
    return false;
}

// At 1024 by 768 the windows a program opens with leave each other's buttons free.
TEST(Workspace, TheFirstWindowsOfAProgramDoNotCoverEachOtherOnASmallScreen) {
    test_desktop::ExampleDesktop d("harness.zlf", {1024, 768});
    ASSERT_TRUE(d.window.state().document().FileOpen);
    EXPECT_TRUE(shown(d, table::Pin));
    EXPECT_FALSE(anyOverlap(d));
    d.window.ToolClick("ID_Close");
}

TEST(Workspace, ViewAllTablesShowsOnlyWhatTheNetlistHas) {
    Desktop d;
    d.window.ToolClick("ID_ViewAllTables");
    EXPECT_TRUE(shown(d, table::Connector));
    EXPECT_TRUE(shown(d, table::Fixture));
    EXPECT_FALSE(anyOverlap(d)) << "tiled: no window hides another";
    EXPECT_FALSE(shown(d, table::Code)) << "MAIN has no manual netlists";

    AddNetlist(d.window.state(), kManualNetlists);
    ASSERT_EQ(d.window.state().project().ActiveNetlist->NetlistName, kManualNetlists);
    QTabBar& tabs = d.window.tabStrip().Tabs();
    EXPECT_EQ(tabs.tabTextColor(tabs.currentIndex()), QColor(0, 0, 255)) << "the manual tab";
    d.window.ToolClick("ID_ViewAllTables");
    EXPECT_TRUE(shown(d, table::Code));
    EXPECT_TRUE(shown(d, table::Fixture));
    EXPECT_FALSE(shown(d, table::Connector)) << "the manual netlists have no harness";
    EXPECT_FALSE(shown(d, table::Pin));
}

struct ScreenCase {
    const char* name;
    QRect screen;
};

class StartPlaceTest : public testing::TestWithParam<ScreenCase> {};

TEST_P(StartPlaceTest, TheMainWindowTakesMostOfTheScreen) {
    const QRect screen = GetParam().screen;
    const QRect place = StartPlace(screen);
    EXPECT_TRUE(screen.contains(place));
    EXPECT_GE(place.width(), screen.width() * 9 / 10);
    EXPECT_GE(place.height(), screen.height() * 9 / 10);
    EXPECT_LE(std::abs(place.center().x() - screen.center().x()), 1);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Screens, StartPlaceTest, testing::Values(
    ScreenCase{"Xga", QRect(0, 0, 1024, 768)}, ScreenCase{"Laptop", QRect(0, 0, 1366, 728)},
    ScreenCase{"FullHd", QRect(0, 0, 1920, 1040)}, ScreenCase{"SecondScreen", QRect(1920, 0, 2560, 1400)}),
    [](const testing::TestParamInfo<ScreenCase>& info) { return std::string(info.param.name); });
// clang-format on

TEST(Workspace, TheHintShowsWhileNoTableDoesAndNoScrollbarStays) {
    Desktop d;
    QMdiArea& area = d.window.workspace();
    EXPECT_FALSE(hint(d).isHidden());
    QApplication::processEvents();
    for (const QString& line : hint(d).text().split(QLatin1Char('\n')))
        EXPECT_GE(hint(d).width(), QFontMetrics(hint(d).font()).horizontalAdvance(line))
            << "each line stays whole: " << line.toStdString();
    d.open("ID_Pins", table::Pin);
    EXPECT_TRUE(hint(d).isHidden());

    d.frameOf(table::Pin)->move(area.viewport()->width() + 300, 20);
    QApplication::processEvents();
    ASSERT_TRUE(area.horizontalScrollBar()->isVisible()) << "a window beyond the edge";
    d.window.ToolClick("ID_HideAllTables");
    QApplication::processEvents();
    EXPECT_FALSE(hint(d).isHidden());
    EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << "nothing left to scroll to";
}

// Ctrl+PgDn and Ctrl+PgUp from a table's grid step through the netlist tabs.
TEST(Workspace, ControlPageKeysStepThroughTheTabs) {
    Desktop d;
    d.ui.Queue(ScriptedUi::TextAnswer{"SPARE"});
    d.window.ToolClick("ID_NewNetlistTab");
    TableWindow& pins = d.open("ID_Pins", table::Pin);
    d.window.show();
    QApplication::setActiveWindow(&d.window);
    pins.grid().setFocus();
    QApplication::processEvents();
    const auto active = [&] { return d.window.state().project().ActiveNetlist->NetlistName; };
    ASSERT_EQ(active(), "SPARE");
    QTest::keyClick(&pins.grid(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(active(), "MAIN") << "past the last tab comes the first";
    QTest::keyClick(&pins.grid(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(active(), "SPARE");
}

// The Window menu lists the open windows; the record count goes with the active one.
TEST(Workspace, TheWindowMenuAndTheRecordCountFollowTheOpenWindows) {
    Desktop d;
    d.open("ID_Connectors", table::Connector);
    d.open("ID_Pins", table::Pin);
    auto* menu = d.window.menuBar()->findChild<QMenu*>(QStringLiteral("ID_mnuWindow"));
    ASSERT_NE(menu, nullptr);
    const auto entries = [menu] {
        emit menu->aboutToShow();
        QStringList texts;
        for (const QAction* a : menu->actions())
            if (a->isCheckable())
                texts << a->text();
        return texts;
    };
    entries();
    EXPECT_EQ(entries(), (QStringList{"&1 Connectors", "&2 Pins"})) << "listed once, however often";
    for (QAction* a : menu->actions())
        if (a->text() == QLatin1String("&1 Connectors"))
            a->trigger();
    EXPECT_EQ(d.window.workspace().activeSubWindow(), d.frameOf(table::Connector));
    d.frameOf(table::Pin)->close();
    QApplication::processEvents();
    EXPECT_EQ(entries(), (QStringList{"&1 Connectors"}));
    EXPECT_EQ(d.ui.PanelText(3), "Connectors: 0 Records");
    d.frameOf(table::Connector)->close();
    QApplication::processEvents();
    EXPECT_EQ(d.ui.PanelText(3), "");
}

struct WindowCase {
    const char* name;
    TableId table;
};

class TableWindowFitTest : public testing::TestWithParam<WindowCase> {};

// Every button of a table window shows its whole caption, at the window's own
// size and squeezed into a narrow one; the columns of its grid fit without scrolling.
TEST_P(TableWindowFitTest, CaptionsAreNeverCut) {
    Desktop d;
    d.window.windows().ShowTable(GetParam().table, 0);
    QMdiSubWindow* frame = d.window.windows().WindowOf(GetParam().table, 0);
    ASSERT_NE(frame, nullptr);
    auto* grid = frame->widget()->findChild<QTableView*>(QStringLiteral("TDBGrid1"));
    frame->resize(frame->widget()->sizeHint() + QSize(16, 40));
    QApplication::processEvents();
    EXPECT_FALSE(grid->horizontalScrollBar()->isVisible()) << "at its own size";
    for (const int width : {frame->width(), 420}) {
        frame->resize(width, 420);
        QApplication::processEvents();
        for (const QPushButton* b : frame->findChildren<QPushButton*>()) {
            if (b->isHidden())
                continue;
            const int text = b->fontMetrics().horizontalAdvance(b->text().remove('&'));
            EXPECT_GE(b->width(), text + 8) << b->objectName().toStdString() << " at " << width;
        }
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tables, TableWindowFitTest, testing::Values(
    WindowCase{"Connectors", table::Connector}, WindowCase{"Pins", table::Pin}, WindowCase{"Wires", table::Wire},
    WindowCase{"Splices", table::Splice}, WindowCase{"Components", table::Component}, WindowCase{"Groups", table::Groups},
    WindowCase{"Fixture", table::Fixture}, WindowCase{"ManualNetlists", table::Code}, WindowCase{"Colors", table::Color},
    WindowCase{"TestParameters", table::TestParameter}),
    [](const testing::TestParamInfo<WindowCase>& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::shell
