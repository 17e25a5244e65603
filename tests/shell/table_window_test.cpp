#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "desktop.h"
#include "shell/main_window.h"
#include "shell/table_model.h"
#include "shell/table_window.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

std::vector<std::string> boxTexts(const ScriptedUi& ui) {
    std::vector<std::string> texts;
    for (const auto& b : ui.ShownBoxes())
        texts.push_back(b.text);
    return texts;
}

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
    EXPECT_EQ(boxTexts(d.ui),
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

namespace zolt::shell {
namespace {

TEST(TableWindow, ClosingAWindowWithAnOpenRowAsksFirst) {
    test_desktop::Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    QMdiSubWindow* frame = d.frameOf(table::Connector);
    w.AddLine();
    test::Type(test_desktop::Desktop::target(w), "J7");
    test::Key(test_desktop::Desktop::target(w), Qt::Key_Tab);
    ASSERT_TRUE(w.model().IsEditing());
    d.ui.Queue(Answer::Cancel);
    frame->close();
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(d.ui.ShownBoxes().back().caption, "Editing in Process");
    EXPECT_EQ(d.ui.ShownBoxes().back().text, "New data will be lost.");
    d.ui.Queue(Answer::Ok);
    frame->close();
    EXPECT_FALSE(frame->isVisible());
    EXPECT_FALSE(w.model().IsEditing());
    EXPECT_EQ(w.table().gridarray().Rows(), 0);
}

TEST(TableWindow, ClosingTheSequenceWindowTakesItsCheckMarkOff) {
    test_desktop::Desktop d;
    d.window.Action("ID_Sequence")->trigger();
    ASSERT_TRUE(d.window.Action("ID_Sequence")->isChecked());
    QMdiSubWindow* frame = d.window.windows().WindowOf(table::Sequence, 0);
    ASSERT_NE(frame, nullptr);
    frame->close();
    EXPECT_FALSE(d.window.Action("ID_Sequence")->isChecked());
    EXPECT_FALSE(d.window.state().session().SequenceVisible);
}

const TableSpec& noInsertSpec() {
    static const TableSpec descriptor{
        .id = table::Connector,
        .columns = {{.caption = "Name", .field = NewFieldDef(field_type::Text, true, 6)},
                    {.caption = "Sequence", .shown = ColumnShown::Never},
                    {.caption = "Netlist", .shown = ColumnShown::Never}}};
    return descriptor;
}

// A table whose F5 inserts above the current row and that refuses inserts.
class NoInsertTable final : public DataTable {
public:
    explicit NoInsertTable(ProgramState& state) : DataTable(state, noInsertSpec()) {}
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override {
        return key == key::F5 ? std::optional<KeyStart>(KeyStart{{"X"}, 0, currentRow})
                              : std::nullopt;
    }
    std::optional<std::string> Refusal(TableCommand command) const override {
        return command == TableCommand::Insert ? std::optional<std::string>("No inserts here")
                                               : std::nullopt;
    }
};

TEST(TableWindow, AFunctionKeyIsRefusedAsTheCommandLineRefusesIt) {
    Desktop d;
    NoInsertTable t(d.window.state());
    t.setNetlist(d.window.state().project().MainNetlist);
    t.ReDimGrid(1, t.gridColumns());
    t.gridarray().Set(1, 0, Value("A"));
    TableWindow w(t);
    w.grid().setCurrentIndex(w.model().index(0, 0));
    w.PressFunctionKey(key::F5);
    EXPECT_EQ(boxTexts(d.ui), std::vector<std::string>{"No inserts here"});
    EXPECT_FALSE(w.model().IsEditing());
    EXPECT_EQ(t.gridarray().Rows(), 1);
}

} // namespace
} // namespace zolt::shell
