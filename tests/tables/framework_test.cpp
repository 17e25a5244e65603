#include "table_fixture.h"
#include "tables/data_validation.h"

#include <gtest/gtest.h>

namespace zolt::testing {
namespace {

const TableSpec& nameSpec() {
    static const TableSpec descriptor{
        .id = table::Connector,
        .columns = {{.caption = "Name", .field = NewFieldDef(field_type::Text, true, 6, {}, {}, 0)},
                    {.caption = "Number",
                     .field = NewFieldDef(field_type::Integer, true, 5, Value(std::int32_t{1}),
                                          Value(std::int32_t{99999}))},
                    {.caption = "Sequence", .shown = ColumnShown::Never},
                    {.caption = "Netlist", .shown = ColumnShown::Never}}};
    return descriptor;
}

// A two-column table: a unique name and a number from 1 to 99999.
class NameTable final : public DataTable {
public:
    explicit NameTable(ProgramState& state) : DataTable(state, nameSpec()) {}
    ConfirmTexts Confirmations() const override {
        return {"Clear Names?", "Delete Name Record?", "Delete Name Records?"};
    }
    // F5 puts a new row above the current one.
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override {
        if (key != key::F5)
            return std::nullopt;
        return KeyStart{{}, 0, currentRow};
    }
    std::optional<std::string> Refusal(TableCommand command) const override {
        if (refuseInsert && command == TableCommand::Insert)
            return "No inserts here";
        return std::nullopt;
    }
    std::vector<std::vector<std::string>> deleted;
    std::vector<int> inserted;
    std::vector<int> abandoned;
    bool refuseInsert = false;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override {
        if (column == 0 && CountMatches(gridarray(), {{value, 0}}, row.row) > 0)
            return code::Duplicate;
        return code::None;
    }
    void AfterRowsInserted(int row, int count) override { inserted = {row, count}; }
    void AfterInsertAbandoned(int row) override { abandoned.push_back(row); }
    void AfterRowsDeleted(const std::vector<std::vector<std::string>>& removed) override {
        deleted = removed;
    }
};

class FrameworkTest : public TableTest {
protected:
    FrameworkTest() : names_(state_), editor_(names_) { names_.setNetlist(&main()); }
    std::vector<std::string> column0() const { return test::ColumnTexts(names_.gridarray(), 0); }
    NameTable names_;
    TableEditor editor_;
};

TEST_F(FrameworkTest, KeyPressFiltersByType) {
    struct Case {
        int type;
        char32_t key;
        const char* text;
        int maxLength;
        int upper;
        char32_t expected;
    };
    const Case cases[] = {
        {field_type::Text, U'a', "", 12, 1, U'A'},    {field_type::Text, U'a', "", 12, 0, U'a'},
        {field_type::Text, U'~', "", 12, 0, 0},       {field_type::Text, U' ', "", 12, 0, 0},
        {field_type::Text, U'x', "abc", 3, 0, 0},     {field_type::Integer, U'5', "", 3, 0, U'5'},
        {field_type::Integer, U'.', "", 3, 0, 0},     {field_type::Integer, U'-', "", 3, 0, 0},
        {field_type::Decimal, U'.', "1", 5, 0, U'.'}, {field_type::Decimal, U'-', "", 5, 0, 0},
        {field_type::Decimal, U'a', "", 5, 0, 0},     {field_type::Text, U'\b', "abc", 3, 0, U'\b'},
    };
    for (const Case& c : cases) {
        CFieldDef def = NewFieldDef(c.type, true, c.maxLength, {}, {}, c.upper);
        char32_t key = c.key;
        const int result = def.KeyPress(key, c.text, state_.params(), ui_);
        EXPECT_EQ(key, c.expected) << int(c.key) << " type " << c.type;
        EXPECT_EQ(result, c.expected == 0 ? kKeyRefused : 0);
    }
    CFieldDef readOnly = NewFieldDef(field_type::Text, false, 0);
    char32_t tilde = U'~';
    EXPECT_EQ(readOnly.KeyPress(tilde, "", state_.params(), ui_), 0);
}

TEST_F(FrameworkTest, UpperCaseModeTwoFollowsParameter) {
    CFieldDef def;
    EXPECT_FALSE(def.UpperCase(state_.params()));
    state_.params().SetVal(param::UpperCase, Value(std::int32_t{1}));
    EXPECT_TRUE(def.UpperCase(state_.params()));
    def.UpperCaseMode = 3;
    EXPECT_FALSE(def.UpperCase(state_.params()));
}

struct FieldCheckCase {
    const char* name;
    CFieldDef field;
    Value value;
    ErrorCode expected;
};

class FieldCheck : public ::testing::TestWithParam<FieldCheckCase> {};

TEST_P(FieldCheck, GivesItsCode) {
    zolt::test::TestProgram program;
    EXPECT_EQ(GetParam().field.Check(GetParam().value, program.state.params()),
              GetParam().expected);
}

const CFieldDef kText = NewFieldDef(field_type::Text, true, 4);
const CFieldDef kNumber =
    NewFieldDef(field_type::Integer, true, 5, Value(std::int32_t{1}), Value(std::int32_t{99999}));
const CFieldDef kDecimal = NewFieldDef(field_type::Decimal, true, 4, Value(0.04), Value(6.0));

// clang-format off
INSTANTIATE_TEST_SUITE_P(Framework, FieldCheck, ::testing::Values(
    FieldCheckCase{"BlankText", kText, Value("   "), code::Required},
    FieldCheckCase{"NullText", kText, Value(), code::Required},
    FieldCheckCase{"TextTrimmedToFit", kText, Value(" abcd "), code::None},
    FieldCheckCase{"TextTooLong", kText, Value("abcde"), code::TooLong},
    FieldCheckCase{"OptionalBlank", NewFieldDef(field_type::Text, false, 4), Value(""), code::None},
    FieldCheckCase{"BlankNumber", kNumber, Value(""), code::NotNumeric},
    FieldCheckCase{"Letters", kNumber, Value("x"), code::NotNumeric},
    FieldCheckCase{"BelowMinimum", kNumber, Value("0"), code::BelowMinimum},
    FieldCheckCase{"AtMaximum", kNumber, Value("99999"), code::None},
    FieldCheckCase{"AboveMaximum", kNumber, Value("100000"), code::AboveMaximum},
    FieldCheckCase{"NoType", NewFieldDef(field_type::None, true, 0), Value(""), code::None},
    FieldCheckCase{"DecimalAtMinimum", kDecimal, Value("0.04"), code::None},
    FieldCheckCase{"DecimalBelowMinimum", kDecimal, Value("0.03"), code::BelowMinimum}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST_F(FrameworkTest, OneCommonPerSwitchLetsNamesRunLong) {
    CParamList& p = state_.params();
    p.SetVal(param::SwitchType, Value(std::int32_t{3}));
    EXPECT_EQ(kText.Check(Value("abcdefgh"), p), code::None);
}

TEST_F(FrameworkTest, NumbersFormat) {
    EXPECT_EQ(kNumber.Format(Value("12abc")), "0");
    EXPECT_EQ(kNumber.Format(Value("12")), "12");
}

TEST_F(FrameworkTest, ErrorTextsAndBox) {
    const CFieldDef def =
        NewFieldDef(field_type::Integer, true, 3, Value(std::int32_t{1}), Value(std::int32_t{999}));
    EXPECT_EQ(ErrorText(code::TooLong, &def),
              "Entered data exceeds Maximum allowed Length of 3 char!");
    EXPECT_EQ(ErrorText(code::TooLong), "Entered data exceeds Maximum allowed Length!");
    EXPECT_EQ(ErrorText(code::BelowMinimum, &def), "Number must be Greater Than or Equal To 1!");
    EXPECT_EQ(ErrorText(code::AboveMaximum, &def), "Number must be Less Than or Equal To 999!");
    EXPECT_EQ(ErrorText(code::AboveMaximum), "Number is Above the Upper Limit!");
    EXPECT_EQ(ErrorText(code::ParameterBelowRange, nullptr, "1", "9"),
              "Parameter must be from 1 to 9");
    EXPECT_EQ(ErrorText(code::PinHasTwoWires), "");
    ShowError(ui_, code::WireUsedTwice);
    EXPECT_EQ(lastCaption(), "ZOLT Error - 72");
    EXPECT_EQ(lastBox(), "Wire Can Not Appear More than Twice!");
}

TEST(NextNameTest, Rules) {
    const std::pair<const char*, const char*> cases[] = {
        {"P0", "P1"},      {"P9", "P:"},       {"Z1", "Z2"}, {"AZ", "AZ"}, {"az", "az"},
        {"9999", "10000"}, {"10000", "10001"}, {"", ""},     {"7", "8"},   {"10009", "1000:"},
    };
    for (const auto& [in, out] : cases)
        EXPECT_EQ(NextName(in), out) << in;
}

TEST_F(FrameworkTest, AddRowTypesAndCommits) {
    EXPECT_EQ(editor_.AddRow({"a b~", "12"}), code::None);
    EXPECT_EQ(names_.gridarray().Text(1, 0), "ab");
    EXPECT_EQ(names_.gridarray().At(1, 3), Value(std::int32_t{0}));
    EXPECT_TRUE(state_.IsDirty());
    // The duplicate is refused when its cell is left; the row is abandoned.
    EXPECT_EQ(editor_.AddRow({"ab", "1"}), code::Duplicate);
    EXPECT_EQ(names_.gridarray().Rows(), 1);
    EXPECT_EQ(lastCaption(), "ZOLT Error - 11");
    // A cell not typed is caught by the record check.
    EXPECT_EQ(editor_.AddRow({"cd"}), code::NotNumeric);
    EXPECT_EQ(names_.gridarray().Rows(), 1);
    // Editing a row does not count the row against itself.
    EXPECT_EQ(editor_.EditCell(1, 0, "ab"), code::None);
    EXPECT_EQ(editor_.EditCell(1, 1, "0"), code::BelowMinimum);
    EXPECT_EQ(names_.gridarray().Text(1, 1), "12");
}

TEST_F(FrameworkTest, InsertPutsRowAboveAndEscapeRemovesIt) {
    editor_.AddRow({"A", "1"});
    editor_.AddRow({"C", "1"});
    EXPECT_EQ(editor_.InsertRow(2, {"B", "1"}), code::None);
    EXPECT_EQ(column0(), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(names_.inserted, (std::vector<int>{2, 1}));
    EXPECT_EQ(editor_.InsertRow(2, {"A", "1"}), code::Duplicate);
    EXPECT_EQ(column0(), (std::vector<std::string>{"A", "B", "C"}));
    ui_.ClearEvents();
    EXPECT_EQ(editor_.InsertRow(9, {"D", "1"}), code::CellRefused);
    EXPECT_EQ(lastCaption(), "No Row Selected");
    EXPECT_EQ(lastBox(), "Select row to insert new row above");
    ui_.Queue(Answer::Cancel);
    EXPECT_FALSE(ConfirmDiscardEdit(ui_));
    EXPECT_EQ(lastCaption(), "Editing in Process");
    EXPECT_EQ(lastBox(), "New data will be lost.");
}

TEST_F(FrameworkTest, CopyPasteAndCut) {
    editor_.AddRow({"A", "1"});
    editor_.AddRow({"B", "2"});
    const auto data = editor_.CopyLines({2, 1});
    EXPECT_EQ(JoinCopyData(data), "$CopyData~3~4~B~2~A~1");
    EXPECT_EQ(state_.session().CopyData, data);
    // Pasted into the same table, both rows are duplicates: the first fails and stays.
    const PasteResult stopped = editor_.Paste(JoinCopyData(data), std::nullopt);
    EXPECT_EQ(stopped.outcome, PasteResult::Outcome::Stopped);
    EXPECT_EQ(stopped.code, code::Duplicate);
    EXPECT_EQ(stopped.failedRow, 3);
    EXPECT_EQ(column0(), (std::vector<std::string>{"A", "B", "B"}));

    const PasteResult wrong = editor_.Paste("$CopyData~6~2~X~1", std::nullopt);
    EXPECT_EQ(wrong.outcome, PasteResult::Outcome::WrongTable);
    EXPECT_EQ(lastBox(), "Invalid Data type for table selected");
    EXPECT_EQ(lastCaption(), "Paste Aborted");

    // A pasted blank is not filtered: only typing is.
    const PasteResult ok = editor_.Paste("$CopyData~3~4~x y~5~Z~6", 1);
    EXPECT_EQ(ok.rows, 2);
    EXPECT_EQ(column0(), (std::vector<std::string>{"x y", "Z", "A", "B", "B"}));

    editor_.CutLines({5, 1});
    EXPECT_EQ(column0(), (std::vector<std::string>{"Z", "A", "B"}));
    ASSERT_EQ(names_.deleted.size(), 2u);
    EXPECT_EQ(names_.deleted[0][0], "B");
    EXPECT_EQ(names_.deleted[1][0], "x y");
}

TEST_F(FrameworkTest, DeleteLinesKeepsRowsFromTheCeiling) {
    names_.ReDimGrid(5001, 4);
    for (int r = 1; r <= 5001; ++r)
        names_.gridarray().Set(r, 0, Value(std::to_string(r)));
    editor_.DeleteLines({1, 5000, 5001, 4999});
    EXPECT_EQ(names_.gridarray().Rows(), 4999);
    EXPECT_EQ(names_.gridarray().Text(1, 0), "2");
    EXPECT_EQ(names_.gridarray().Text(4997, 0), "4998");
    EXPECT_EQ(names_.gridarray().Text(4998, 0), "5000");
}

TEST_F(FrameworkTest, ConfirmationsAskAndCancelKeeps) {
    editor_.AddRow({"A", "1"});
    editor_.AddRow({"B", "1"});
    EXPECT_FALSE(editor_.DeleteCurrent(0));
    EXPECT_EQ(lastBox(), "Select row to delete");
    ui_.Queue(Answer::Cancel);
    EXPECT_FALSE(editor_.DeleteCurrent(1));
    EXPECT_EQ(lastBox(), "Delete Name Record?");
    EXPECT_TRUE(editor_.DeleteSelected({1, 2}));
    EXPECT_EQ(lastBox(), "Delete Name Records?");
    EXPECT_EQ(names_.gridarray().Rows(), 0);
    EXPECT_FALSE(editor_.DeleteCurrent(1));
    editor_.AddRow({"A", "1"});
    EXPECT_TRUE(editor_.ClearTable());
    EXPECT_EQ(lastBox(), "Clear Names?");
    EXPECT_EQ(names_.gridarray().Rows(), 0);
}

// An F-key that inserts goes the insert command's road: its hooks, its
// abandon, its refusal.
TEST_F(FrameworkTest, FunctionKeyInsertsRunTheInsertHooks) {
    ASSERT_EQ(editor_.AddRow({"A", "1"}), code::None);
    ASSERT_EQ(editor_.AddRow({"B", "2"}), code::None);

    EXPECT_EQ(editor_.PressKey(key::F5, 2, {"C", "3"}), code::None);
    EXPECT_EQ(names_.inserted, (std::vector<int>{2, 1}));
    EXPECT_EQ(column0(), (std::vector<std::string>{"A", "C", "B"}));

    EXPECT_EQ(editor_.PressKey(key::F5, 1, {"A", "4"}), code::Duplicate);
    EXPECT_EQ(names_.abandoned, std::vector<int>{1});
    EXPECT_EQ(column0(), (std::vector<std::string>{"A", "C", "B"}));

    names_.refuseInsert = true;
    names_.inserted.clear();
    EXPECT_EQ(editor_.PressKey(key::F5, 1, {"D", "5"}), code::CellRefused);
    EXPECT_TRUE(names_.inserted.empty());
    ASSERT_FALSE(ui_.ShownBoxes().empty());
    EXPECT_EQ(ui_.ShownBoxes().back().text, "No inserts here");
    EXPECT_EQ(column0(), (std::vector<std::string>{"A", "C", "B"}));
}

} // namespace
} // namespace zolt::testing
