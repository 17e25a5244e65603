// Each kind of difference leads to the row of the open program it is about, as
// the compare words it: a change of wording that loses the row fails here.
#include "compare/program_compare.h"
#include "compare/row_places.h"
#include "core/netlist.h"
#include "core/project.h"
#include "core/table_columns.h"
#include "file/program_file.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace zolt::compare {
namespace {

namespace fs = std::filesystem;

file::LoadedProgram Example() {
    return file::LoadProgramFile(
        (fs::path(ZOLT_TEST_DATA_DIR).parent_path().parent_path() / "examples" / "harness.zlf")
            .string(),
        ZOLT_BIN_DIR);
}

Grid& Rows(Project& project, const std::string& netlist, TableId table) {
    return project.FindNetlist(netlist)->GetTable(table)->gridarray();
}

// clang-format off
struct Case { std::string name; std::function<void(Project&)> edit; EditPlace expected; };
// clang-format on

void PrintTo(const Case& c, std::ostream* out) {
    *out << c.name;
}

class PlaceOfDifference : public testing::TestWithParam<Case> {};

TEST_P(PlaceOfDifference, IsTheRowOfThisProgram) {
    const auto before = Example();
    auto after = Example();
    ASSERT_TRUE(before.ok() && after.ok());
    GetParam().edit(*after.project);
    const Differences differences = CompareProjects(*before.project, *after.project);
    std::string told;
    bool found = false;
    for (const auto& difference : differences) {
        const auto place = PlaceOf(*after.project, difference);
        const EditPlace& expected = GetParam().expected;
        found = found || (place && place->netlist == expected.netlist &&
                          place->table == expected.table && place->firstRow == expected.firstRow);
        told += ChangeLine(difference) + "\n";
    }
    EXPECT_TRUE(found) << told;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(RowPlaces, PlaceOfDifference, testing::Values(
    Case{"AMovedCavityIsItsPinsRow", [](Project& p) { Rows(p, "DOOR_LH", table::Pin).Set(23, pin_column::Wire, "W13"); }, {"DOOR_LH", table::Pin, 23, 23}},
    Case{"AComponentIsItsRowByName", [](Project& p) { Rows(p, "DOOR_RH", table::Component).Set(1, component_column::Value, "650"); }, {"DOOR_RH", table::Component, 1, 1}},
    Case{"AConnectorIsItsRowByName", [](Project& p) { Rows(p, "MAIN", table::Connector).Set(3, connector_column::PinsQty, "6"); }, {"MAIN", table::Connector, 3, 3}},
    Case{"AChangedMessageIsItsRow", [](Project& p) { Rows(p, "MAIN", table::Message).Set(2, message_column::Message, "OK"); }, {"MAIN", table::Message, 2, 2}},
    Case{"AnAddedSequenceLineIsItsRowUnderAnyTab", [](Project& p) { Rows(p, "MAIN", table::Sequence).Set(10, sequence_column::Command, "BEEPOFF"); }, {"", table::Sequence, 10, 10}}),
    [](const auto& info) { return info.param.name; });
// clang-format on

TEST(PlaceOfDifference, SettingsHaveNoRow) {
    const auto example = Example();
    ASSERT_TRUE(example.ok());
    EXPECT_FALSE(PlaceOf(*example.project, {"settings", "File", "Switches now 1 (was 0)"}));
}

} // namespace
} // namespace zolt::compare
