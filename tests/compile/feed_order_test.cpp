// The whole feed of a project that fills every table, call by call, against the
// order and the mappings the compile control is promised.
#include "compile/compile_control.h"
#include "compile_project.h"
#include "file/file_bytes.h"
#include "fixture/fixture_table.h"

#include <gtest/gtest.h>

namespace zolt::test {
namespace {

class FeedOrder : public testing::Test {
protected:
    void SetUp() override {
        p.state.params().SetVal(param::LampPin, Value(std::int32_t{1}));
        p.state.params().SetVal(param::Switches, Value(std::int32_t{1}));
        p.state.project().MacroList.Add(CMacro{"ALARMON", 1, "BEEP", ""});
        p.state.project().MacroList.Add(CMacro{"ALARMOFF", 1, "BEEPOFF", ""});
        p.state.project().MacroList.Add(CMacro{"ALARMON", 2, "ALARM", "MAIN"});
        p.addNetlist("SIDE");
        AddNetlist(p.state, "MANUAL NETLISTS");

        p.fill(table::Message, {{"1", "HELLO"}, {"2", "BYE"}});
        p.sequence({{"KMESSAGE", "1"},
                    {"ALARMON", ""},
                    {"TEST", "SIDE"},
                    {"ALARMON", ""},
                    {"CONTINUITY", "M2"},
                    {"END", ""}});
        p.fill(table::TestParameter,
               {{"A", 12.0, 0.5, 3.0, 4.0}, {"B", "", "", "N/A", ""}, {"C", "1", "2", "3", "4"}});
        p.fill(table::Fixture, {{"0-000", "J1", "1"}, {"12-005", "J1", "4"}, {"0-001", "J2", "1"}});
        p.fill(table::Connector,
               {{"J1", "4", "1", "2", "7", "0"}, {"J2", "2", "0", "", Value(), "0"}});
        p.fill(table::Switches,
               {{"J1", "S1", "C"}, {"J1", "S2", "C"}, {"J2", "S1", "C"}, {"J1", "S3", "C"}});
        p.fill(table::Groups, {{"G1", "J1", "1", "(none)", "0"}, {"G1", "J1", "2", "RED", "BLK"}});
        p.fill(table::Wire, {{"W1", "RED", "(none)"}, {"W2", "0", "BLU"}, {"W3"}});
        p.fill(table::Pin, {{"J1", "1", "W1"},
                            {"J2", "1", "W1"},
                            {"J1", "2", "(none)"},
                            {"J1", "3", ""},
                            {"J1", "4", "W2"}});
        p.fill(table::Splice, {{"1", "W2"}, {"1", "W3"}});
        p.fill(table::Component, {{"DIODE", "1", "W1", "W3", "700", "1", "1", "0"},
                                  {"ZENER", "2", "W2", "W3", "", "", "", "2"}});
        p.fill(table::Reversible, {{"1", "J1", "1", "J2", "1"}});
        p.fill(table::Connector, {{"J9", "1", "0", "", "", "0"}}, "SIDE");
        dynamic_cast<CFixtureTable&>(p.table(table::Fixture, "SIDE")).setGridMain(true);
        p.fill(table::Code,
               {{"M1", "NET", "1"}, {"M1", "SPL", "2"}, {"", "X", "Y"}, {"m2", "NET", "3"}},
               "MANUAL NETLISTS");
    }

