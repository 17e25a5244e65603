#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "shell/main_window.h"
#include "shell/table_model.h"
#include "shell/table_window.h"
#include "support/qt_app.h"
#include "support/qt_keys.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

struct Desktop {
    QApplication& app = test::QtApp();
    ScriptedUi ui;
    MemorySettingsStore settings;
    MainWindow window{ui, settings};

    Desktop() {
        window.resize(1280, 800);
        window.show();
        QApplication::setActiveWindow(&window);
        NewProject(window.state());
        window.UpdateControls();
    }
    TableWindow& open(const char* command, int table) {
        window.ToolClick(command);
        QMdiSubWindow* w =
            window.windows().WindowOf(table, window.state().ActiveNetlist->netlistIndex);
        return *static_cast<TableWindow*>(w->widget());
    }
    // Where keys go: the open cell editor, else the grid.
    static QWidget* target(TableWindow& w) {
        QWidget* focus = QApplication::focusWidget();
        return qobject_cast<QLineEdit*>(focus) ? focus : &w.grid();
    }
    // Types into the cell under the cursor and leaves it with Tab.
    static void type(TableWindow& w, const QString& text) {
        test::Type(target(w), text);
        test::Key(target(w), Qt::Key_Tab);
    }
    std::vector<std::string> boxTexts() const {
        std::vector<std::string> texts;
        for (const auto& b : ui.ShownBoxes())
            texts.push_back(b.text);
        return texts;
    }
};

TEST(TableWindow, TypedRowsAreCheckedCellByCellAndCommittedOnEnter) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    w.AddLine();
    Desktop::type(w, "J1");
    Desktop::type(w, "12");
    test::Key(&w.grid(), Qt::Key_Return);
    const Grid& grid = w.table().gridarray();
    ASSERT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Text(1, 0), "J1");
    EXPECT_EQ(grid.Text(1, 1), "12");
    EXPECT_TRUE(d.window.state().IsDirty());

    // A duplicate name is refused when its cell is left, and the cell stays open.
    w.AddLine();
    Desktop::type(w, "J1");
    EXPECT_EQ(d.boxTexts(),
              std::vector<std::string>{"Value already Exists! Enter a unique value."});
    EXPECT_TRUE(w.model().IsEditing());
    w.AbortEdit();
    EXPECT_FALSE(w.model().IsEditing());
    EXPECT_EQ(grid.Rows(), 1);
}

TEST(TableWindow, TheKeyFilterRefusesBlanksInTextAndLettersInNumbers) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    w.AddLine();
    test::Type(Desktop::target(w), "J 2");
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), "J2");
    test::Key(editor, Qt::Key_Tab);
    test::Type(Desktop::target(w), "1x2");
    editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), "12");
    EXPECT_GE(d.ui.Beeps(), 2);
}

TEST(TableWindow, DeleteAsksAndTheRecordCountFollows) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    for (const char* name : {"J1", "J2"}) {
        w.AddLine();
        Desktop::type(w, name);
        Desktop::type(w, "4");
        test::Key(&w.grid(), Qt::Key_Return);
    }
    ASSERT_EQ(w.table().gridarray().Rows(), 2);
    w.grid().setCurrentIndex(w.model().index(0, 0));
    d.ui.Queue(Answer::Ok);
    w.DeleteLine();
    EXPECT_EQ(w.table().gridarray().Rows(), 1);
    EXPECT_EQ(w.table().gridarray().Text(1, 0), "J2");
    EXPECT_EQ(d.ui.ShownBoxes().back().text, "Delete Connector Record?");
}

} // namespace
} // namespace zolt::shell
