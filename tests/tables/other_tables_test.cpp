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

TEST_F(OtherTablesTest, GroupRules) {
    auto& groups = table<CGroupTable>(table::Groups);
    TableEditor ed = editor(table::Groups);
    EXPECT_EQ(ed.AddRow({"G1", "J1", "1"}), code::None);
    // The same connector/pin in another group is a duplicate.
    EXPECT_EQ(ed.AddRow({"G2", "J1", "1"}), code::DuplicatePin);
    EXPECT_EQ(lastBox(), "No Duplicate Connector/Pin Designations!");
    EXPECT_EQ(ed.AddRow({"G1", "J1", "2"}), code::None);
    EXPECT_EQ(ed.AddRow({"G1", "J1", "3"}), code::TooManyPins);
    EXPECT_EQ(ed.AddRow({"G1", "J9", "1"}), code::NoConnector);
    EXPECT_EQ(lastBox(), "Connector Name Does Not Exist!");
    EXPECT_EQ(ed.AddRow({"G1", ""}), code::CellRefused);
    EXPECT_EQ(lastBox(), "Value must be Entered!");
    // An empty connector cell allows 999 pins: only the connector check fails.
    EditRow edit = groups.NewEditRow();
    std::string pin = "7";
    EXPECT_EQ(groups.CheckField(2, pin, 1, edit), code::None);

    groups.AddRecord_v1(3, {Value("G3"), Value("J2"), Value("1"), Value("---"),
                            Value(std::int32_t{9}), Value(std::int32_t{0}), Value("RED")});
    EXPECT_EQ(groups.RowTexts(3), (std::vector<std::string>{"G3", "J2", "1", "(none)", "RED"}));
    EXPECT_EQ(groups.gridarray().Text(3, 6), "0");
    table<CColorTable>(table::Color).AddNewColor("RED");
    EXPECT_EQ(groups.GetLastColor(4), 1);
    EXPECT_EQ(groups.GetLastColor(3), 0);

    EXPECT_EQ(ed.PressKey(key::F5, 3, {"J2", "2"}), code::None);
    EXPECT_EQ(groups.gridarray().Text(4, 0), "G4");
    EXPECT_EQ(ed.PressKey(key::F6, 1, {"J2", "3"}), code::None);
    EXPECT_EQ(groups.RowTexts(2)[0], "G1");
    EXPECT_EQ(groups.RowTexts(2)[2], "3");
    // From the new row below the last one, F6 repeats the last row's group.
    const int rows = groups.gridarray().Rows();
    const std::string lastGroup = groups.RowTexts(rows)[0];
    EXPECT_EQ(ed.PressKey(key::F6, rows + 1, {"J2", "4"}), code::None);
    EXPECT_EQ(groups.RowTexts(rows + 1)[0], lastGroup);
}

TEST_F(OtherTablesTest, ReversiblePairs) {
    TableEditor ed = editor(table::Reversible);
    EXPECT_EQ(ed.AddRow({"1", "J1", "1", "J1", "1"}), code::DuplicatePin);
    EXPECT_EQ(lastBox(), "No Duplicate Connector/Pin Designations!");
    ui_.ClearEvents();
    // A pin missing from the Pin table is only a status text.
    EXPECT_EQ(ed.AddRow({"1", "J1", "1", "J2", "4"}), code::None);
    EXPECT_EQ(ui_.PanelText(3), "Connector/Pin Does Not Exist in Pin Table");
    EXPECT_TRUE(ui_.ShownBoxes().empty());
    EXPECT_EQ(ed.AddRow({"1", "J2", "1", "J2", "2"}), code::Duplicate);
    EXPECT_EQ(ed.AddRow({"2", "J1", "1", "J2", "2"}), code::DuplicatePin);
    // The second end is checked by its own columns only.
    EXPECT_EQ(ed.AddRow({"2", "J2", "1", "J1", "1"}), code::None);
    EXPECT_EQ(ed.AddRow({"3", "J9"}), code::NoConnector);
    EXPECT_EQ(lastBox(), "Connector Name Does Not Exist!");
}

