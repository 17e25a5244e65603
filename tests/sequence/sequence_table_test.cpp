#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "sequence/legacy_sequence.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/sequence_table.h"
#include "sequence/sequence_typing.h"
#include "sequence/system_sequence_table.h"
#include "sequence_lines.h"
#include "tables/data_validation.h"
#include "tables/table_fixture.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using Lines = std::vector<std::pair<std::string, std::string>>;

class SequenceTable : public testing::TableTest {
protected:
    SequenceTable() { LoadSystemSequenceTable(state_, state_.document().CurrentFile); }

    CSequenceTable& sequence() { return table<CSequenceTable>(table::Sequence); }
    TableEditor edit() { return TableEditor(sequence()); }
    void load(const Lines& lines) {
        sequence().ReDimGrid(static_cast<int>(lines.size()), 7);
        int row = 0;
        for (const auto& [command, parameter] : lines) {
            ++row;
            sequence().AddRecord_v1(row, static_cast<std::int16_t>(row), command, parameter, "", "",
                                    0, 0);
        }
    }
    void load(std::string_view lines) { load(test::SequenceLines(lines)); }
    std::string cell(int row, int column) { return sequence().gridarray().Text(row, column); }
    std::vector<std::string> column(int c) { return test::ColumnTexts(sequence().gridarray(), c); }
    std::vector<std::string> parameters() { return column(2); }
    void addMessage(int id, const std::string& text) {
        Grid& messages = main().GetTable(table::Message)->gridarray();
        messages.ReDim(messages.Rows() + 1, messages.Columns());
        messages.Set(messages.Rows(), 0, Value(static_cast<std::int16_t>(id)));
        messages.Set(messages.Rows(), 1, Value(text));
    }
    void useFile(const std::string& file) {
        state_.document().CurrentFile = file;
        LoadSystemSequenceTable(state_, file);
    }
};

TEST_F(SequenceTable, StoredLinesDeriveTheirDescription) {
    addMessage(12, "INSERT HARNESS");
    load({{" GOTO ", " 3 "}, {"MESSAGE", "12"}, {"KMESSAGE", "7"}, {"UNKNOWN", "x"}});
    EXPECT_EQ(cell(1, 1) + " " + cell(1, 2), "GOTO 3");
    EXPECT_EQ(column(3), (std::vector<std::string>{"Go To Line Number", "INSERT HARNESS", "", ""}));
    std::vector<Value> fields{Value(std::int16_t{5}), Value("NOP"),     Value(""),
                              Value("ignored"),       Value(" 4.442 "), Value(std::int32_t{77}),
                              Value(std::int16_t{3})};
    sequence().AddRecord_v1(5, fields);
    EXPECT_EQ(cell(5, 3), "No Operation");
    EXPECT_EQ(cell(5, 4), "4.442");
    EXPECT_EQ(sequence().gridarray().At(5, 5), Value(std::int32_t{77}));
    EXPECT_EQ(sequence().gridarray().At(5, 6), Value(std::int16_t{3}));
}

TEST_F(SequenceTable, TheLineAfter1024IsRefusedAndReadingGoesOn) {
    sequence().ReDimGrid(1024, 7);
    EXPECT_TRUE(sequence().AddRecord_v1(1024, 1024, "END", "", "", "", 0, 0));
    EXPECT_FALSE(sequence().AddRecord_v1(1025, 1025, "NOP", "", "", "", 0, 0));
    EXPECT_EQ(lastBox(), "Maximum number of commands is 1024.\nRecord:1025 not added.");
    EXPECT_EQ(sequence().gridarray().Rows(), 1024);
    // Typing a line is refused at the limit as well.
    EXPECT_NE(edit().AddRow({"", "NOP"}), code::None);
    EXPECT_EQ(lastBox(), "Maximum number of Sequence commands is 1024.");
    EXPECT_EQ(sequence().gridarray().Rows(), 1024);
}

// A line typed before its message, and a message edited later: the lines
// that show it follow every change of the Message table at once.
TEST_F(SequenceTable, MessagesFollowTheMessageTable) {
    load("FLASH 3; GOTO 3");
    EXPECT_EQ(cell(1, 3), "");
    addMessage(3, "PASS");
    EXPECT_EQ(cell(1, 3), "PASS");
    EXPECT_EQ(cell(2, 3), "Go To Line Number");
    main().GetTable(table::Message)->gridarray().Set(1, 1, Value("PASSED"));
    EXPECT_EQ(cell(1, 3), "PASSED");
}

