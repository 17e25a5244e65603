// The sequence's flow, counters, keys and messages, worked out by hand on the door
// harness, with J2-1 open where a case needs an error.

#include "analyzer_images.h"
#include "fault_run.h"
#include "sequence/sequence_lines.h"

#include <gtest/gtest.h>

namespace zolt::analyzer {
namespace {

struct FlowCase {
    std::string name;
    std::string lines;
    bool open; // J2-1 open: CONTINUITY MAIN finds one error
    std::string keys;
    std::vector<std::string> display;
    RunEnd end;
    std::size_t endLine;
};

RunResult RunDoor(std::string_view lines, bool open, const std::string& keys,
                  std::size_t stepLimit = 100) {
    RunOptions options;
    options.keys = keys.empty() ? Keys{} : ParseKeys(keys).keys;
    options.stepLimit = stepLimit;
    return test::RunWithFaults(
        test::DoorProgram(test::SequenceLines(lines)),
        open ? std::vector<std::string>{"open:J2-1"} : std::vector<std::string>{}, options);
}

class Flow : public ::testing::TestWithParam<FlowCase> {};

TEST_P(Flow, DisplayAndEnd) {
    const auto& c = GetParam();
    const RunResult run = RunDoor(c.lines, c.open, c.keys);
    EXPECT_EQ(test::Texts(run.transcript), c.display);
    EXPECT_EQ(run.end, c.end) << run.endText;
    EXPECT_EQ(run.endLine, c.endLine);
}

const std::string kOpen = "OPEN J1-1 TO J2-1";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, Flow, ::testing::Values(
    FlowCase{"BranchOnErrorTaken", "CONTINUITY MAIN; BER 4; MESSAGE 1; MESSAGE 2", true, "", {kOpen, "SECOND"}, RunEnd::LastLine, 5},
    FlowCase{"BranchOnErrorNotTaken", "CONTINUITY MAIN; BER 4; MESSAGE 1; END", false, "", {"FIRST"}, RunEnd::End, 4},
    FlowCase{"BranchOnShortIgnoresAnOpen", "TEST MAIN; BSH 4; MESSAGE 1; BOP 6; MESSAGE 2; MESSAGE 3", true, "", {kOpen, "FIRST", "THIRD"}, RunEnd::LastLine, 7},
    FlowCase{"ShortScanDoesNotSeeAnOpen", "SHORT MAIN; BNER 3; MESSAGE 1", true, "", {"FIRST"}, RunEnd::LastLine, 4},
    FlowCase{"SkipNextOnError", "CONTINUITY MAIN; OESN; MESSAGE 1; MESSAGE 2", true, "", {kOpen, "SECOND"}, RunEnd::LastLine, 5},
    FlowCase{"RepeatPreviousOnce", "CONTINUITY MAIN; OERP; END", true, "", {kOpen, kOpen}, RunEnd::End, 3},
    FlowCase{"SubroutineAndReturn", "GOSUB 4; MESSAGE 2; END; MESSAGE 1; RETURN", false, "", {"FIRST", "SECOND"}, RunEnd::End, 3},
    FlowCase{"ReturnWithoutGosub", "RETURN", false, "", {}, RunEnd::ProgramError, 1},
    FlowCase{"BranchToNoLine", "GOTO 9", false, "", {}, RunEnd::ProgramError, 1},
    FlowCase{"NetlistNotInTheProgram", "TEST NOPE", false, "", {}, RunEnd::ProgramError, 1},
    FlowCase{"SwitchToTheCaseOfTheHoldingValue", "HOLDING= 2; SWITCH; CASE 1; MESSAGE 1; CASE 2; MESSAGE 2", false, "", {"SECOND"}, RunEnd::LastLine, 7},
    FlowCase{"GoCaseWithoutTheCase", "GOCASE 5", false, "", {}, RunEnd::ProgramError, 1},
    FlowCase{"LoopsWithoutEnd", "NOP; GOTO 1", false, "", {}, RunEnd::StepLimit, 1},
    FlowCase{"BreakOnError", "EBRK; CONTINUITY MAIN; MESSAGE 1", true, "", {kOpen}, RunEnd::BreakOnError, 2},
    FlowCase{"StopKeyEndsWhereAllowed", "LSTOP; KMESSAGE 1; MESSAGE 2", false, "stop", {"FIRST"}, RunEnd::StopKey, 2},
    FlowCase{"StopKeyPassedOverWithoutLstop", "KMESSAGE 1; MESSAGE 2", false, "stop,start", {"FIRST", "SECOND"}, RunEnd::LastLine, 3},
    FlowCase{"BranchOnStartKey", "BST 3; MESSAGE 1; MESSAGE 2", false, "start", {"SECOND"}, RunEnd::LastLine, 4},
    FlowCase{"BranchOnKeySwitchNeedsTheKey", "BKEY 3; MESSAGE 1; MESSAGE 2", false, "start", {"FIRST", "SECOND"}, RunEnd::LastLine, 4},
    FlowCase{"MessageNotInTheProgram", "MESSAGE 9", false, "", {"(message 9 is not in the program)"}, RunEnd::LastLine, 2},
    FlowCase{"OutsideTheModelIsNamed", "BSET 3; REPEAT", false, "", {"BSET 3: control port, outside the simulation"}, RunEnd::Repeat, 2},
    FlowCase{"RunHandsOver", "RUN 4; MESSAGE 1", false, "", {}, RunEnd::OtherProgram, 1}),
    [](const auto& info) { return info.param.name; });
// clang-format on

TEST(Counters, DbnzsCountsScountDown) {
    const auto run =
        RunDoor("HOLDING= 3; SCOUNT=; RCOUNT++; DBNZS 3; HOLDING= 3; RCOUNT==", false, "");
    EXPECT_EQ(run.counters.rcount, 3);
    EXPECT_EQ(run.counters.scount, 0);
    EXPECT_EQ(run.counters.holding, 1);
    EXPECT_EQ(run.timesRun, (std::vector<int>{1, 1, 3, 3, 1, 1}));
}

TEST(Counters, KeyPadValueTimesAndCompare) {
    const auto run =
        RunDoor("KVALUE; HOLDING*= 3; RCOUNT=; HOLDING= 40; RCOUNT<; BHR 8; MESSAGE 1; MESSAGE 2",
                false, "12");
    EXPECT_EQ(run.counters.rcount, 36);
    EXPECT_EQ(run.counters.holding, 1);
    ASSERT_EQ(run.transcript.size(), 1u);
    EXPECT_EQ(run.transcript[0].text, "SECOND");
}

TEST(Verdict, ResetClearsAnErrorTheProgramMeantToTry) {
    const std::string_view lines = "CONTINUITY MAIN; RESET; END";
    const auto run = RunDoor(lines, true, "");
    EXPECT_EQ(run.errors.size(), 1u);
    EXPECT_TRUE(run.Passed());
    EXPECT_FALSE(RunDoor("CONTINUITY MAIN; END", true, "").Passed());
}

TEST(Time, DelaysAreSimulated) {
    const auto run = RunDoor("DELAY 600; DELAYT 5", false, "");
    EXPECT_DOUBLE_EQ(run.seconds, 600.5);
}

TEST(Macros, BodyRunsOnItsLineAndItsPrinterLineIsNamed) {
    auto image = test::DoorProgram(test::SequenceLines("PLABEL TAG1; MESSAGE 1"));
    image.macros = {
        {"PLABEL", "SERIAL2", ""}, {"PLABEL", "PMESSAGE", "80"}, {"PLABEL", "GOTO", "1"}};
    const auto run = analyzer::Run(image, DesignedHarness(image), PointNames({&image}), {});
    ASSERT_EQ(run.transcript.size(), 4u);
    EXPECT_EQ(run.transcript[0].text, "SERIAL2: serial port and printer, outside the simulation");
    EXPECT_EQ(run.transcript[1].text,
              "PMESSAGE 80: serial port and printer, outside the simulation");
    EXPECT_EQ(run.transcript[2].text, "a branch inside a macro body is not followed");
    EXPECT_EQ(run.transcript[3].line, 2u);
}

TEST(Keys, UnknownKeyIsRefused) {
    EXPECT_EQ(ParseKeys("start,jump").error, "unknown key 'JUMP' (start, stop, key or a number)");
    EXPECT_EQ(ParseKeys("Start,STOP,key,7").keys, (Keys{"START", "STOP", "KEY", "7"}));
}

TEST(DesignedHarness, AnotherBuildOfTheFixtureIsLeftOut) {
    auto left = test::MakeNetlist("LH", {{2, 3}, {4, 5}});
    auto right = test::MakeNetlist("RH", {{2, 5}, {4, 3}});
    auto main = test::MakeNetlist("MAIN", {{0, 1}, {2}, {3}});
    const auto image =
        test::MakeProgram(test::SequenceLines("TEST RH; TEST LH"), {left, right, main});
    EXPECT_EQ(HarnessNetlists(image), (std::vector<std::string>{"MAIN", "RH"}));
    const auto run = analyzer::Run(image, DesignedHarness(image), PointNames({&image}), {});
    ASSERT_EQ(run.errors.size(), 4u);
    EXPECT_EQ(run.errors.front().line, 2u);
}

} // namespace
} // namespace zolt::analyzer
