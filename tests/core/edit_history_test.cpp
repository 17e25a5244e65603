#include "core/edit_history.h"
#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/program_session.h"
#include "tables/table_editor.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using test::ScratchFolder;
using test::Session;

struct Edited {
    ScratchFolder dir;
    Session s;
    EditHistory& history = s.state.History();
    Edited() {
        s.state.document().CurrentFile = dir.file("Door.zlf");
        file::WriteProgramFile(s.state, s.state.document().CurrentFile);
        history.Reset();
    }
    TableEditor connectors() {
        return TableEditor(*s.state.project().MainNetlist->TableAs<DataTable>(table::Connector));
    }
    int connectorRows() { return s.grid(table::Connector).Rows(); }
};

TEST(EditHistory, UndoAndRedoWalkTheEditsAndTheDocumentIsCleanAtTheSavedState) {
    Edited e;
    ASSERT_EQ(e.connectors().AddRow({"J1", "4"}), code::None);
    EXPECT_TRUE(e.history.Record());
    ASSERT_EQ(e.connectors().AddRow({"J2", "6"}), code::None);
    EXPECT_TRUE(e.history.Record());
    EXPECT_FALSE(e.history.Record()) << "nothing changed since";
    EXPECT_TRUE(e.s.state.IsDirty());

    ASSERT_TRUE(e.history.Undo());
    EXPECT_FALSE(e.history.Record()) << "a step back is no new edit";
    EXPECT_EQ(e.connectorRows(), 1);
    EXPECT_TRUE(e.s.state.IsDirty());
    ASSERT_TRUE(e.history.Undo());
    EXPECT_EQ(e.connectorRows(), 0);
    EXPECT_FALSE(e.s.state.IsDirty()) << "back at what the file holds";
    EXPECT_FALSE(e.history.CanUndo());

    ASSERT_TRUE(e.history.Redo());
    ASSERT_TRUE(e.history.Redo());
    EXPECT_EQ(e.connectorRows(), 2);
    EXPECT_EQ(e.s.grid(table::Connector).Text(2, 0), "J2");
    EXPECT_FALSE(e.history.CanRedo());
}

TEST(EditHistory, NetlistsComeBackWithTheirTabsAndANewEditDropsTheRedo) {
    Edited e;
    e.s.ui.QueueFirst(ScriptedUi::TextAnswer{"DOOR"});
    NewNetlistCommand(e.s.state);
    e.history.Record();
    e.s.deleteNetlist("DOOR");
    e.history.Record();
    ASSERT_EQ(e.s.state.project().FindNetlist("DOOR"), nullptr);
    ASSERT_TRUE(e.history.Undo());
    ASSERT_NE(e.s.state.project().FindNetlist("DOOR"), nullptr);
    EXPECT_EQ(e.s.frame.TabCount(), 2);
    EXPECT_EQ(e.s.frame.TabCaption(1), "DOOR");
    e.connectors().AddRow({"J9", "1"});
    e.history.Record();
    EXPECT_FALSE(e.history.CanRedo());
    EXPECT_TRUE(e.history.CanUndo());
}

TEST(EditHistory, SavingMovesTheCleanState) {
    Edited e;
    e.connectors().AddRow({"J1", "4"});
    e.history.Record();
    file::WriteProgramFile(e.s.state, e.s.state.document().CurrentFile);
    e.history.MarkSaved();
    e.history.Undo();
    EXPECT_TRUE(e.s.state.IsDirty()) << "the file now holds J1";
    e.history.Redo();
    EXPECT_FALSE(e.s.state.IsDirty());
}

// A record written over a row is one change of the cells that differ.
TEST(EditHistory, ARecordWrittenOverARowComesBackWhole) {
    Edited e;
    ASSERT_EQ(e.connectors().AddRow({"J1", "4"}), code::None);
    e.history.Record();
    e.s.state.project()
        .MainNetlist->GetTable(table::Connector)
        ->AddRecord_v1(1, {Value("J9"), Value("8")});
    e.history.Record();
    const Grid& grid = e.s.grid(table::Connector);
    ASSERT_TRUE(e.history.Undo());
    EXPECT_EQ(grid.Text(1, 0) + "," + grid.Text(1, 1), "J1,4");
    ASSERT_TRUE(e.history.Redo());
    EXPECT_EQ(grid.Text(1, 0) + "," + grid.Text(1, 1), "J9,8");
}

} // namespace
} // namespace zolt
