// What TEST MAIN reports for each kind of fault, worked out by hand on the door
// harness of analyzer_images.h.

#include "analyzer_images.h"
#include "fault_run.h"

#include <gtest/gtest.h>

namespace zolt::analyzer {
namespace {

// clang-format off
struct ScanCase { std::string name; std::vector<std::string> faults; bool miswire; std::vector<std::string> errors; };
// clang-format on

class ScanFaults : public ::testing::TestWithParam<ScanCase> {};

TEST_P(ScanFaults, TestScanReportsTheFaultInTheOperatorsTerms) {
    const auto& c = GetParam();
    test::Lines lines;
    if (c.miswire)
        lines.emplace_back("MISWIREON", "");
    lines.emplace_back("TEST", "MAIN");
    const RunResult run = test::RunWithFaults(test::DoorProgram(lines), c.faults);
    EXPECT_EQ(test::Texts(run.errors), c.errors);
    EXPECT_EQ(run.Passed(), c.errors.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, ScanFaults, ::testing::Values(
    ScanCase{"NoFault", {}, false, {}},
    ScanCase{"OpenFarEnd", {"open:J2-1"}, false, {"OPEN J1-1 TO J2-1"}},
    ScanCase{"OpenFirstPointCutsTheDiodeOff", {"open:j1-1"}, false, {"OPEN J1-1 TO J2-1", "DIODE D1 MISSING"}},
    // The diode stays on its wire when the wire's pin moves to another cavity.
    ScanCase{"SwapMovesTheDiodesWire", {"swap:J1-1,J1-3"}, false, {"OPEN J1-1 TO J2-1", "SHORT J2-1 TO J1-3", "DIODE D1 MISSING"}},
    ScanCase{"DeadPointAloneInItsNet", {"dead:0-004"}, false, {}},
    ScanCase{"ShortAcrossTheDiode", {"short:J1-1,J1-2"}, false, {"SHORT J1-1 TO J1-2", "DIODE D1 SHORTED"}},
    ScanCase{"ShortNamesTheLowerNetFirst", {"short:J2-4,J2-1"}, false, {"SHORT J1-1 TO J1-4"}},
    ScanCase{"SoftShort", {"short:J1-3,J1-4=1500"}, false, {"SOFT SHORT J1-3 TO J1-4 (1500 OHMS)"}},
    // The leak is read on the conductors, from a point of the net there.
    ScanCase{"SoftShortFromAPointNoNetHolds", {"short:J2-1,0-030", "short:0-030,J1-4=1500"}, false, {"SOFT SHORT J1-1 TO J1-4 (1500 OHMS)"}},
    ScanCase{"Swap", {"swap:J2-1,J2-2"}, false, {"OPEN J1-1 TO J2-1", "OPEN J1-2 TO J2-2", "SHORT J1-1 TO J2-2", "SHORT J2-1 TO J1-2"}},
    ScanCase{"SwapWithMiswireOn", {"swap:J2-1,J2-2"}, true,
             {"OPEN J1-1 TO J2-1, MISWIRE TO J1-2", "OPEN J1-2 TO J2-2, MISWIRE TO J1-1", "SHORT J1-1 TO J2-2", "SHORT J2-1 TO J1-2"}},
    ScanCase{"DiodeReversed", {"reverse:D1"}, false, {"DIODE D1 REVERSED"}},
    ScanCase{"DiodeMissing", {"missing:d1"}, false, {"DIODE D1 MISSING"}},
    ScanCase{"TwoFaults", {"open:J2-4", "reverse:D1"}, false, {"OPEN J1-4 TO J2-4", "DIODE D1 REVERSED"}}),
    [](const auto& info) { return info.param.name; });
// clang-format on

// clang-format off
struct BadFault { std::string name; std::string text; std::string error; };
// clang-format on

class FaultTexts : public ::testing::TestWithParam<BadFault> {};

TEST_P(FaultTexts, RefusedWithTheReason) {
    const auto image = test::DoorProgram({});
    const PointNames names({&image});
    const auto parse = ParseFault(GetParam().text, names, DesignedHarness(image));
    EXPECT_FALSE(parse.fault);
    EXPECT_EQ(parse.error, GetParam().error);
}

const std::string kKinds = "(open, dead, short, swap, missing, reverse, value, stuck-open or "
                           "stuck-closed, then ':' and what it names)";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, FaultTexts, ::testing::Values(
    BadFault{"UnknownKind", "melt:J1-1", "unknown fault 'melt:J1-1' " + kKinds},
    BadFault{"NoColon", "open", "unknown fault 'open' " + kKinds},
    BadFault{"MissingPin", "open:J9-9", "fault 'open:J9-9': no pin or test point 'J9-9'"},
    BadFault{"PointPastTheFixture", "open:16-000", "fault 'open:16-000': no pin or test point '16-000'"},
    BadFault{"ShortOfOnePin", "short:J1-1", "fault 'short:J1-1' needs two pins, separated by a comma"},
    BadFault{"SamePinTwice", "swap:J1-1,0-000", "fault 'swap:J1-1,0-000' names one pin twice"},
    BadFault{"NoSuchComponent", "reverse:D7", "fault 'reverse:D7': no component 'D7' in the harness"},
    BadFault{"ValueOfADiode", "value:D1=100", "fault 'value:D1=100': D1 is not a resistor"},
    BadFault{"ValueWithoutOhms", "value:R1", "fault 'value:R1' needs the new value: value:R3=1500"},
    BadFault{"BadOhms", "short:J1-1,J1-2=-5", "fault 'short:J1-1,J1-2=-5': the resistance is no number of ohms"}),
    [](const auto& info) { return info.param.name; });
// clang-format on

// R3 from J1-3 to J1-4 of the door harness, read with test parameter row 1:
// 2 mA and thresholds of 1.8 V and 2.2 V, so 900 to 1100 ohms. Row 2 is "N/A".
// An empty error: the harness passes.
// clang-format off
struct ResistorCase { std::string name; int parameter; std::string fault; std::string error; };
// clang-format on

class ResistorReadings : public ::testing::TestWithParam<ResistorCase> {};

TEST_P(ResistorReadings, ComponentCheckReadsTheResistorAgainstItsTestParameters) {
    auto image = test::DoorProgram({{"TEST", "MAIN"}});
    image.netlists.front().components.push_back({"RESM", 3, 2, 3, GetParam().parameter});
    image.testParameters = {{5, 2, 2, 2}, {5, 2.2f, 1.8f, 2}, {0, 0, 0, 0}};
    std::vector<std::string> faults;
    if (!GetParam().fault.empty())
        faults.push_back(GetParam().fault);
    EXPECT_EQ(test::Texts(test::RunWithFaults(image, faults).errors),
              GetParam().error.empty() ? std::vector<std::string>{}
                                       : std::vector<std::string>{GetParam().error});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, ResistorReadings, ::testing::Values(
    ResistorCase{"AsDesigned", 1, "", ""},
    ResistorCase{"OnTheUpperLimit", 1, "value:R3=1100", ""},
    ResistorCase{"OnTheLowerLimit", 1, "value:R3=900", ""},
    ResistorCase{"AboveTheLimits", 1, "value:R3=1500", "RESISTOR R3 OUT OF TOLERANCE (1500 OHMS)"},
    ResistorCase{"BelowTheLimits", 1, "value:R3=850", "RESISTOR R3 OUT OF TOLERANCE (850 OHMS)"},
    ResistorCase{"Shorted", 1, "value:R3=0", "RESISTOR R3 SHORTED"},
    ResistorCase{"DefaultsRowReadsOneValue", 0, "value:R3=1001", "RESISTOR R3 OUT OF TOLERANCE (1001 OHMS)"},
    ResistorCase{"RowWithoutCurrentReadsNoValue", 2, "value:R3=1500", ""}),
    [](const auto& info) { return info.param.name; });
// clang-format on

TEST(FaultText, ReadsBackToTheSameFault) {
    const auto image = test::DoorProgram({});
    const PointNames names({&image});
    const Harness harness = DesignedHarness(image);
    for (const std::string text :
         {"open:J1-1", "short:J1-1,J2-4=1500", "swap:J1-2,J2-2", "reverse:D1", "dead:3-007"}) {
        const auto fault = ParseFault(text, names, harness);
        ASSERT_TRUE(fault.fault) << text;
        EXPECT_EQ(ParseFault(FaultText(*fault.fault, names, harness), names, harness).fault,
                  fault.fault)
            << text;
    }
}

// clang-format off
struct WireCase { std::string name; std::string setting; std::string fault; std::string error; };
// clang-format on

class OpenWires : public ::testing::TestWithParam<WireCase> {};

TEST_P(OpenWires, OpenNamesTheNetsWiresAsAsked) {
    test::Lines lines;
    if (!GetParam().setting.empty())
        lines.emplace_back(GetParam().setting, "");
    lines.emplace_back("CONTINUITY", "MAIN");
    auto image = test::DoorProgram(lines);
    // clang-format off
    image.netlists.front().wires = {{"W1", "RED", "BLK", 0, -1, -1}, {"W3", "BLK", "", 1, -1, -1}, {"W4", "BLK", "", 1, -1, -1},
                                    {"W6", "BLU", "", 3, 5, -1}, {"W7", "BLU", "WHT", 3, 6, -1}, {"W9", "", "", -1, -1, -1}};
    // clang-format on
    const RunResult run = test::RunWithFaults(image, {GetParam().fault});
    ASSERT_EQ(run.errors.size(), 1u);
    EXPECT_EQ(run.errors.front().text, GetParam().error);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, OpenWires, ::testing::Values(
    WireCase{"NameAndColours", "", "open:J2-1", "OPEN J1-1 TO J2-1 (W1, RED/BLK)"},
    WireCase{"WiresOnly", "WIRES", "open:J2-1", "OPEN J1-1 TO J2-1 (W1)"},
    WireCase{"ColoursOnly", "COLORS", "open:J2-1", "OPEN J1-1 TO J2-1 (RED/BLK)"},
    WireCase{"SpliceNamesEachWireAndColourOnce", "", "open:J2-2", "OPEN J1-2 TO J2-2 (W3, W4, BLK)"},
    WireCase{"WireLandingOnTheStrayPin", "", "open:J2-4", "OPEN J1-4 TO J2-4 (W7, BLU/WHT)"}),
    [](const auto& info) { return info.param.name; });
// clang-format on

// clang-format off
struct SwitchCase { std::string name; std::vector<std::string> faults; std::vector<std::string> display; };
// clang-format on

class Switches : public ::testing::TestWithParam<SwitchCase> {};

// S1 on J1 between test points 10 and 11; S2 from an image without switch points.
TEST_P(Switches, SwitchScansReadEachSwitch) {
    auto image = test::DoorProgram({{"SW-CLOSED", "MAIN"}, {"SW-OPEN", "MAIN"}});
    image.netlists.front().switches = {{"J1", "S1", "", 1, 10, 11}, {"J1", "S2", "", 2, -1, -1}};
    EXPECT_EQ(test::Texts(test::RunWithFaults(image, GetParam().faults).transcript),
              GetParam().display);
}

const std::string kClosedNote =
    "SW-CLOSED MAIN: switches without test points in the image are not simulated";
const std::string kOpenNote =
    "SW-OPEN MAIN: switches without test points in the image are not simulated";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, Switches, ::testing::Values(
    SwitchCase{"Working", {}, {kClosedNote, kOpenNote}},
    SwitchCase{"StuckOpen", {"stuck-open:S1"}, {kClosedNote, "SWITCH S1 DID NOT CLOSE", kOpenNote}},
    SwitchCase{"StuckClosedByConnectorAndName", {"stuck-closed:j1-s1"}, {kClosedNote, kOpenNote, "SWITCH S1 DID NOT OPEN"}}),
    [](const auto& info) { return info.param.name; });
// clang-format on

TEST(Switches, SwitchWithoutPointsCannotBeFaulted) {
    auto image = test::DoorProgram({});
    image.netlists.front().switches = {{"J1", "S2", "", 1, -1, -1}};
    const PointNames names({&image});
    EXPECT_EQ(ParseFault("stuck-open:S2", names, DesignedHarness(image)).error,
              "fault 'stuck-open:S2': no switch 'S2' with test points in the harness");
}

} // namespace
} // namespace zolt::analyzer