// The checks of a program file's parameters, and the box each shows, are the golden
// case sequence_commands'; here a family's patterns and what a silent check shows.
TEST_F(SequenceTable, ParametersAreCheckedByTheCommandsType) {
    AddNetlist(state_, "HARNESS");
    // clang-format off
    const struct { const char* file; const char* command; const char* parameter; ErrorCode code; const char* box; } cases[] = {
        {"a.zlf", "TEST", "THIS", code::NoSuchNetlist, "Enter Valid Netlist name"},
        {"a.grv", "TEST", "this", code::None, ""},
        {"a.grv", "TEST", "PATTERN1", code::None, ""},
        {"a.grv", "TEST", "PATTERN", code::PatternWithoutNumber, "Valid entry is 'Pattern'  followed by the number 1."},
        {"a.grv", "TEST", "PATTERN2", code::PatternNumberNotOne, "Pattern number must be 1."},
        {"a.grv", "TEST", "MAIN", code::None, ""},
        {"a.grv", "TEST", "OTHER", code::NoSuchNetlist, "Enter Valid Netlist name"},
        {"a.zlf", "NOP", "anything", code::None, ""},
    };
    // clang-format on
    for (const auto& c : cases) {
        useFile(c.file);
        load(c.command);
        ui_.ClearEvents();
        EditRow row = sequence().RowForEdit(1);
        std::string value = c.parameter;
        EXPECT_EQ(sequence().CheckField(2, value, 0, row), c.code)
            << c.command << " " << c.parameter;
        EXPECT_EQ(lastBox(), c.box) << c.command << " " << c.parameter;
        // Silent checks show nothing.
        ui_.ClearEvents();
        EXPECT_EQ(sequence().CheckField(2, value, check_mode::Silent, row), c.code);
        EXPECT_TRUE(ui_.ShownBoxes().empty());
    }
}

TEST_F(SequenceTable, NetlistsOfTheManualNetlistsAreTheirCodeNames) {
    AddNetlist(state_, "MANUAL NETLISTS");
    Grid& codes =
        state_.project().FindNetlist("MANUAL NETLISTS")->GetTable(table::Code)->gridarray();
    codes.ReDim(1, codes.Columns());
    codes.Set(1, 0, Value(" Bench1 "));
    load("SHORT");
    EditRow row = sequence().RowForEdit(1);
    for (const auto& [text, expected] :
         std::vector<std::pair<std::string, ErrorCode>>{{"Bench1", code::None},
                                                        {"BENCH1", code::NoSuchNetlist},
                                                        {"MANUAL NETLISTS", code::NoSuchNetlist},
                                                        {"main", code::None}}) {
        std::string value = text;
        EXPECT_EQ(sequence().CheckField(2, value, check_mode::Silent, row), expected) << text;
    }
}

TEST_F(SequenceTable, InsertAndDeleteKeepBranchesOnTheirLines) {
    // The branch cases are SequenceRenumbering's; here the table's roads to them.
    const char* nine = "GOTO 5; GOTO 9; DBNZS 9; CASE 9; NOP; NOP; NOP; NOP; NOP";
    load("GOTO 5; GOTO 4; NOP; NOP; NOP");
    ASSERT_EQ(edit().InsertRow(5, {"", "NOP"}), code::None);
    EXPECT_EQ(parameters(), (std::vector<std::string>{"6", "4", "", "", "", ""}));
    EXPECT_EQ(cell(5, 1), "NOP");

    // An insert given up leaves the branches as they were.
    load("GOTO 2; GOTO 1; NOP");
    EXPECT_NE(edit().InsertRow(2, {"", "GOTO", "5000"}), code::None);
    EXPECT_EQ(parameters(), (std::vector<std::string>{"2", "1", ""}));

    // Several rows at once, from the highest down.
    load(nine);
    ui_.Queue(Answer::Ok);
    ASSERT_TRUE(edit().DeleteSelected({5, 7}));
    EXPECT_EQ(parameters(), (std::vector<std::string>{"5", "7", "7", "9", "", "", ""}));
    for (int r = 1; r <= 7; ++r)
        EXPECT_EQ(cell(r, 0), std::to_string(r));

    // A programmatic delete asks nothing.
    load(nine);
    ui_.ClearEvents();
    ASSERT_TRUE(sequence().DeleteLine(1, false));
    EXPECT_TRUE(ui_.ShownBoxes().empty());
    EXPECT_EQ(parameters().front(), "8");
}

