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
}

TEST(WindowLayouts, AMaximisedWindowKeepsItsLastNormalSize) {
    Workspace w;
    w.window->setGeometry(40, 50, 420, 260);
    w.layouts.Save(*w.window, w.grid);
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

} // namespace
} // namespace zolt::shell
