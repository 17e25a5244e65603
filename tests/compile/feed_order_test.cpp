// The whole feed of a project that fills every table, call by call, against the
// order and the mappings the compile control is promised.
#include "compile/compile_control.h"
#include "compile_project.h"
#include "fixture/fixture_table.h"
#include "support/golden_file.h"

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

// The feed of the project above, call by call, against
// tests/data/compile/feed_order.trace. Among its rules: a macro used twice is sent
// once with its whole body; the default test parameters come first and "N/A" keeps
// its place; the last netlist comes first, the manual netlists as codes with a new
// netlist at each change of name; a linked fixture sends MAIN's rows; a component
// of an unmapped kind takes the device at its row's own position.
TEST_F(FeedOrder, EveryCallInItsPlaceWithItsMappedArguments) {
    p.run();
    std::string calls;
    int commandDefs = 0;
    for (const auto& call : p.calls)
        if (call.rfind("AddCommandDef(", 0) == 0)
            ++commandDefs;
        else
            calls += call + "\n";
    EXPECT_EQ(commandDefs, p.table(table::SequenceList).gridarray().Rows());
    const std::string folder = compile::TraceText(p.folder.string());
    calls.replace(calls.find(folder), folder.size(), "FOLDER");
    ExpectGolden(calls, "compile/feed_order.trace");
}

TEST_F(FeedOrder, TheProjectCompilesCleanIntoItsImage) {
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
    ASSERT_EQ(p.result.image.netlists.size(), 4u);
    const compile::ImageNetlist& main = p.result.image.netlists[3];
    // J1-1 and J2-1 share W1; J1-4 reaches the diode through splice 1; 12-005 is point 1541.
    EXPECT_EQ(main.nets, (std::vector<compile::TestPointSet>{{0, 1}, {1541}}));
    EXPECT_EQ(main.components[0].netA, 1);
    EXPECT_EQ(main.components[0].netB, -1);
    // The image names a wire's colours; a number without a colour stays as it is.
    EXPECT_EQ(main.wires[0], (compile::ImageWire{"W1", "BLU", "RED/BLK", 0, 0, 1}));
    EXPECT_EQ(main.wires[1], (compile::ImageWire{"W2", "9", "", 1, 1541, -1}));
    EXPECT_EQ(main.points[1], (compile::ImagePoint{1, "J2", "1"}));
    EXPECT_TRUE(p.result.image.netlists[0].manual);
}

} // namespace
} // namespace zolt::test
