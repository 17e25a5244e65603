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
    EditHistory& history = s.state.history();
    Edited() {
        s.state.document().CurrentFile = dir.file("Door.zlf");
        file::WriteProgramFile(s.state, s.state.document().CurrentFile);
        history.Reset();
    }
    TableEditor connectors() {
        return TableEditor(*s.state.project().MainNetlist->TableAs<DataTable>(table::Connector));
    }
};

// Record tells a new edit from none, and the document is clean exactly at the
// saved state; RandomEdits walks long histories back and forth.
TEST(EditHistory, RecordTellsANewEditAndTheDocumentIsCleanAtTheSavedState) {
    Edited e;
    ASSERT_EQ(e.connectors().AddRow({"J1", "4"}), code::None);
    EXPECT_TRUE(e.history.Record());
    ASSERT_EQ(e.connectors().AddRow({"J2", "6"}), code::None);
    EXPECT_TRUE(e.history.Record());
    EXPECT_FALSE(e.history.Record()) << "nothing changed since";
    ASSERT_TRUE(e.history.Undo());
    EXPECT_FALSE(e.history.Record()) << "a step back is no new edit";
    EXPECT_EQ(e.s.grid(table::Connector).Rows(), 1);
    EXPECT_TRUE(e.s.state.IsDirty());
    ASSERT_TRUE(e.history.Undo());
    EXPECT_FALSE(e.s.state.IsDirty()) << "back at what the file holds";
    EXPECT_FALSE(e.history.CanUndo());
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
