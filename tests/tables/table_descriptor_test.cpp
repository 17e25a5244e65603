#include "core/table_columns.h"
#include "file/record_layouts.h"
#include "support/test_program.h"
#include "tables/data_table.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

struct SpecCase {
    const char* name;
    TableId id;
    std::vector<std::string_view> captions; // the named column numbers are made from these
};

void PrintTo(const SpecCase& c, std::ostream* out) {
    *out << c.name;
}

template <std::size_t N>
std::vector<std::string_view> listed(const std::array<std::string_view, N>& a) {
    return {a.begin(), a.end()};
}

// Every table a window edits; the command dictionary is read from data files only.
const SpecCase kEditedTables[] = {
    {"Groups", table::Groups, listed(groups_column::kCaptions)},
    {"Fixture", table::Fixture, listed(fixture_column::kCaptions)},
    {"Connector", table::Connector, listed(connector_column::kCaptions)},
    {"Color", table::Color, listed(color_column::kCaptions)},
    {"Wire", table::Wire, listed(wire_column::kCaptions)},
    {"Pin", table::Pin, listed(pin_column::kCaptions)},
    {"Splice", table::Splice, listed(splice_column::kCaptions)},
    {"Component", table::Component, listed(component_column::kCaptions)},
    {"Message", table::Message, listed(message_column::kCaptions)},
    {"TestParameter", table::TestParameter, listed(test_parameter_column::kCaptions)},
    {"Sequence", table::Sequence, listed(sequence_column::kCaptions)},
    {"Switches", table::Switches, listed(switches_column::kCaptions)},
    {"Reversible", table::Reversible, listed(reversible_column::kCaptions)},
    {"Code", table::Code, listed(code_column::kCaptions)},
};

class TableDescriptorTest : public ::testing::TestWithParam<SpecCase> {
protected:
    const DataTable& table() {
        const auto* t = dynamic_cast<const DataTable*>(
            program_.state.project().MainNetlist->GetTable(GetParam().id));
        EXPECT_NE(t, nullptr);
        return *t;
    }
    TestProgram program_;
};

TEST_P(TableDescriptorTest, TheTableIsWhatItsDescriptorSays) {
    const DataTable& t = table();
    const TableSpec& descriptor = t.Descriptor();
    EXPECT_EQ(descriptor.id, t.tableIndex());
    EXPECT_EQ(descriptor.ColumnCount(), t.gridColumns());
    EXPECT_EQ(descriptor.ColumnCount(), t.gridarray().Columns());
    const std::vector<std::string> captions = descriptor.Captions();
    EXPECT_EQ(std::vector<std::string_view>(captions.begin(), captions.end()), GetParam().captions);
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
    const file::RecordLayout* layout = file::LayoutOf(table().recordType());
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->tableIndex, descriptor.id);
    EXPECT_LT(layout->sequenceColumn, descriptor.ColumnCount());
    for (const file::FieldSpec& field : *layout) {
        EXPECT_GE(field.column, 0);
        EXPECT_LT(field.column, descriptor.ColumnCount());
    }
}

INSTANTIATE_TEST_SUITE_P(EveryTable, TableDescriptorTest, ::testing::ValuesIn(kEditedTables),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::test
