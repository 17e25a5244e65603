#include "assembly/grv_test_compile.h"
#include "file/program_file.h"
#include "grv_project.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using Names = std::vector<std::string>;

struct CompileRun : test::GrvProject {
    CompileRun() {
        place("DOOR", "Doors", 1, "Fit door");
        place("SEAT", "Seats", 2, "Fit seat", true);
        state.project().Assembly.FeatureCodeData = {"Base,DOOR", "Comfort,SEAT"};
        setSequence("PBEGIN 1; TEST PATTERN; PEND");
        steps.saveChanges = [this] {
            calls.push_back("save");
            return saveAnswer;
        };
        steps.selectFeatureCodes = [this] {
            calls.push_back("select");
            state.project().SelectedFeatureCodes = state.project().Assembly.FeatureCodeData;
            return selectOk;
        };
        steps.saveAs = [this] {
            calls.push_back(std::string("saveas:") +
                            (state.document().GRVTestCompileSave ? "generated" : ""));
        };
    }
    bool run() { return RunGRVTestCompile(state, progress, steps); }

    TestCompileSteps steps;
    test::RecordingProgress progress;
    Names calls;
    Answer saveAnswer = Answer::Yes;
    bool selectOk = true;
};

TEST(GrvTestCompile, WholeRunInOrder) {
    CompileRun p;
    ASSERT_TRUE(p.run());
    EXPECT_EQ(p.calls, (Names{"save", "select", "saveas:generated"}));
    // clang-format off
    EXPECT_EQ(p.progress.captions, (Names{"Enter Pre-Compile Stage", "Getting Netlists", "Creating Combined Netlists",
        "Combining Group Tables ... SEAT", "Combining Wire Tables ... SEAT", "Combining Reverse Tables ... SEAT",
        "Combining Pin Tables ... SEAT", "Combining Component Tables ... SEAT", "Combining Splice Tables ... SEAT",
        "Looking for Patterns", "Creating New Sequence Table", "Creating New Sequence Table ...",
        "Creating List of Netlists to Compile", "Finished"}));
    // clang-format on
    EXPECT_TRUE(p.progress.hidden);
    EXPECT_FALSE(p.state.document().GRVTestCompileSave);
    EXPECT_FALSE(p.ui.Busy());
    ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Save New Test Program");
    EXPECT_EQ(p.rows(), 1);
    EXPECT_EQ(p.param(1), "DOOR");
    // The new program has no assembly data; its netlists all stay.
    EXPECT_TRUE(p.state.project().Assembly.FeatureCodeData.empty());
    EXPECT_EQ(p.state.project().Assembly.AssemblyOrderList.Count(), 0u);
    EXPECT_EQ(p.state.project().Assembly.NetlistInfoList.Count(), 0u);
    EXPECT_EQ(p.state.project().NetlistCollection.Count(), 3u);
}

TEST(GrvTestCompile, RefusedOutsideAGrvProgram) {
    CompileRun p;
    p.state.document().CurrentFile = "/tmp/plain.zlf";
    EXPECT_FALSE(p.run());
    EXPECT_TRUE(p.calls.empty());
    ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Unable To Run GRV Test Compile");
}

TEST(GrvTestCompile, CancelledSaveOrSelectionStops) {
    CompileRun p;
    p.saveAnswer = Answer::Cancel;
    EXPECT_FALSE(p.run());
    EXPECT_EQ(p.calls, (Names{"save"}));
    CompileRun q;
    q.selectOk = false;
    EXPECT_FALSE(q.run());
    EXPECT_EQ(q.calls, (Names{"save", "select"}));
    EXPECT_TRUE(q.progress.captions.empty());
}

TEST(GrvTestCompile, IncompleteDataStopsBeforeAnyChange) {
    CompileRun p;
    p.state.project().Assembly.AssemblyOrderList.Item("SEAT")->Flag = false;
    EXPECT_FALSE(p.run());
    EXPECT_EQ(p.boxTexts(), (Names{"The order of assembly is not complete."}));
    EXPECT_EQ(p.rows(), 3);
    EXPECT_EQ(p.state.project().Assembly.FeatureCodeData.size(), 2u);
}

TEST(GrvTestCompile, WithoutPatternsOnlyCombines) {
    CompileRun p;
    p.setSequence("TEST MAIN");
    ASSERT_TRUE(p.run());
    EXPECT_EQ(p.rows(), 1);
    EXPECT_EQ(p.param(1), "MAIN");
    EXPECT_EQ(std::count(p.progress.captions.begin(), p.progress.captions.end(),
                         "Creating New Sequence Table"),
              0);
}

// clang-format off
struct RefusedCase { const char* name; std::string sequence; const char* box; };
// clang-format on

class RefusedTestCompile : public testing::TestWithParam<RefusedCase> {};

// A refused run, then a save: the file is the family as it was, however often it is tried.
TEST_P(RefusedTestCompile, SavesTheFamilyByteForByte) {
    CompileRun p;
    p.place("HOOD", "Doors", 1, "Fit hood");
    p.state.project().Assembly.FeatureCodeData.push_back("Hood,HOOD");
    // SEAT is part of MAIN: a run that got as far as combining leaves its wire there.
    test::AppendRow(*p.state.project().FindNetlist("SEAT"), table::Wire,
                    {Value("S1"), Value(), Value()});
    p.setSequence(GetParam().sequence);
    const auto original = file::ProgramFileBytes(p.state, p.state.document().CurrentFile);
    ASSERT_TRUE(original);
    for (int attempt = 1; attempt <= 2; ++attempt) {
        EXPECT_FALSE(p.run());
        EXPECT_EQ(p.boxTexts().back(), GetParam().box);
        EXPECT_EQ(file::ProgramFileBytes(p.state, p.state.document().CurrentFile), original)
            << "attempt " << attempt;
    }
    EXPECT_FALSE(p.ui.Busy());
}

const std::string kLongBlock = "PBEGIN 1; " + test::GrvProject::beeps(600) + "PEND";

// clang-format off
INSTANTIATE_TEST_SUITE_P(GrvTestCompile, RefusedTestCompile, testing::Values(
    RefusedCase{"StrayPend", "PBEGIN 1; TEST PATTERN; PEND; PEND", "All 'PBEGIN' sequence commands do not have a matching 'PEND' command."},
    RefusedCase{"ExpansionPastTheLineLimit", kLongBlock, "The expanded sequence would have 1200 lines; a sequence holds 1024 at most."}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt
