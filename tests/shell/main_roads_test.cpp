// The roads a newcomer takes through the desktop: a new program from a
// template, typing rows, undo and redo, save, close, open again, a locked file.
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "desktop.h"
#include "file/program_file.h"
#include "shell/main_window.h"
#include "shell/table_model.h"
#include "shell/table_window.h"
#include "support/qt_app.h"
#include "support/qt_keys.h"

#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTableView>
#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

namespace fs = std::filesystem;

struct Desktop {
    QApplication& app = test::QtApp();
    QTemporaryDir place;
    ScriptedUi ui;
    MemorySettingsStore settings;
    std::unique_ptr<MainWindow> window;

    Desktop() {
        settings.Write("User Settings", "ProgramsDirectory", place.path().toStdString());
        settings.Write("User Settings", "TemplatesDirectory", place.path().toStdString());
        window = std::make_unique<MainWindow>(ui, settings);
        // A template is an ordinary program file: write an empty project as one.
        NewProject(window->state());
        file::WriteProgramFile(window->state(), file("Basic.zlt"));
        window->state().DestroyAll();
        window->state().document().FileOpen = false;
        window->resize(1280, 800);
        window->show();
        QApplication::setActiveWindow(window.get());
        ui.ClearEvents();
    }
    std::string file(const char* name) const { return place.filePath(name).toStdString(); }
    // File > New from the template, saved under `name`.
    void newProgram(const char* name) {
        answer(file("Basic.zlt"));
        answer(file(name));
        window->ToolClick("ID_New");
    }
    void answer(const std::string& text) { ui.Queue(ScriptedUi::TextAnswer{text}); }
    TableWindow& connectors() {
        window->ToolClick("ID_Connectors");
        QMdiSubWindow* w = window->windows().WindowOf(table::Connector, 0);
        return *static_cast<TableWindow*>(w->widget());
    }
    static QWidget* target(TableWindow& w) { return test_desktop::Desktop::target(w); }
    const Grid& connectorRows() const {
        return window->state().project().MainNetlist->GetTable(table::Connector)->gridarray();
    }
    int rows() const { return connectorRows().Rows(); }
};

TEST(MainRoads, NewTypeUndoSaveCloseAndOpenAgain) {
    Desktop d;
    d.newProgram("Harness.zlf");
    ASSERT_TRUE(d.window->state().document().FileOpen);
    EXPECT_EQ(d.window->windowTitle(), "Thessor ZOLT 6.0 - Harness.zlf");
    EXPECT_TRUE(fs::exists(d.file("Harness.lck")));

    TableWindow& w = d.connectors();
    test_desktop::Desktop::addRow(w, {"J1", "12"});
    test_desktop::Desktop::addRow(w, {"J2", "8"});
    ASSERT_EQ(d.rows(), 2);

    d.window->ToolClick("ID_Undo");
    d.window->ToolClick("ID_Undo");
    EXPECT_EQ(d.rows(), 0);
    EXPECT_FALSE(d.window->state().IsDirty()) << "undone back to the saved state";
    d.window->ToolClick("ID_Redo");
    d.window->ToolClick("ID_Redo");
    EXPECT_EQ(d.rows(), 2);
    ASSERT_NE(d.window->windows().WindowOf(table::Connector, 0), nullptr) << "the window came back";

    d.window->ToolClick("ID_Save");
    EXPECT_FALSE(d.window->state().IsDirty());
    d.window->ToolClick("ID_Close");
    EXPECT_FALSE(d.window->state().document().FileOpen);
    EXPECT_FALSE(fs::exists(d.file("Harness.lck")));
    EXPECT_FALSE(d.window->Action("ID_Undo")->isEnabled()) << "history goes with the project";

    d.answer(d.file("Harness.zlf"));
    d.window->ToolClick("ID_Open");
    ASSERT_TRUE(d.window->state().document().FileOpen);
    EXPECT_EQ(d.rows(), 2);
    EXPECT_EQ(d.connectorRows().Text(2, 0), "J2");
}

TEST(MainRoads, AProgramOpensWithItsTablesAndSaveAsKeepsThem) {
    Desktop d;
    const auto shown = [&d](TableId table, int netlist) {
        const QMdiSubWindow* w = d.window->windows().WindowOf(table, netlist);
        return w && !w->isHidden();
    };
    d.newProgram("Harness.zlf");
    ASSERT_TRUE(d.window->state().document().FileOpen);
    EXPECT_TRUE(shown(table::Connector, 0));
    EXPECT_TRUE(shown(table::Wire, 0));
    EXPECT_TRUE(shown(table::Pin, 0));

    AddNetlist(d.window->state(), "DOOR");
    d.window->ToolClick("ID_Splices");
    d.window->ToolClick("ID_Colors");
    const int door = d.window->state().project().ActiveNetlist->netlistIndex;
    d.answer(d.file("Copy.zlf"));
    d.window->ToolClick("ID_SaveAs");
    ASSERT_EQ(d.window->state().document().CurrentFile, d.file("Copy.zlf"));
    EXPECT_EQ(d.window->state().project().ActiveNetlist->NetlistName, "DOOR");
    EXPECT_TRUE(shown(table::Splice, door));
    EXPECT_TRUE(shown(table::Color, 0));
    EXPECT_FALSE(shown(table::Connector, door)) << "only what was open comes back";

    d.window->ToolClick("ID_Close");
    d.answer(d.file("Copy.zlf"));
    d.window->ToolClick("ID_Open");
    EXPECT_TRUE(shown(table::Connector, 0));
    EXPECT_TRUE(shown(table::Pin, 0));
}

// Ctrl+S while a row is typed into a clean project: the row goes through its
// checks and is saved with the rest; a refused row is not saved, and says so.
TEST(MainRoads, SaveWhileARowIsTypedStoresTheRowFirst) {
    Desktop d;
    d.newProgram("Typed.zlf");
    TableWindow& w = d.connectors();
    w.AddLine();
    test::Type(Desktop::target(w), "J1");
    test::Key(Desktop::target(w), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(w.model().IsEditing()) << "Pins Qty is required";
    EXPECT_EQ(d.rows(), 0);
    EXPECT_EQ(d.ui.PanelText(3), "Not saved: correct the row being typed, or Escape");

    test::Type(Desktop::target(w), "4");
    QAction* save = d.window->Action("ID_Save");
    ASSERT_TRUE(save->isEnabled()) << "Ctrl+S reaches a row being typed";
    save->trigger();
    EXPECT_FALSE(w.model().IsEditing());
    EXPECT_EQ(d.rows(), 1);
    EXPECT_FALSE(d.window->state().IsDirty());
}

} // namespace
} // namespace zolt::shell