TEST_F(OtherTablesTest, Messages) {
    auto& messages = table<CMessageTable>(table::Message);
    TableEditor ed = editor(table::Message);
    EXPECT_EQ(ed.AddRow({"1", "HELLO THERE~"}), code::None);
    EXPECT_EQ(messages.GetMessage(1), "HELLO THERE");
    EXPECT_EQ(messages.GetMessage(7), "");
    EXPECT_EQ(ed.AddRow({"1024", "X"}), code::AboveMaximum);
    EXPECT_EQ(ed.AddRow({"5", ""}), code::CellRefused);
    EXPECT_EQ(lastBox(), "Value must be Entered!");
    EXPECT_TRUE(messages.AddMessageRecord(2, {Value(std::int32_t{1024}), Value(" LAST ")}));
    EXPECT_EQ(messages.GetMessage(1024), "LAST");
    EXPECT_FALSE(messages.AddMessageRecord(3, {Value(std::int32_t{1025}), Value("X")}));
    EXPECT_EQ(lastBox(), "Maximum number of messages is 1024.\nRecord:1025 not added.");
    EXPECT_FALSE(messages.AddMessageRecord(1025, {Value(std::int32_t{3}), Value("X")}));
    messages.PLabelData().ReDim(20, 4);
    for (int r = 1; r <= 1100; ++r)
        messages.AddPLabelRecord_V1(r, {Value(std::int32_t{r}), Value("L")});
    EXPECT_EQ(messages.PLabelData().Rows(), 1100);
    EXPECT_EQ(messages.gridarray().Rows(), 2);
    // The all-rows check finds the stored row that no longer passes.
    EditRow any;
    int column = 0;
    EXPECT_EQ(messages.CheckRecord(column, check_mode::AllRows | check_mode::Silent, any),
              code::AboveMaximum);
    EXPECT_EQ(any.row, 2);
}

TEST_F(OtherTablesTest, CodeTable) {
    auto& codes = table<CCodeTable>(table::Code);
    TableEditor ed = editor(table::Code);
    EXPECT_EQ(ed.AddRow({"BLOCK1", "RESM", "1K"}), code::None);
    EXPECT_EQ(ed.AddRow({"BLOCK1", "CAP"}), code::None);
    EXPECT_EQ(ed.AddRow({"MAIN", "CAP"}), code::CellRefused);
    EXPECT_EQ(lastBox(), "Only Unique Names Are Allowed");
    EXPECT_EQ(lastCaption(), "Duplicate Name");
    state_.project().CompileLabels.insert("LBL1");
    EXPECT_EQ(ed.AddRow({"LBL1", "CAP"}), code::CellRefused);

    ui_.Queue(ScriptedUi::TextAnswer{"manual netlists"});
    codes.Rename(1);
    EXPECT_EQ(lastBox(), "Netlist Name is Reserved!");
    ui_.Queue(ScriptedUi::TextAnswer{"B2"});
    codes.Rename(1);
    EXPECT_EQ(codes.gridarray().Text(1, 0), "B2");
    EXPECT_EQ(codes.gridarray().Text(2, 0), "B2");

    // The sequence names the block: its last row may not go.
    Table& sequence = *main().GetTable(table::Sequence);
    sequence.ReDimGrid(1, sequence.gridColumns());
    sequence.gridarray().Set(1, 2, Value("b2"));
    EXPECT_TRUE(ed.DeleteCurrent(1));
    EXPECT_EQ(lastBox(), "Delete Manual Netlist Records?");
    EXPECT_FALSE(ed.DeleteCurrent(1));
    EXPECT_EQ(lastBox(), "All occurrences of 'B2' in the Sequence Table must be \nremoved before "
                         "deleting 'B2'.");
    EXPECT_EQ(codes.gridarray().Rows(), 1);
    EXPECT_EQ(ed.PressKey(key::F5, 1, {"NET"}), code::None);
    EXPECT_EQ(codes.gridarray().Text(2, 0), "B2");
}

TEST_F(OtherTablesTest, TestParameters) {
    DataTable& params = testParameters(1);
    TableEditor ed = editor(table::TestParameter);
    const std::tuple<int, const char*, ErrorCode> cases[] = {
        {1, "12", code::None},   {1, "12.01", code::AboveMaximum},
        {2, "0.04", code::None}, {2, "0.03", code::BelowMinimum},
        {3, "0", code::None},    {4, "", code::NotNumeric},
    };
    for (const auto& [column, value, expected] : cases)
        EXPECT_EQ(ed.EditCell(1, column, value), expected) << column << " " << value;
    const std::pair<std::function<void()>, const char*> refusals[] = {
        {[&] { ed.AddRow({"X"}); }, "Add line not permitted in Test Parameter table"},
        {[&] { ed.InsertRow(1, {"X"}); }, "Insert line not permitted in Test parameter table"},
        {[&] { ed.DeleteCurrent(1); }, "Delete line not permitted in Test Parameter table"},
    };
    for (const auto& [act, text] : refusals) {
        act();
        EXPECT_EQ(lastBox(), text);
    }
    EXPECT_EQ(params.gridarray().Rows(), 1);
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
