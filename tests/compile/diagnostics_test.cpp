// Every finding of the compile control, each from the smallest case that
// triggers it, on top of a netlist and a sequence that have none.
#include "compile/compile_control.h"
#include "compile/netlist_analysis.h"
#include "compile/sequence_analysis.h"
#include "support/scratch_folder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>

namespace zolt::compile {
namespace {

NetlistFeed cleanNetlist() {
    NetlistFeed f;
    f.name = "N";
    f.connectors = {{"J1", 2, 0, -1, -1, "0"}, {"J2", 2, 0, -1, -1, "0"}};
    f.fixture = {{0, 0, "J1", "1"}, {0, 1, "J2", "1"}, {0, 2, "J1", "2"}, {0, 3, "J2", "2"}};
    f.wires = {{"W1", "", ""}, {"W2", "", ""}, {"W3", "", ""}, {"W4", "", ""}};
    f.pins = {{"J1", "1", "W1"}, {"J2", "1", "W1"}, {"J1", "2", "W2"}, {"J2", "2", "W4"}};
    f.splices = {{1, "W2"}, {1, "W3"}};
    f.components = {{"DIOM", 1, "W3", "W4", 0}};
    return f;
}

NetlistContext context() {
    NetlistContext c;
    c.ownFixture = true;
    c.testParameterCount = 2;
    c.deviceKinds = {"DIOM", "RESM"};
    c.codeNames = {"NET", "SPL"};
    return c;
}

struct NetlistCase {
    const char* name;
    std::function<void(NetlistFeed&)> change;
    Code code;
    int row;
};

class NetlistFinding : public testing::TestWithParam<NetlistCase> {};

TEST(NetlistFinding, CleanNetlistHasNone) {
    const NetlistAnalysis a = AnalyseNetlist(cleanNetlist(), context());
    EXPECT_TRUE(a.diagnostics.empty()) << FormatDiagnostic(a.diagnostics.front());
    // W1 joins 0 and 1; W2, the splice and W3 hang on J1-2; the diode goes on to J2-2.
    EXPECT_EQ(a.netlist.nets, (std::vector<TestPointSet>{{0, 1}, {2}, {3}}));
    EXPECT_EQ(a.netlist.components.front().netA, 1);
    EXPECT_EQ(a.netlist.components.front().netB, 2);
}

TEST_P(NetlistFinding, IsReportedOnItsRow) {
    NetlistFeed feed = cleanNetlist();
    GetParam().change(feed);
    const NetlistAnalysis a = AnalyseNetlist(feed, context());
    const auto it = std::find_if(a.diagnostics.begin(), a.diagnostics.end(),
                                 [](const Diagnostic& d) { return d.code == GetParam().code; });
    ASSERT_NE(it, a.diagnostics.end()) << "found " << a.diagnostics.size() << " others";
    EXPECT_EQ(it->row, GetParam().row) << FormatDiagnostic(*it);
    EXPECT_EQ(it->netlist, "N");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Compile, NetlistFinding, testing::Values(
    NetlistCase{"PinWithoutTestPoint", [](auto& f) { f.fixture.pop_back(); }, Code::PinWithoutTestPoint, 4},
    NetlistCase{"TestPointShared", [](auto& f) { f.fixture[3].point = 0; }, Code::TestPointShared, 4},
    NetlistCase{"TestPointOutOfRange", [](auto& f) { f.fixture[1].board = 16; }, Code::TestPointOutOfRange, 2},
    NetlistCase{"WireTooManyEnds", [](auto& f) { f.pins[3].wire = "W1"; }, Code::WireTooManyEnds, 1},
    NetlistCase{"WireWithoutEnds", [](auto& f) { f.wires.push_back({"W9", "", ""}); }, Code::WireWithoutEnds, 5},
    NetlistCase{"WireOneEnd", [](auto& f) { f.pins[2].wire = "*UNC*"; }, Code::WireOneEnd, 2},
    NetlistCase{"PinUnknownWire", [](auto& f) { f.pins[1].wire = "W7"; }, Code::PinUnknownWire, 2},
    NetlistCase{"SpliceUnknownWire", [](auto& f) { f.splices[1].wire = "W7"; }, Code::SpliceUnknownWire, 2},
    NetlistCase{"ComponentUnknownWire", [](auto& f) { f.components[0].wire2 = "W7"; }, Code::ComponentUnknownWire, 1},
    NetlistCase{"ComponentUnknownKind", [](auto& f) { f.components[0].kind = "FUSE"; }, Code::ComponentUnknownKind, 1},
    NetlistCase{"ComponentNoTestParameter", [](auto& f) { f.components[0].parameter = 2; }, Code::ComponentNoTestParameter, 1},
    NetlistCase{"ReversibleUnknownPin", [](auto& f) { f.reversibles.push_back({1, "J1", "1", "J1", "9"}); }, Code::ReversibleUnknownPin, 1},
    NetlistCase{"SwitchUnknownConnector", [](auto& f) { f.switches.push_back({"J8", "S1", "C", 1}); }, Code::SwitchUnknownConnector, 1},
    NetlistCase{"CodeNotInDictionary", [](auto& f) { f.codes = {{"NET", "1"}, {"XYZ", "2"}}; }, Code::CodeNotInDictionary, 2},
    NetlistCase{"GroupUnknownConnector", [](auto& f) { f.groups.push_back({"G", "J8", "1", "", ""}); }, Code::GroupUnknownConnector, 1},
    NetlistCase{"GroupUnknownPin", [](auto& f) { f.groups.push_back({"G", "J2", "9", "", ""}); }, Code::GroupUnknownPin, 1},
    NetlistCase{"PinUnknownConnector", [](auto& f) { f.pins.push_back({"J8", "1", "*UNC*"}); }, Code::PinUnknownConnector, 5},
    NetlistCase{"SpliceOneWire", [](auto& f) { f.splices.push_back({2, "W3"}); }, Code::SpliceOneWire, 3},
    NetlistCase{"PinOnTwoTestPoints", [](auto& f) { f.fixture.push_back({0, 5, "J1", "1"}); }, Code::PinOnTwoTestPoints, 5},
    NetlistCase{"FixtureUnknownConnector", [](auto& f) { f.fixture.push_back({0, 9, "P9", "1"}); }, Code::FixtureUnknownConnector, 5}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

// The point as the fixture writes it, and no second finding for the pin refused.
TEST(NetlistFinding, SharedTestPointIsTheOnlyFindingOfItsRow) {
    NetlistFeed feed = cleanNetlist();
    feed.fixture[3] = {12, 5, "J2", "2"};
    feed.fixture[1] = {12, 5, "J2", "1"};
    const NetlistAnalysis a = AnalyseNetlist(feed, context());
    ASSERT_EQ(a.diagnostics.size(), 1u) << FormatDiagnostic(a.diagnostics.back());
    EXPECT_EQ(a.diagnostics[0].text, "pins J2-1 and J2-2 are both on test point 12-005");
}

TEST(NetlistFinding, LinkedFixtureMayHoldOtherConnectors) {
    NetlistFeed feed = cleanNetlist();
    feed.fixture.push_back({0, 9, "P9", "1"}); // MAIN's connector, not this netlist's
    NetlistContext linked = context();
    linked.ownFixture = false;
    const NetlistAnalysis a = AnalyseNetlist(feed, linked);
    EXPECT_TRUE(a.diagnostics.empty());
    EXPECT_EQ(a.netlist.nets.size(), 3u); // P9-1 is no point of this netlist
}

TEST(NetlistImage, NamesEveryTestPointAndEveryWireWithItsNet) {
    NetlistFeed feed = cleanNetlist();
    feed.wires[0] = {"W1", "RED/BLK", "GRN"};
    const ImageNetlist n = AnalyseNetlist(feed, context()).netlist;
    EXPECT_EQ(n.points, (std::vector<ImagePoint>{
                            {0, "J1", "1"}, {1, "J2", "1"}, {2, "J1", "2"}, {3, "J2", "2"}}));
    EXPECT_EQ(n.wires, (std::vector<ImageWire>{{"W1", "RED/BLK", "GRN", 0, 0, 1},
                                               {"W2", "", "", 1, 2, -1}, // from J1-2 to the splice
                                               {"W3", "", "", 1, -1, -1},
                                               {"W4", "", "", 2, 3, -1}}));
}

// clang-format off
struct SwitchCase { const char* name; int switchType; NetlistFeed::FixturePoint common; };
// clang-format on

class SwitchCommon : public testing::TestWithParam<SwitchCase> {};

// The fixture AutoGen makes for switch DS1 on J1: the common's row, then the switch's.
TEST_P(SwitchCommon, AndTheSwitchPointAreTestPointsOfTheImage) {
    NetlistFeed feed = cleanNetlist();
    feed.fixture.push_back(GetParam().common);
    feed.fixture.push_back({0, 11, "J1", "DS1"});
    feed.switches = {{"J1", "DS1", GetParam().switchType == 3 ? "DS1-" : "COM", 1}};
    NetlistContext c = context();
    c.switchType = GetParam().switchType;
    const NetlistAnalysis a = AnalyseNetlist(feed, c);
    EXPECT_TRUE(a.diagnostics.empty()) << FormatDiagnostic(a.diagnostics.front());
    ASSERT_EQ(a.netlist.switches.size(), 1u);
    EXPECT_EQ(a.netlist.switches[0].testPoint, 11);
    EXPECT_EQ(a.netlist.switches[0].commonTestPoint, 10);
    EXPECT_EQ(a.netlist.nets.size(), 5u); // the common and the switch, each a net of its own
    EXPECT_EQ(a.netlist.points.back(), (ImagePoint{11, "J1", "DS1"}));
}

INSTANTIATE_TEST_SUITE_P(Compile, SwitchCommon,
                         testing::Values(SwitchCase{"OneForAll", 1, {0, 10, "0", "COM"}},
                                         SwitchCase{"OnePerConnector", 2, {0, 10, "J1", "COM"}},
                                         SwitchCase{"OnePerSwitch", 3, {0, 10, "J1", "DS1-"}}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(SwitchCommon, ConnectorZeroIsNoCommonWithoutSwitchesOfTypeOne) {
    NetlistFeed feed = cleanNetlist();
    feed.fixture.push_back({0, 10, "0", "COM"});
    NetlistContext c = context();
    c.switchType = 1; // but no switch rows
    const NetlistAnalysis a = AnalyseNetlist(feed, c);
    ASSERT_EQ(a.diagnostics.size(), 1u);
    EXPECT_EQ(a.diagnostics[0].code, Code::FixtureUnknownConnector);
}

std::vector<ImageCommand> dictionary() {
    return {{"END", 0, 0, 0, ""},    {"DELAY", 1, 0, 1023, ""}, {"TEST", 2, 0, 0, ""},
            {"BER", 3, 1, 1024, ""}, {"MESSAGE", 4, 0, 0, ""},  {"ALARMON", 6, 0, 0, ""},
            {"PLABEL", 7, 0, 0, ""}, {"PBEGIN", 1, 1, 50, ""},  {"BEEP", 0, 0, 0, ""},
            {"AUTO", 5, 0, 0, ""}};
}

// clang-format off
struct SequenceCase { const char* name; ImageSequenceLine line; Code code; };
// clang-format on

class SequenceFinding : public testing::TestWithParam<SequenceCase> {};

std::vector<Diagnostic> analyse(std::vector<ImageSequenceLine> lines) {
    static const auto commands = dictionary();
    static const std::vector<ImageMacroLine> macros = {{"ALARMON", "BEEP", ""}};
    return AnalyseSequence(lines, {&commands, &macros, {"MAIN", "N"}, {1, 80}});
}

TEST(SequenceFinding, CleanSequenceHasNone) {
    // clang-format off
    EXPECT_TRUE(analyse({{"TEST", "n"}, {"MESSAGE", "80"}, {"BER", "1"}, {"DELAY", "1023"}, {"ALARMON", ""}, {"END", ""}}).empty());
    // clang-format on
}

TEST_P(SequenceFinding, IsReportedOnItsLine) {
    const auto found = analyse({{"BEEP", ""}, GetParam().line, {"END", ""}});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].code, GetParam().code);
    EXPECT_EQ(found[0].row, 2);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Compile, SequenceFinding, testing::Values(
    SequenceCase{"BranchPastEnd", {"BER", "4"}, Code::BranchPastEnd},
    SequenceCase{"UnknownNetlist", {"TEST", "DOOR"}, Code::UnknownNetlist},
    SequenceCase{"UnknownUncheckedNetlist", {"AUTO", "NOPE"}, Code::UnknownNetlist},
    SequenceCase{"UnknownMessage", {"MESSAGE", "2"}, Code::UnknownMessage},
    SequenceCase{"MacroWithoutBody", {"PLABEL", "X"}, Code::MacroWithoutBody},
    SequenceCase{"PatternBlockLeft", {"PBEGIN", "1"}, Code::PatternBlockLeft},
    SequenceCase{"ParameterOutOfRange", {"DELAY", "1024"}, Code::ParameterOutOfRange},
    SequenceCase{"UnknownCommand", {"JUMP", ""}, Code::UnknownCommand}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(SequenceFinding, NoEndIsAWarningOfTheWholeSequence) {
    const auto found = analyse({{"BEEP", ""}});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].code, Code::NoEnd);
    EXPECT_EQ(SeverityOf(Code::NoEnd), Severity::Warning);
}

// The label findings, and what the warning mask does, through the control itself.
class ControlFinding : public testing::Test {
protected:
    void SetUp() override {
        control.SetProgramName("P");
        control.SetProgramFolder(folder_.string());
        control.SetWarningMask(236544); // wiring warnings masked
        control.StatusLine = [this](std::int32_t, std::int32_t, const std::string& t) {
            lines.push_back(t);
        };
    }
    std::string label(const std::string& text) {
        const auto path = folder_ / "L.EJF";
        std::ofstream(path) << text;
        return path.string();
    }

    test::ScratchFolder scratch_;
    std::filesystem::path folder_ = scratch_.path();
    NXComp control;
    std::vector<std::string> lines;
};

TEST_F(ControlFinding, LabelFilesThatCannotBeReadOrHoldTooMuch) {
    control.SetWarningMask(236768);
    EXPECT_NE(control.LoadLabelFile((folder_ / "none.EJF").string(), 1), 0);
    std::string many;
    for (int i = 0; i < 21; ++i)
        many += "F" + std::to_string(i) + "\n";
    std::vector<std::int16_t> ids;
    control.LabelField = [&](std::int16_t id, const std::string&) { ids.push_back(id); };
    EXPECT_EQ(control.LoadLabelFile(label(many), 2), 0);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].rfind("E301 ", 0), 0u) << lines[0];
    EXPECT_EQ(lines[1].rfind("E302 ", 0), 0u) << lines[1];
    EXPECT_TRUE(lines[1].ends_with("has 21 fields, more than the 20 a label holds: shorten it to "
                                   "compile"))
        << lines[1];
    ASSERT_EQ(ids.size(), 20u);
    EXPECT_EQ(ids.front(), 100);
    EXPECT_EQ(ids.back(), 119);
}

TEST_F(ControlFinding, MaskedWarningsAreNeitherShownNorCountedButGoToTheDgn) {
    control.AddCommandDef("BEEP", 0, 0, 0, "Beep");
    control.BeginNetlist();
    control.AddWire("W1", "", "", 0); // a wire with no ends: a wiring warning
    control.AddSequenceLine("BEEP", "");
    EXPECT_EQ(control.Compile(), 0);
    EXPECT_EQ(control.WarningCount(), 0);
    EXPECT_TRUE(lines.empty());
    std::ifstream dgn(folder_ / "P.dgn");
    std::string first;
    std::getline(dgn, first);
    EXPECT_EQ(first, "W105 MAIN Wire row 1: wire 'W1' has no ends\r");
    EXPECT_TRUE(std::filesystem::exists(folder_ / "P.bin"));

    control.SetWarningMask(236768);
    control.Reset();
    lines.clear();
    control.BeginNetlist();
    control.AddWire("W1", "", "", 0);
    control.Compile();
    EXPECT_EQ(control.WarningCount(), 1);
    ASSERT_EQ(lines.size(), 1u);
}

TEST_F(ControlFinding, TwoNetlistsOfOneNameAreAnError) {
    for (const char* block : {"BLK1", "BLK2", "BLK1"}) {
        control.BeginNetlist();
        control.AddCode("NET", "1");
        control.EndNetlist(block);
    }
    control.BeginNetlist();
    control.Compile();
    const auto& found = control.Diagnostics();
    ASSERT_TRUE(std::any_of(found.begin(), found.end(), [](const Diagnostic& d) {
        return d.code == Code::NetlistNameRepeated && d.netlist == "BLK1";
    }));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "P.bin"));
}

// That errors leave no image, CompileDriverTest.ErrorsKeepDownloadOffAndLeaveNoImage and
// TwoNetlistsOfOneNameAreAnError show.
TEST_F(ControlFinding, AnImageThatCannotBeWrittenIsAnError) {
    control.SetProgramFolder((folder_ / "no such folder").string());
    control.BeginNetlist();
    EXPECT_NE(control.Compile(), 0);
    EXPECT_EQ(control.ErrorCount(), 1);
    EXPECT_EQ(control.Diagnostics().back().code, Code::ImageNotWritten);
}

} // namespace
} // namespace zolt::compile
