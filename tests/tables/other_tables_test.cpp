#include "table_fixture.h"
#include "tables/code_table.h"
#include "tables/color_table.h"
#include "tables/connector_table.h"
#include "tables/group_table.h"
#include "tables/message_table.h"
#include "tables/reverse_table.h"
#include "tables/test_parameter_table.h"

namespace zolt::testing {
namespace {

class OtherTablesTest : public TableTest {
protected:
    OtherTablesTest() {
        editor(table::Connector).AddRow({"J1", "2"});
        editor(table::Connector).AddRow({"J2", "5"});
        editor(table::Wire).AddRow({"W1"});
        editor(table::Pin).AddRow({"J1", "1", "W1"});
        ui_.ClearEvents();
    }
    // `rows` test parameter rows of "DEFAULT" and 5s.
    DataTable& testParameters(int rows) {
        DataTable& params = data(table::TestParameter);
        params.ReDimGrid(rows, params.gridColumns());
        for (int r = 1; r <= rows; ++r)
            for (int c = 0; c < 5; ++c)
                params.gridarray().Set(r, c, Value(c == 0 ? "DEFAULT" : "5"));
        return params;
    }
};

// What typing into these tables does is the golden case other_tables'; here what
// only a file read, a rename or a check of every row reaches.
TEST_F(OtherTablesTest, GroupRowsReadFromAFile) {
    auto& groups = table<CGroupTable>(table::Groups);
    // An empty connector cell allows 999 pins: only the connector check fails.
    EditRow edit = groups.NewEditRow();
    std::string pin = "7";
    EXPECT_EQ(groups.CheckField(2, pin, 1, edit), code::None);
    groups.AddRecord_v1(1, {Value("G3"), Value("J2"), Value("1"), Value("---"),
                            Value(std::int32_t{9}), Value(std::int32_t{0}), Value("RED")});
    EXPECT_EQ(groups.RowTexts(1), (std::vector<std::string>{"G3", "J2", "1", "(none)", "RED"}));
    EXPECT_EQ(groups.gridarray().Text(1, 6), "0");
    table<CColorTable>(table::Color).AddNewColor("RED");
    EXPECT_EQ(groups.GetLastColor(4), 1);
    EXPECT_EQ(groups.GetLastColor(3), 0);
}

TEST_F(OtherTablesTest, MessagesReadFromAFileKeepTheLimit) {
    auto& messages = table<CMessageTable>(table::Message);
    EXPECT_TRUE(messages.AddMessageRecord(1, {Value(std::int32_t{1024}), Value(" LAST ")}));
    EXPECT_EQ(messages.GetMessage(1024), "LAST");
    EXPECT_EQ(messages.GetMessage(7), "");
    EXPECT_FALSE(messages.AddMessageRecord(2, {Value(std::int32_t{1025}), Value("X")}));
    EXPECT_EQ(lastBox(), "Maximum number of messages is 1024.\nRecord:1025 not added.");
    EXPECT_FALSE(messages.AddMessageRecord(1025, {Value(std::int32_t{3}), Value("X")}));
    messages.PLabelData().ReDim(20, 4);
    for (int r = 1; r <= 1100; ++r)
        messages.AddPLabelRecord_V1(r, {Value(std::int32_t{r}), Value("L")});
    EXPECT_EQ(messages.PLabelData().Rows(), 1100);
    EXPECT_EQ(messages.gridarray().Rows(), 1);
    // The all-rows check finds the stored row that no longer passes.
    EditRow any;
    int column = 0;
    EXPECT_EQ(messages.CheckRecord(column, check_mode::AllRows | check_mode::Silent, any),
              code::AboveMaximum);
    EXPECT_EQ(any.row, 1);
}

TEST_F(OtherTablesTest, CodeBlocksAreRenamedWholeAndRefuseCompileLabels) {
    auto& codes = table<CCodeTable>(table::Code);
    TableEditor ed = editor(table::Code);
    ASSERT_EQ(ed.AddRow({"BLOCK1", "RESM", "1K"}), code::None);
    ASSERT_EQ(ed.AddRow({"BLOCK1", "CAP"}), code::None);
    state_.project().CompileLabels.insert("LBL1");
    EXPECT_EQ(ed.AddRow({"LBL1", "CAP"}), code::CellRefused);
    ui_.Queue(ScriptedUi::TextAnswer{"manual netlists"});
    codes.Rename(1);
    EXPECT_EQ(lastBox(), "Netlist Name is Reserved!");
    ui_.Queue(ScriptedUi::TextAnswer{"B2"});
    codes.Rename(1);
    EXPECT_EQ(codes.gridarray().Text(1, 0), "B2");
    EXPECT_EQ(codes.gridarray().Text(2, 0), "B2");
}

// Test parameters are fixed rows: copying lines takes nothing, cutting removes
// nothing, and pasting lines adds none.
TEST_F(OtherTablesTest, TestParameterRowsStayFixedThroughCutCopyAndPaste) {
    DataTable& params = testParameters(2);
    TableEditor ed = editor(table::TestParameter);
    state_.session().CopyData = {"$CopyData", "10", "5", "X", "5", "5", "5", "5"};
    EXPECT_TRUE(ed.CopyLines({1}).empty());
    EXPECT_TRUE(ed.CutLines({1, 2}).empty());
    EXPECT_EQ(params.gridarray().Rows(), 2);
    EXPECT_EQ(state_.session().CopyData.size(), 8u); // the clipboard is left as it was
    const PasteResult pasted = ed.Paste(JoinCopyData(state_.session().CopyData), 1);
    EXPECT_EQ(pasted.rows, 0);
    EXPECT_EQ(lastBox(), "Insert line not permitted in Test parameter table");
    EXPECT_EQ(params.gridarray().Rows(), 2);
    EXPECT_EQ(params.gridarray().Text(1, 0), "DEFAULT");
}

} // namespace
} // namespace zolt::testing