// Delete refused while the sequence names the netlist is
// NetlistModel.DeleteRefusesTheManualNetlistAndNetlistsTheSequenceUses'.
TEST_F(SequenceTable, NetlistRenameFollowsIntoTheSequence) {
    AddNetlist(state_, "DOOR");
    load({{"TEST", "DOOR"}, {"MESSAGE", " door "}, {"TEST", "DOORS"}});
    frame_.SetCurrentTab(FindNetlistTab(state_, "DOOR"));
    ui_.Queue(ScriptedUi::TextAnswer{"GATE"});
    RenameNetlistCommand(state_);
    EXPECT_EQ(parameters(), (std::vector<std::string>{"GATE", "GATE", "DOORS"}));
}

TEST_F(SequenceTable, NumericParametersTakeDigitsOnly) {
    const CSequenceTable& s = sequence();
    for (const int type : {1, 3, 4}) {
        for (const int key : {int('7'), 8, 9}) // a digit, Backspace, Tab
            EXPECT_EQ(s.KeyPress(2, type, key), key) << type;
        for (const int key : {int('-'), int('a'), 13})
            EXPECT_EQ(s.KeyPress(2, type, key), 0) << type;
    }
    for (const int type : {-1, 2, 5, 7})
        EXPECT_EQ(s.KeyPress(2, type, 'a'), 'a') << type;
    // A command that takes no parameter takes no key there but Backspace and Tab.
    for (const int type : {0, 6}) {
        EXPECT_EQ(s.KeyPress(2, type, '5'), 0) << type;
        EXPECT_EQ(s.KeyPress(2, type, 8), 8) << type;
    }
    EXPECT_EQ(s.KeyPress(1, 3, 'x'), 'x');
    state_.params().SetVal(param::UpperCase, Value(std::int32_t{1}));
    EXPECT_EQ(s.KeyPress(1, 3, 'x'), 'X');
    EXPECT_EQ(s.KeyPress(2, 2, 'm'), 'M');
}

TEST_F(SequenceTable, TypingCompletesCommandsAndFiltersNumbers) {
    // clang-format off
    const struct { int column; const char* command; const char* previous; const char* typed; const char* result; int beeps; } cases[] = {
        {1, "", "", "sw-r", "SW-RND-CLOSED", 0},
        {1, "", "NOP", "QQ", "NOP", 2},
        {1, "", "", "", "", 0},
        // Key by key: a key that leads nowhere beeps and leaves the text before it.
        {1, "", "", "GOTOX", "GOTO", 1},
        {1, "", "CASE", "gotox", "GOTO", 1},
        // Commands compare trimmed.
        {1, "", "", "goto ", "GOTO", 0},
        {1, "", "NOP", " got", "GOTO", 0},
        {2, "GOTO", "", "1a2-", "12", 0},
        {2, "TEST", "", "main", "main", 0},
        {2, "PLABEL", "", "LBL 1", "LBL 1", 0},
    };
    // clang-format on
    for (const auto& c : cases) {
        const int before = ui_.Beeps();
        EXPECT_EQ(TypeSequenceCell(sequence(), c.column, c.command, c.previous, c.typed), c.result)
            << c.typed;
        EXPECT_EQ(ui_.Beeps() - before, c.beeps) << c.typed;
    }
}

TEST_F(SequenceTable, CommandsWithoutParameterSendTheCaretOn) {
    for (const char* yes : {"NOP", "ALARMOFF", " end "})
        EXPECT_TRUE(sequence().SkipsParameter(yes)) << yes;
    for (const char* no : {"PLABEL", "GOTO", "TEST", "DELAY", "FLASH", "AUTO", "NOSUCH"})
        EXPECT_FALSE(sequence().SkipsParameter(no)) << no;
}

TEST(LegacySequence, OldPatternLinesAreConverted) {
    // clang-format off
    const struct { const char* command; const char* parameter; const char* newCommand; const char* newParameter; bool changed; } cases[] = {
        {"MBEGIN", "1", "PBEGIN", "1", true},     {"MEND", "", "PEND", "", true},
        {"TEST", "MACRO1", "TEST", "MAIN", true}, {"TEST", "MACRO2", "TEST", "MACRO2", false},
        {"PBEGIN", "1", "PBEGIN", "1", false},
    };
    // clang-format on
    for (const auto& c : cases) {
        std::string command = c.command;
        std::string parameter = c.parameter;
        EXPECT_EQ(ConvertLegacySequenceLine(command, parameter).changed, c.changed) << c.command;
        EXPECT_EQ(command, c.newCommand);
        EXPECT_EQ(parameter, c.newParameter);
    }
    EXPECT_TRUE(IsPatternCommand("PEND"));
    EXPECT_FALSE(IsPatternCommand("MEND"));
}

} // namespace
} // namespace zolt
