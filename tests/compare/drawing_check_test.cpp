#include "compare/drawing_check.h"
#include "core/project.h"
#include "file/program_file.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::compare {
namespace {

namespace fs = std::filesystem;

using Rows = std::vector<std::vector<std::string>>;

const Rows kHeading = {{"From Connector", "From Pin", "To Connector", "To Pin", "Wire", "Colour"}};

// clang-format off
struct Case { std::string name; Rows rows; std::vector<std::string> expected; };
// clang-format on

class DrawingCheck : public testing::TestWithParam<Case> {};

// The connections of the example's left-hand build that no case changes.
const Rows kRestOfDoorLh = {
    {"J1", "1", "J2", "1"}, {"J1", "2", "J2", "2"}, {"J1", "3", "J2", "3"},
    {"J1", "3", "P3", "4"}, {"J1", "7", "J2", "7"}, {"J1", "7", "P3", "3"},
    {"J1", "8", "P3", "1"}, {"J1", "9", "P3", "2"}, {"J1", "10", "J2", "8"}};

TEST_P(DrawingCheck, ListsEachDifferenceOfTheNetlistOnce) {
    const auto loaded = file::LoadProgramFile(
        (fs::path(ZOLT_TEST_DATA_DIR).parent_path().parent_path() / "examples" / "harness.zlf")
            .string(),
        ZOLT_BIN_DIR);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    Rows rows = kHeading;
    rows.insert(rows.end(), kRestOfDoorLh.begin(), kRestOfDoorLh.end());
    rows.insert(rows.end(), GetParam().rows.begin(), GetParam().rows.end());
    const auto drawing = ReadFromToRows(rows);
    ASSERT_TRUE(drawing.ok()) << drawing.error;
    std::vector<std::string> lines;
    for (const auto& d : CheckAgainstDrawing(*loaded.project->FindNetlist("DOOR_LH"),
                                             *loaded.project->MainNetlist, drawing))
        lines.push_back(ChangeLine(d));
    EXPECT_EQ(lines, GetParam().expected);
}

const Rows kDoorLh = {{"J1", "4", "J2", "4", "W6", "BLU"}, {"J1", "5", "J2", "5", "W7", "BLU/WHT"}};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Drawings, DrawingCheck, testing::Values(
    Case{"Agrees", kDoorLh, {}},
    Case{"OtherCaseOtherOrderNoColours", {{"j2", "5", "j1", "5"}, {"j2", "4", "j1", "4"}}, {}},
    Case{"Missing", {kDoorLh[0], kDoorLh[1], {"J1", "6", "J2", "6", "W8", "RED"}}, {"DOOR_LH: missing J1-6 to J2-6"}},
    Case{"Extra", {kDoorLh[0]}, {"DOOR_LH: extra J1-5 to J2-5"}},
    Case{"JoinedNetToldOnce", {kDoorLh[0], kDoorLh[1], {"J2", "4", "J2", "5"}, {"J1", "4", "J1", "5"}}, {"DOOR_LH: missing J2-4 to J2-5"}},
    Case{"Colour", {{"J1", "4", "J2", "4", "W6", "RED"}, kDoorLh[1]}, {"DOOR_LH: J1-4 to J2-4: colour RED in the drawing, BLU here"}}),
    [](const auto& info) { return info.param.name; });
// clang-format on

// clang-format off
struct BadList { std::string name; Rows rows; std::string error; };
// clang-format on

class FromToReader : public testing::TestWithParam<BadList> {};

TEST_P(FromToReader, RefusesWithTheLine) {
    EXPECT_EQ(ReadFromToRows(GetParam().rows).error, GetParam().error);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Lists, FromToReader, testing::Values(
    BadList{"HeadingOnly", kHeading, "the list holds no connection"},
    BadList{"PinLeftOut", {kHeading[0], {}, {"J1", "", "J2", "4"}}, "line 3: a connection needs from connector, from pin, to connector and to pin"},
    BadList{"ShortRow", {{"J1", "4", "J2"}}, "line 1: a connection needs from connector, from pin, to connector and to pin"}),
    [](const auto& info) { return info.param.name; });
// clang-format on

} // namespace
} // namespace zolt::compare
