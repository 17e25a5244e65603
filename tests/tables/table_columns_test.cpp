// The named column numbers are made from one caption list per table; each
// table's descriptor must carry exactly those captions, in that order.
#include "core/table_columns.h"
#include "support/test_program.h"
#include "tables/data_table.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

struct CaptionCase {
    const char* name;
    TableId id;
    std::vector<std::string_view> captions;
};

template <std::size_t N>
std::vector<std::string_view> listed(const std::array<std::string_view, N>& a) {
    return {a.begin(), a.end()};
}

class ColumnCaptions : public testing::TestWithParam<CaptionCase> {};

TEST_P(ColumnCaptions, AreTheDescriptorsCaptions) {
    test::TestProgram p;
    const auto* table =
        dynamic_cast<const DataTable*>(p.state.project().MainNetlist->GetTable(GetParam().id));
    ASSERT_NE(table, nullptr);
    const std::vector<std::string> captions = table->Descriptor().Captions();
    EXPECT_EQ(std::vector<std::string_view>(captions.begin(), captions.end()), GetParam().captions);
}

INSTANTIATE_TEST_SUITE_P(
    Tables, ColumnCaptions,
    testing::Values(CaptionCase{"Groups", table::Groups, listed(groups_column::kCaptions)},
                    CaptionCase{"Fixture", table::Fixture, listed(fixture_column::kCaptions)},
                    CaptionCase{"Connector", table::Connector, listed(connector_column::kCaptions)},
                    CaptionCase{"Color", table::Color, listed(color_column::kCaptions)},
                    CaptionCase{"Wire", table::Wire, listed(wire_column::kCaptions)},
                    CaptionCase{"Pin", table::Pin, listed(pin_column::kCaptions)},
                    CaptionCase{"Splice", table::Splice, listed(splice_column::kCaptions)},
                    CaptionCase{"Component", table::Component, listed(component_column::kCaptions)},
                    CaptionCase{"Message", table::Message, listed(message_column::kCaptions)},
                    CaptionCase{"TestParameter", table::TestParameter,
                                listed(test_parameter_column::kCaptions)},
                    CaptionCase{"Sequence", table::Sequence, listed(sequence_column::kCaptions)},
                    CaptionCase{"Switches", table::Switches, listed(switches_column::kCaptions)},
                    CaptionCase{"Reversible", table::Reversible,
                                listed(reversible_column::kCaptions)},
                    CaptionCase{"Code", table::Code, listed(code_column::kCaptions)}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt
