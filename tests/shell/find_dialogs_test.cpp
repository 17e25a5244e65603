// The find dialogs over a table window: the cursor goes to what is found, a
// replace is typed into the cell as the user would type it.
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "desktop.h"
#include "shell/find_dialog.h"
#include "shell/find_replace_dialog.h"
#include "shell/tab_pick_dialog.h"
#include "shell/table_model.h"
#include "support/test_program.h"
#include "tables/color_table.h"

#include <QPushButton>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

struct Pins : Desktop {
    TableWindow* pins;
    Pins() {
        CNetList& main = *window.state().project().MainNetlist;
        for (const char* connector : {"J1", "J2"})
            zolt::test::AppendRow(main, table::Connector, {Value(connector), Value("4")});
        for (const auto& [connector, pin, wire] :
             {std::tuple{"J1", "1", "W1"}, {"J2", "1", "W2"}, {"J2", "2", "W1"}})
            zolt::test::AppendRow(main, table::Pin, {Value(connector), Value(pin), Value(wire)});
        zolt::test::AppendRow(main, table::Wire, {Value("W1")});
        zolt::test::AppendRow(main, table::Wire, {Value("W2")});
        pins = &open("ID_Pins", table::Pin);
        window.history().Reset();
    }
    template <typename T> T* dialog(const char* name) {
        return window.findChild<T*>(QString::fromUtf8(name));
    }
    static void click(QDialog* d, const char* button) {
        d->findChild<QPushButton*>(QString::fromUtf8(button))->click();
    }
    static void setText(QDialog* d, const char* box, const char* text) {
        d->findChild<QLineEdit*>(QString::fromUtf8(box))->setText(QString::fromUtf8(text));
    }
    std::optional<CellPosition> cursor() const { return CurrentCell(*pins); }
};

TEST(FindDialog, ConnectorPinModeMovesTheCursorAndTheEndBoxFollows) {
    Pins d;
    d.window.ToolClick("ID_Find");
    auto* find = d.dialog<FindDialog>("frmFind");
    ASSERT_NE(find, nullptr);
    EXPECT_TRUE(find->isVisible());
    EXPECT_EQ(find->windowTitle(), "Find in Pins Table");
    auto* column = find->findChild<QComboBox*>("cmbColumn");
    ASSERT_EQ(column->count(), 4);
    column->setCurrentText("Connector/Pin");
    Pins::setText(find, "txtFindWhat", "J2");
    auto* findNext = find->findChild<QPushButton*>("cmdFindNext");
    EXPECT_FALSE(findNext->isEnabled()); // the pin is still missing
    Pins::setText(find, "txtPins", "2");
    Pins::click(find, "cmdFindNext");
    EXPECT_EQ(d.cursor(), (CellPosition{3, 0}));
    Pins::click(find, "cmdFindNext");
    EXPECT_EQ(d.ui.ShownBoxes().back().text, "ZOLT 6.0 has finished searching the table.");
}

// The dialog steps off the cell it found, and Replace starts from what Find looked for.
TEST(FindDialog, StaysOffTheFoundCellAndHandsItsTextToReplace) {
    Pins d;
    d.window.ToolClick("ID_Find");
    auto* find = d.dialog<FindDialog>("frmFind");
    ASSERT_NE(find, nullptr);
    find->findChild<QComboBox*>("cmbColumn")->setCurrentText("Wire");
    Pins::setText(find, "txtFindWhat", "W2");
    const QModelIndex index = d.pins->model().index(1, 2);
    const QRect visual = d.pins->grid().visualRect(index);
    find->move(d.pins->grid().viewport()->mapToGlobal(visual.topLeft()));
    Pins::click(find, "cmdFindNext");
    ASSERT_EQ(d.cursor(), (CellPosition{2, 2}));
    const QRect cell(
        d.pins->grid().viewport()->mapToGlobal(d.pins->grid().visualRect(index).topLeft()),
        visual.size());
    EXPECT_FALSE(find->frameGeometry().intersects(cell));

    d.window.ToolClick("ID_Replace");
    auto* replace = d.dialog<FindReplaceDialog>("frmFindReplace");
    ASSERT_NE(replace, nullptr);
    EXPECT_EQ(replace->findChild<QLineEdit*>("txtFind")->text(), "W2");
}

TEST(FindReplaceDialog, ReplaceTypesTheCellAndIsOneStep) {
    Pins d;
    d.window.ToolClick("ID_Replace");
    auto* replace = d.dialog<FindReplaceDialog>("frmFindReplace");
    ASSERT_NE(replace, nullptr);
    const Grid& grid = d.window.state().project().MainNetlist->GetTable(table::Pin)->gridarray();
    Pins::setText(replace, "txtFind", "1");
    Pins::click(replace, "cmdFindNext");
    ASSERT_EQ(d.cursor(), (CellPosition{1, 1}));

    Pins::setText(replace, "txtReplace", "3");
    Pins::click(replace, "cmdReplace");
    EXPECT_EQ(grid.Text(1, 1), "3");
    EXPECT_EQ(d.pins->model().data(d.pins->model().index(0, 1), Qt::DisplayRole).toString(), "3");
    EXPECT_EQ(d.cursor(), (CellPosition{2, 1}));

    EXPECT_EQ(d.window.history().UndoText(), "Undo Edit Pin Record");
    d.window.ToolClick("ID_Undo");
    EXPECT_EQ(grid.Text(1, 1), "1");
    EXPECT_FALSE(d.window.history().CanUndo());
}

TEST(TabPickDialog, OffersTheTabsUnderTheWarningCaption) {
    zolt::test::QtApp();
    const file::TabOffer offer{
        "Warning: Pins table will be overwritten.", "Select Tab to Copy From", {"DOOR", "SEAT"}};
    TabPickDialog dialog(offer, "frmCopyDetail");
    EXPECT_EQ(dialog.windowTitle(), "Warning: Pins table will be overwritten.");
    EXPECT_EQ(dialog.Picked(), "DOOR");
    TabPickDialog empty(file::TabOffer{"", "", {}}, "frmImportDetail");
    EXPECT_FALSE(empty.Picked());
    EXPECT_FALSE(empty.findChild<QPushButton*>("cmdOK")->isEnabled());
}

} // namespace
} // namespace zolt::shell
