#include "core/headless/memory_settings_store.h"
#include "shell/window_layouts.h"
#include "support/qt_app.h"

#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

struct Workspace {
    QApplication& app = test::QtApp();
    QTemporaryDir dir;
    MemorySettingsStore settings;
    WindowLayouts layouts{settings, dir.filePath("ZOLT.DEF")};
    QMdiArea area;
    QStandardItemModel model{0, 3};
    QTableView* grid = new QTableView;
    QMdiSubWindow* window;

    Workspace() {
        grid->setModel(&model);
        window = area.addSubWindow(grid);
        window->setWindowTitle("Pins");
        area.resize(1200, 800);
        area.show();
        window->setGeometry(10, 20, 300, 200);
        window->show();
    }
};

TEST(WindowLayouts, AWindowNeverPlacedKeepsItsDesignSizeAndASavedOneComesBack) {
    Workspace w;
    w.layouts.Load(*w.window, w.grid);
    EXPECT_EQ(w.window->geometry(), QRect(10, 20, 300, 200));
    w.window->setGeometry(40, 50, 420, 260);
    w.grid->setColumnWidth(1, 77);
    w.layouts.Save(*w.window, w.grid);
    EXPECT_EQ(w.settings.Read("Pins", "Form Width"), "420");
    EXPECT_EQ(w.settings.Read("Pins", "DBGrid Column1 Width"), "77");
    w.settings.Write("Pins", "DBGrid Column9 Width", "300"); // a column that no longer exists
    w.window->setGeometry(0, 0, 100, 100);
    w.grid->setColumnWidth(1, 20);
    w.layouts.Load(*w.window, w.grid);
    EXPECT_EQ(w.window->geometry(), QRect(40, 50, 420, 260));
    EXPECT_EQ(w.grid->columnWidth(1), 77);
    // A maximised window keeps its last normal size.
    w.window->showMaximized();
    w.layouts.Save(*w.window, w.grid);
    EXPECT_EQ(w.settings.Read("Pins", "Window State"), "2");
    EXPECT_EQ(w.settings.Read("Pins", "Form Width"), "420");
}

TEST(WindowLayouts, TheFactoryFileIsAllOrNothing) {
    Workspace w;
    const std::vector<QString> captions = {"Groups", "Fixture"};
    EXPECT_FALSE(w.layouts.ResetAll(captions)) << "no file";
    ASSERT_TRUE(w.layouts.SaveDefaults({QRect(1, 2, 3, 4)}));
    EXPECT_FALSE(w.layouts.ResetAll(captions)) << "one line short";
    EXPECT_FALSE(w.settings.Read("Groups", "Form Left"));
    ASSERT_TRUE(w.layouts.SaveDefaults({QRect(1, 2, 3, 4), QRect(5, 6, 7, 8)}));
    ASSERT_TRUE(w.layouts.ResetAll(captions));
    EXPECT_EQ(w.layouts.Stored("Fixture", QRect()), QRect(5, 6, 7, 8));
    QFile file(w.dir.filePath("ZOLT.DEF"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("1, 2, 3, 4\n5, 6, 7, 8\n"));
}

TEST(WindowLayouts, APlaceOutsideTheWorkspaceComesBackInsideIt) {
    const QSize area(800, 500);
    // clang-format off
    for (const auto& [place, fitted] : {std::pair{QRect(10, 20, 300, 200), QRect(10, 20, 300, 200)},
             {QRect(900, 20, 300, 200), QRect(500, 20, 300, 200)}, {QRect(-50, -40, 300, 200), QRect(0, 0, 300, 200)},
             {QRect(100, 100, 1200, 900), QRect(0, 0, 800, 500)}})
        EXPECT_EQ(FitInside(place, area), fitted);
    // clang-format on

    Workspace w;
    w.settings.Write("Pins", "Form Left", "1900");
    w.settings.Write("Pins", "Form Top", "40");
    w.layouts.Load(*w.window, w.grid);
    EXPECT_TRUE(QRect(QPoint(), w.area.viewport()->size()).contains(w.window->geometry()));
}

TEST(WindowLayouts, TilesFollowTheirNamesAndEveryArrangementStaysInside) {
    Workspace w;
    std::vector<QMdiSubWindow*> windows{w.window};
    for (int i = 0; i < 2; ++i) {
        windows.push_back(w.area.addSubWindow(new QLabel("table")));
        windows.back()->resize(700, 450);
        windows.back()->show();
    }
    w.area.resize(800, 600);
    const QRect room(QPoint(), w.area.viewport()->size());
    for (const Arrangement a :
         {Arrangement::TileHorizontally, Arrangement::TileVertically, Arrangement::Cascade}) {
        Arrange(w.area, a);
        for (const QMdiSubWindow* sub : windows)
            EXPECT_TRUE(room.contains(sub->geometry())) << static_cast<int>(a);
    }
    Arrange(w.area, Arrangement::TileHorizontally);
    for (const QMdiSubWindow* sub : windows)
        EXPECT_EQ(sub->width(), room.width()) << "one above the other";
    Arrange(w.area, Arrangement::TileVertically);
    for (const QMdiSubWindow* sub : windows)
        EXPECT_EQ(sub->height(), room.height()) << "side by side";
    // Windows larger than the workspace shrink as they cascade, each one step further in.
    for (QMdiSubWindow* sub : windows)
        sub->resize(1000, 900);
    Arrange(w.area, Arrangement::Cascade);
    for (const QMdiSubWindow* sub : windows)
        EXPECT_TRUE(room.contains(sub->geometry())) << "cascade";
    EXPECT_LT(windows[0]->pos().y(), windows[1]->pos().y());
}

} // namespace
} // namespace zolt::shell
