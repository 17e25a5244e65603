// Typing into a grid with the keyboard alone: what Tab and Enter store, where
// the cursor goes, and that a failed check shows its box once.
#include "core/table_kinds.h"
#include "desktop.h"
#include "shell/table_model.h"

#include <QAction>
#include <QFocusEvent>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;
using zolt::test::Key;
using zolt::test::Type;

// A real box takes the focus from the open cell while it stands.
void boxesTakeTheFocus(Desktop& d) {
    d.ui.OnEvent([](const ScriptedUi::Event& e) {
        if (e.kind != ScriptedUi::Event::Kind::Box)
            return;
        if (QWidget* focus = QApplication::focusWidget()) {
            QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
            QCoreApplication::sendEvent(focus, &out);
        }
    });
}

// Keys one by one to where the focus is, as the first key of a cell opens its editor.
void typeKeys(TableWindow& w, const QString& text) {
    for (const QChar c : text)
        Type(Desktop::target(w), QString(c));
}

TEST(GridTyping, EnterInTheCellStoresExactlyWhatWasTypedAndGoesToTheNewRow) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    w.AddLine();
    Type(Desktop::target(w), "J9");
    Key(Desktop::target(w), Qt::Key_Tab);
    Type(Desktop::target(w), "8");
    Key(Desktop::target(w), Qt::Key_Return);
    EXPECT_TRUE(d.ui.ShownBoxes().empty()) << d.ui.ShownBoxes().front().text;
    const Grid& rows = w.table().gridarray();
    EXPECT_EQ(rows.Text(1, 1), "8");
    EXPECT_FALSE(w.model().IsEditing());
    EXPECT_EQ(w.grid().currentIndex().row(), w.model().NewRowLine());
    EXPECT_EQ(w.grid().currentIndex().column(), 0);
    EXPECT_TRUE(d.window.state().IsDirty());

    // On a stored row the first Enter stores the change.
    w.grid().setCurrentIndex(w.model().index(0, 1));
    w.grid().edit(w.grid().currentIndex());
    Desktop::cell()->selectAll();
    Type(Desktop::target(w), "12");
    Key(Desktop::target(w), Qt::Key_Return);
    EXPECT_EQ(rows.Text(1, 1), "12");
    EXPECT_FALSE(w.model().IsEditing());
}

TEST(GridTyping, TabPastTheLastCellStoresTheRowAndTypingGoesOnInANewOne) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    w.AddLine();
    for (const char* text : {"J1", "4", "J2", "6"}) {
        typeKeys(w, QString::fromUtf8(text));
        Key(Desktop::target(w), Qt::Key_Tab);
    }
    const Grid& rows = w.table().gridarray();
    ASSERT_EQ(rows.Rows(), 2);
    EXPECT_EQ(rows.Text(1, 0), "J1");
    EXPECT_EQ(rows.Text(1, 1), "4");
    EXPECT_EQ(rows.Text(2, 0), "J2");
    EXPECT_EQ(rows.Text(2, 1), "6");
    EXPECT_EQ(w.grid().currentIndex().row(), w.model().NewRowLine());
}

TEST(GridTyping, AFailedCheckShowsOneBoxAndKeepsTheCellOpen) {
    struct Case {
        const char* name;
        int key;
    };
    for (const Case c : {Case{"enter", Qt::Key_Return}, Case{"tab", Qt::Key_Tab}}) {
        SCOPED_TRACE(c.name);
        Desktop d;
        TableWindow& w = d.open("ID_Connectors", table::Connector);
        Desktop::addRow(w, {"J1", "4"});
        boxesTakeTheFocus(d);
        w.AddLine();
        typeKeys(w, "J1");
        Key(Desktop::target(w), c.key);
        QCoreApplication::processEvents();
        ASSERT_EQ(d.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(d.ui.ShownBoxes()[0].text, "Value already Exists! Enter a unique value.");
        EXPECT_EQ(d.ui.ShownBoxes()[0].caption, "ZOLT Error - 11");
        EXPECT_EQ(w.table().gridarray().Rows(), 1);
        ASSERT_NE(Desktop::cell(), nullptr);
        EXPECT_EQ(w.grid().currentIndex().column(), 0);
        EXPECT_EQ(Desktop::cell()->text(), "J1");
        ASSERT_TRUE(d.window.Action("ID_AbortEdit")->isEnabled()) << c.name;
        d.window.ToolClick("ID_AbortEdit");
        EXPECT_FALSE(w.model().IsEditing());
        EXPECT_EQ(w.table().gridarray().Rows(), 1);
    }
}

// Found by random input: a click on another row while a cell's box stood
// committed the row under the check still using it.
TEST(GridTyping, AClickElsewhereWhileACellsBoxStandsLeavesTheRowOpen) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    Desktop::addRow(w, {"J1", "4"});
    d.ui.OnEvent([&w](const ScriptedUi::Event& e) {
        if (e.kind == ScriptedUi::Event::Kind::Box)
            w.grid().setCurrentIndex(w.model().index(0, 1));
    });
    w.AddLine();
    typeKeys(w, "J1");
    Key(Desktop::target(w), Qt::Key_Tab);
    QCoreApplication::processEvents();
    ASSERT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(d.ui.ShownBoxes()[0].caption, "ZOLT Error - 11");
    EXPECT_TRUE(w.model().IsEditing());
    EXPECT_EQ(w.table().gridarray().Rows(), 1);
}

// Found by random input: Ctrl+C in a grid without a current cell asked the
// model for column -1.
TEST(GridTyping, CopyWithoutACurrentCellCopiesNothing) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    Desktop::addRow(w, {"J1", "4"});
    w.grid().setCurrentIndex({});
    Key(&w.grid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(w.model().data({}, Qt::DisplayRole).isValid());
}

// What each kind of cell refuses is FrameworkTest.KeyPressFiltersByType's.
TEST(GridTyping, TheKeyFilterRefusesWhatTheCellCannotHold) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    w.AddLine();
    Type(Desktop::target(w), "J 2");
    ASSERT_NE(Desktop::cell(), nullptr);
    EXPECT_EQ(Desktop::cell()->text(), "J2");
    EXPECT_GE(d.ui.Beeps(), 1);
}

// Delete asking first is TableCommandsTest.CellInsertDeleteAndKeys'; the window's
// Delete is Undo.AStepOnAnotherTabBringsItsTabTableAndRowsToTheFront's.
TEST(GridTyping, ClosingAWindowWithAnOpenRowAsksFirst) {
    Desktop d;
    TableWindow& w = d.open("ID_Connectors", table::Connector);
    Desktop::addRow(w, {"J2", "4"});
    QMdiSubWindow* frame = d.frameOf(table::Connector);
    w.AddLine();
    Desktop::type(w, "J7");
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
    EXPECT_EQ(w.table().gridarray().Rows(), 1);
}

} // namespace
} // namespace zolt::shell