    CompileProject p;
};

TEST_F(FeedOrder, EveryCallInItsPlaceWithItsMappedArguments) {
    p.run();
    std::vector<std::string> calls;
    int commandDefs = 0;
    for (const auto& call : p.calls)
        if (call.rfind("AddCommandDef(", 0) == 0)
            ++commandDefs;
        else
            calls.push_back(call);
    EXPECT_EQ(commandDefs, p.table(table::SequenceList).gridarray().Rows());
    const std::vector<std::string> expected = {
        "ProgramName = \"door test\"",
        "ProgramFolder = " + compile::TraceText(p.folder.string()),
        "ProgramId = \"door\"",
        "WarningMask = 236544",
        "LogMask = 0",
        "Reset()",
        "DwellTime = 0.1",
        "SwitchType = 1",
        "FixturePoints = 2048",
        "OptionFlag18 = True",
        "SeqBuild = False",
        "OptionValue5 = 1000",
        "OptionFlag2 = True",
        "AddMessage(\"1\", \"HELLO\")",
        "AddMessage(\"2\", \"BYE\")",
        "AddSequenceLine(\"KMESSAGE\", \"1\")",
        "AddSequenceLine(\"ALARMON\", \"\")",
        "AddSequenceLine(\"TEST\", \"SIDE\")",
        "AddSequenceLine(\"ALARMON\", \"\")",
        "AddSequenceLine(\"CONTINUITY\", \"M2\")",
        "AddSequenceLine(\"END\", \"\")",
        // A macro used twice is sent once, with every step of its body.
        "AddMacroLine(\"ALARMON\", \"BEEP\", \"\")",
        "AddMacroLine(\"ALARMON\", \"ALARM\", \"MAIN\")",
        // The defaults first (voltage, threshold, threshold, current); "N/A" keeps its place.
        "AddTestParameter(5, 2, 2, 2)",
        "AddTestParameter(12, 4, 3, 0.5)",
        "AddTestParameter(0, 0, 0, 0)",
        "AddTestParameter(1, 4, 3, 2)",
        "AddDevice(\"DIOM\", \"A\", \"B\", \"DIODE part\")",
        "AddDevice(\"RESM\", \"A\", \"B\", \"RESISTOR part\")",
        "AddDevice(\"PCAP\", \"A\", \"B\", \"P_CAPACITOR part\")",
        "AddDevice(\"KEL\", \"A\", \"B\", \"K_RESISTOR part\")",
        "AddDevice(\"KELG\", \"A\", \"B\", \"KG_RESISTOR part\")",
        "AddDevice(\"CAP\", \"A\", \"B\", \"CAPACITOR part\")",
        "AddDevice(\"UNET\", \"A\", \"B\", \"UNET part\")",
        "AddDevice(\"LED\", \"A\", \"B\", \"LED part\")",
        // The last netlist first: codes only, a new netlist at each change of name.
        "BeginNetlist()",
        "AddCode(\"NET\", \"1\")",
        "AddCode(\"SPL\", \"2\")",
        "EndNetlist(\"M1\")",
        "BeginNetlist()",
        "AddCode(\"NET\", \"3\")",
        "EndNetlist(\"M2\")",
        // A linked fixture sends MAIN's rows.
        "BeginNetlist()",
        "AddFixturePoint(0, 0, \"J1\", \"1\")",
        "AddFixturePoint(12, 5, \"J1\", \"4\")",
        "AddFixturePoint(0, 1, \"J2\", \"1\")",
        "AddConnector(\"J9\", 1, 0, -1, -1, \"0\")",
        "EndNetlist(\"SIDE\")",
        "BeginNetlist()",
        "AddFixturePoint(0, 0, \"J1\", \"1\")",
        "AddFixturePoint(12, 5, \"J1\", \"4\")",
        "AddFixturePoint(0, 1, \"J2\", \"1\")",
        "AddConnector(\"J1\", 4, 1, 2, 7, \"0\")",
        "AddConnector(\"J2\", 2, 0, -1, -1, \"0\")",
        "AddSwitch(\"J1\", \"S1\", \"C\", 1)",
        "AddSwitch(\"J1\", \"S2\", \"C\", 2)",
        "AddSwitch(\"J2\", \"S1\", \"C\", 1)",
        "AddSwitch(\"J1\", \"S3\", \"C\", 3)",
        "AddGroup(\"G1\", \"J1\", \"1\", \"\", \"\")",
        "AddGroup(\"G1\", \"J1\", \"2\", \"RED\", \"BLK\")",
        "AddWire(\"W1\", \"RED\", \"\", 0)",
        "AddWire(\"W2\", \"\", \"BLU\", 0)",
        "AddWire(\"W3\", \"\", \"\", 0)",
        "AddPin(\"J1\", \"1\", \"W1\")",
        "AddPin(\"J2\", \"1\", \"W1\")",
        "AddPin(\"J1\", \"2\", \"*UNC*\")",
        "AddPin(\"J1\", \"3\", \"*UNC*\")",
        "AddPin(\"J1\", \"4\", \"W2\")",
        "AddSplice(1, \"W2\")",
        "AddSplice(1, \"W3\")",
        // An unmapped kind takes the device at the row's own position.
        "AddComponent(\"DIOM\", 1, \"W1\", \"W3\", 0)",
        "AddComponent(\"RESISTOR\", 2, \"W2\", \"W3\", 2)",
        "AddReversible(1, \"J1\", \"1\", \"J2\", \"1\")",
        "Compile()",
    };
    EXPECT_EQ(calls, expected);
}

TEST_F(FeedOrder, TheProjectCompilesCleanIntoAnImageThatReadsBack) {
    // Components of known kinds on wires with a free end each; colours by number.
    p.fill(table::Color, {{"2", "RED", "BLK"}, {"4", "BLU"}});
    p.fill(table::Wire, {{"W1", "4", "2"}, {"W2", "9"}, {"W3"}, {"W4"}});
    p.fill(table::Pin, {{"J1", "1", "W1"},
                        {"J2", "1", "W1"},
                        {"J1", "2", "(none)"},
                        {"J1", "3", ""},
                        {"J1", "4", "W2"}});
    p.fill(table::Splice, {{"1", "W2"}, {"1", "W3"}});
    p.fill(table::Component, {{"DIODE", "1", "W3", "W4", "700", "1", "1", "2"}});
    EXPECT_EQ(p.run(), compile::CompileEnd::Finished);
    EXPECT_EQ(p.result.errors, 0) << p.results;
    const auto bytes = file::ReadFileBytes(p.bin().string(), 1 << 20);
    ASSERT_TRUE(bytes);
    const auto read = compile::ReadImage(
        std::span(reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()));
    ASSERT_TRUE(read.image) << read.error;
    EXPECT_EQ(*read.image, p.result.image);
    ASSERT_EQ(read.image->netlists.size(), 4u);
    const compile::ImageNetlist& main = read.image->netlists[3];
    // J1-1 and J2-1 share W1; J1-4 reaches the diode through splice 1; 12-005 is point 1541.
    EXPECT_EQ(main.nets, (std::vector<compile::TestPointSet>{{0, 1}, {1541}}));
    EXPECT_EQ(main.components[0].netA, 1);
    EXPECT_EQ(main.components[0].netB, -1);
    // The image names a wire's colours; a number without a colour stays as it is.
    EXPECT_EQ(main.wires[0], (compile::ImageWire{"W1", "BLU", "RED/BLK", 0, 0, 1}));
    EXPECT_EQ(main.wires[1], (compile::ImageWire{"W2", "9", "", 1, 1541, -1}));
    EXPECT_EQ(main.points[1], (compile::ImagePoint{1, "J2", "1"}));
    EXPECT_TRUE(read.image->netlists[0].manual);
}

} // namespace
} // namespace zolt::test
