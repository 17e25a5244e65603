#include "file/record_layouts.h"
#include "program_session.h"
#include "tables/data_table.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

struct SpecCase {
    const char* name;
    TableId id;
};

// Every table a window edits; the command dictionary is read from data files only.
const SpecCase kEditedTables[] = {
    {"Groups", table::Groups},
    {"Fixture", table::Fixture},
    {"Connector", table::Connector},
    {"Color", table::Color},
    {"Wire", table::Wire},
    {"Pin", table::Pin},
    {"Splice", table::Splice},
    {"Component", table::Component},
    {"Message", table::Message},
    {"TestParameter", table::TestParameter},
    {"Sequence", table::Sequence},
    {"Switches", table::Switches},
    {"Reversible", table::Reversible},
    {"Code", table::Code},
};

class TableDescriptorTest : public ::testing::TestWithParam<SpecCase> {
protected:
    const DataTable& table() {
        const auto* t = dynamic_cast<const DataTable*>(&session_.table(GetParam().id));
        EXPECT_NE(t, nullptr);
        return *t;
    }
    Session session_;
};

TEST_P(TableDescriptorTest, TheTableIsWhatItsDescriptorSays) {
    const DataTable& t = table();
    const TableSpec& descriptor = t.Descriptor();
    EXPECT_EQ(descriptor.id, t.TableIndex());
    EXPECT_EQ(descriptor.ColumnCount(), t.gridColumns());
    EXPECT_EQ(descriptor.ColumnCount(), t.gridarray().Columns());
}

// The field definitions are looked up by position: a typed column behind an
// untyped one would never be checked.
TEST_P(TableDescriptorTest, TypedColumnsComeFirst) {
    const TableSpec& descriptor = table().Descriptor();
    const auto firstUntyped = std::find_if(descriptor.columns.begin(), descriptor.columns.end(),
                                           [](const ColumnSpec& c) { return !c.field; });
    EXPECT_TRUE(std::none_of(firstUntyped, descriptor.columns.end(),
                             [](const ColumnSpec& c) { return c.field.has_value(); }));
    EXPECT_GT(table().FieldCount(), 0);
}

TEST_P(TableDescriptorTest, TheRecordLayoutFitsTheColumns) {
    const TableSpec& descriptor = table().Descriptor();
    const file::RecordLayout* layout = file::LayoutOf(table().RecordType());
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->tableNumber, descriptor.id);
    EXPECT_LT(layout->sequenceColumn, descriptor.ColumnCount());
    for (const file::FieldSpec& field : *layout) {
        EXPECT_GE(field.column, 0);
        EXPECT_LT(field.column, descriptor.ColumnCount());
    }
}

TEST_P(TableDescriptorTest, TheOwningNetlistColumnIsNeverShown) {
    const DataTable& t = table();
    EXPECT_EQ(t.Descriptor().Column(t.NetlistColumn()).shown, ColumnShown::Never);
}

TEST_P(TableDescriptorTest, ButtonsHaveNamesCaptionsAndKeysOfTheWindow) {
    for (const TableButton& button : table().Descriptor().buttons) {
        EXPECT_STRNE(button.name, "");
        EXPECT_STRNE(button.caption, "");
        if (button.action == ButtonAction::FunctionKey) {
            EXPECT_GE(button.key, key::F5) << button.name;
            EXPECT_LE(button.key, key::F8) << button.name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryTable, TableDescriptorTest, ::testing::ValuesIn(kEditedTables),
                         [](const auto& info) { return std::string(info.param.name); });

struct ShownCase {
    const char* name;
    ColumnSpec column;
    double parameterValue;
    bool shown;
};

class ShownBySettingsTest : public ::testing::TestWithParam<ShownCase> {};

TEST_P(ShownBySettingsTest, FollowsTheParameter) {
    Session session;
    session.state.Params().SetVal(param::LampPin, Value(GetParam().parameterValue));
    EXPECT_EQ(ShownBySettings(GetParam().column, session.state.Params()), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Columns, ShownBySettingsTest,
    ::testing::Values(
        ShownCase{"Typed", TypedColumn(NewFieldDef(field_type::Text, true, 1)), 0, true},
        ShownCase{"Hidden", HiddenColumn(), 1, false},
        ShownCase{
            "ParameterOn",
            {.caption = "Lamp", .shown = ColumnShown::ByParameter, .parameter = param::LampPin},
            1,
            true},
        ShownCase{
            "ParameterOff",
            {.caption = "Lamp", .shown = ColumnShown::ByParameter, .parameter = param::LampPin},
            0,
            false},
        ShownCase{"WindowSwitch", {.caption = "Desc", .shown = ColumnShown::DetailView}, 0, true}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::test
