// The compiler window's run without the window: its settings, its pre-checks,
// the label rules with their boxes, and what a compile leaves behind.
#include "compile_project.h"
#include "core/app_info.h"
#include "core/ports/frame_controls.h"
#include "tables/message_table.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

using compile::CompileEnd;

class CompileDriverTest : public testing::Test {
protected:
    void SetUp() override {
        p.fill(table::Message, {{"1", "START"}});
        p.sequence({{"KMESSAGE", "1"}, {"END", ""}});
    }
    CMessageTable& messages() { return dynamic_cast<CMessageTable&>(p.table(table::Message)); }
    void writeLabel(const std::string& name, const std::string& text) {
        p.state.params().SetVal(param::EJFDirectory, Value(p.folder.string()));
        std::ofstream(p.folder / (name + ".EJF")) << text;
    }

    CompileProject p;
};

TEST_F(CompileDriverTest, CleanCompileWritesImageEnablesDownloadAndStampsTheDate) {
    p.state.project().NeedsCompile = true;
    std::ofstream(p.bin()) << "old";
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    EXPECT_EQ(p.results, "Compiling: MAIN\n\nWarnings: Turned Off\nErrors: 0");
    EXPECT_FALSE(p.state.project().NeedsCompile);
    EXPECT_TRUE(p.state.IsDirty());
    EXPECT_DOUBLE_EQ(p.state.project().CompiledDate, 46349.5); // 23 November 2026, noon
    EXPECT_GT(std::filesystem::file_size(p.bin()), 16u);
    EXPECT_TRUE(std::filesystem::exists(p.dgn()));
}

TEST_F(CompileDriverTest, ErrorsKeepDownloadOffAndLeaveNoImage) {
    std::ofstream(p.bin()) << "old";
    p.state.params().SetVal(param::CompWarnings, Value(std::int32_t{1}));
    p.sequence({{"KMESSAGE", "7"}});
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    EXPECT_NE(p.results.find("E203 MAIN Sequence row 1: KMESSAGE shows message '7'"),
              std::string::npos);
    EXPECT_TRUE(p.results.ends_with("\nWarnings: 1\nErrors: 1")) << p.results;
    EXPECT_FALSE(std::filesystem::exists(p.bin()));
}

TEST_F(CompileDriverTest, MissingNetlistStopsBeforeAnyFeed) {
    p.sequence({{"TEST", "DOOR"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::MissingNetlist);
    EXPECT_EQ(
        p.results,
        "Compilation aborted. All netlists referrenced \nin the Sequence Table are not present.");
    EXPECT_TRUE(p.ui.ShownBoxes().empty());
    EXPECT_EQ(p.calls.back(), "OptionFlag2 = True");
}

TEST_F(CompileDriverTest, OnlyTheLastNetlistLineDecidesTheReferenceCheck) {
    p.addNetlist("SIDE");
    p.sequence({{"TEST", "DOOR"}, {"TEST", "SIDE"}, {"END", ""}});
    EXPECT_NE(p.run(), CompileEnd::MissingNetlist);
    p.sequence({{"TEST", "SIDE"}, {"TEST", "DOOR"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::MissingNetlist);
    p.sequence({{"BEEP", ""}, {"END", ""}});
    EXPECT_NE(p.run(), CompileEnd::MissingNetlist);
}

TEST_F(CompileDriverTest, ManualNetlistLookupWalksTheGivenNetlists) {
    AddNetlist(p.state, "MANUAL NETLISTS");
    test::AppendRow(*p.state.project().FindNetlist("MANUAL NETLISTS"), table::Code,
                    {Value("EXTRA"), Value("1"), Value("2")});
    p.sequence({{"TEST", " extra "}, {"END", ""}});
    compile::CompileRequest request = compile::CompileDriver(p.state, p.clock).Request();
    EXPECT_NE(compile::Compile(p.state.project(), request).end, CompileEnd::MissingNetlist);
    // A variant's compile: the family's netlists, not what the filter left in the program.
    request.manualNetlists = {p.state.project().MainNetlist};
    EXPECT_EQ(compile::Compile(p.state.project(), request).end, CompileEnd::MissingNetlist);
    request.manualNetlists.push_back(p.state.project().FindNetlist("MANUAL NETLISTS"));
    EXPECT_NE(compile::Compile(p.state.project(), request).end, CompileEnd::MissingNetlist);
}

TEST_F(CompileDriverTest, ProgramIdIsTheFirstWordOrTheFirstSixteenCharacters) {
    // "door test" gives "door": FeedOrder's trace.
    EXPECT_EQ(compile::ProgramIdOf(" leading blank and more"), " leading blank a");
    EXPECT_EQ(compile::ProgramIdOf("ABCDEFGHIJKLMNOPQRST"), "ABCDEFGHIJKLMNOP");
}

TEST_F(CompileDriverTest, LogMaskEmptyMeansEverything) {
    p.state.params().SetVal(param::CompLogMask, Value(""));
    p.run();
    EXPECT_EQ(p.result.logMask, -1);
    EXPECT_NE(p.results.find("MAIN: 0 nets, 0 test points, 0 components"), std::string::npos);
    EXPECT_NE(p.results.find("Image: "), std::string::npos);
}

TEST_F(CompileDriverTest, ResultsStopGrowingAtTheCapButTheCountsAreWritten) {
    p.state.params().SetVal(param::CompWarnings, Value(std::int32_t{1}));
    std::vector<std::vector<Value>> wires;
    Table& t = p.table(table::Wire);
    t.ReDimGrid(3000, t.gridColumns());
    for (int r = 1; r <= 3000; ++r)
        t.gridarray().Set(r, 0, Value("WIRE" + std::to_string(r)));
    p.run();
    EXPECT_EQ(p.result.warnings, 3000);
    const std::string counts = "\nWarnings: 3000\nErrors: 0";
    ASSERT_TRUE(p.results.ends_with(counts));
    EXPECT_LE(p.results.size(), compile::CompileResult::kResultsLimit + 100 + counts.size());
    EXPECT_GE(p.results.size(), compile::CompileResult::kResultsLimit);
}

TEST_F(CompileDriverTest, UnconvertibleTestParameterFailsWithTheRunTimeBox) {
    p.fill(table::TestParameter, {{"A", "x", "1", "2", "3"}});
    EXPECT_EQ(p.run(), CompileEnd::Failed);
    EXPECT_EQ(p.boxTexts(), std::vector<std::string>{"Type mismatch\nCompilation Failed!"});
    EXPECT_EQ(p.ui.ShownBoxes()[0].icon, Icon::Warning);
    EXPECT_FALSE(std::filesystem::exists(p.bin()));
}

TEST_F(CompileDriverTest, SequentialBuildRewritesTheWireTableInBuildOrder) {
    p.state.params().SetVal(param::SeqBuild, Value(std::int32_t{1}));
    p.fill(table::Connector, {{"J2", "2"}, {"J1", "2"}});
    p.fill(table::Wire, {{"A", "RED", "BLK", "7", "0"}, {"B", "GRN"}, {"C"}, {"D", "BLU"}});
    p.fill(table::Pin,
           {{"J1", "10", "A"}, {"J1", "2", "B"}, {"J2", "1", "D"}, {"J1", "X", "(none)"}});
    p.run();
    const Grid& wires = p.table(table::Wire).gridarray();
    EXPECT_EQ(ColumnTexts(wires, 0), (std::vector<std::string>{"D", "B", "A", "C"}));
    EXPECT_EQ(wires.Text(3, 1) + "/" + wires.Text(3, 2), "RED/BLK");
    EXPECT_TRUE(wires.At(3, 3).isNull()); // what the build does not hold is dropped
}

// --- Labels ---

TEST_F(CompileDriverTest, LabelFileFillsTheFirstArrayAndItsMessagesReachTheImage) {
    writeLabel("TAG", "# part label\nPART NO\n\nSERIAL\n");
    p.sequence({{"PLABEL", "TAG"}, {"KMESSAGE", "80"}, {"PLABEL", "TAG"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    EXPECT_EQ(p.result.errors, 0) << p.results;
    const Grid& stored = messages().PLabelData();
    EXPECT_EQ(stored.Rows(), 20);
    EXPECT_EQ(stored.Text(1, 0), "80");
    EXPECT_EQ(stored.Text(1, 1), "PART NO");
    EXPECT_EQ(stored.Text(2, 1), "SERIAL");
    EXPECT_EQ(std::count_if(p.calls.begin(), p.calls.end(),
                            [](const std::string& c) { return c.rfind("LoadLabelFile(", 0) == 0; }),
              2);                                // one load per line
    EXPECT_EQ(p.result.image.labels.size(), 2u); // and its fields once
}

TEST_F(CompileDriverTest, AnEmptyLabelFileLeavesTheLabelMacroWithoutItsMessage) {
    writeLabel("TAG", "# no fields yet\n");
    p.sequence({{"PLABEL", "TAG"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    EXPECT_NE(p.results.find("E203 MAIN Sequence row 1: PLABEL shows message '80' (its step "
                             "PMESSAGE 80), which does not exist"),
              std::string::npos)
        << p.results;
    EXPECT_FALSE(std::filesystem::exists(p.bin()));
}

TEST_F(CompileDriverTest, MacroNamesCompareInUpperCase) {
    p.state.project().MacroList.Add(CMacro{"ALARMOFF", 1, "BEEPOFF", ""});
    p.sequence({{"Alarmoff", ""}, {"END", ""}}); // as a PID file may spell it
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    EXPECT_EQ(p.result.errors, 0) << p.results;
    EXPECT_NE(
        std::find(p.calls.begin(), p.calls.end(), "AddMacroLine(\"ALARMOFF\", \"BEEPOFF\", \"\")"),
        p.calls.end());
}

// clang-format off
struct LabelAbortCase { const char* name; const char* command; const char* messageId; std::string text; };
// clang-format on

class LabelAbort : public CompileDriverTest, public testing::WithParamInterface<LabelAbortCase> {};

TEST_P(LabelAbort, StopsWithItsBoxAndNoImage) {
    writeLabel("TAG", "F\n");
    writeLabel("OTHER", "F\n");
    p.fill(table::Message, {{GetParam().messageId, "M"}});
    p.sequence({{GetParam().command, "TAG"}, {GetParam().command, "TAG"}, {"END", ""}});
    if (std::string(GetParam().messageId) == "1")
        p.sequence({{GetParam().command, "TAG"}, {GetParam().command, "OTHER"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Aborted);
    EXPECT_EQ(p.boxes(), std::vector<std::string>{"Compile Aborted: " + GetParam().text});
    EXPECT_EQ(p.ui.ShownBoxes()[0].icon, Icon::Stop);
    EXPECT_FALSE(std::filesystem::exists(p.bin()));
}

const char* const kPlabelIds =
    "When using PLABEL commands, no message ID's can have a value between 80 and 100";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Labels, LabelAbort, testing::Values(
    LabelAbortCase{"Id99WithPlabel", "PLABEL", "99", kPlabelIds},
    LabelAbortCase{"Id80WithPlabel", "PLABEL", "80", kPlabelIds},
    LabelAbortCase{"Id119WithPlabel2", "PLABEL2", "119", "When using PLABEL2 commands, no message ID's can have a value between 100 and 119"},
    LabelAbortCase{"TwoFiles", "PLABEL", "1", "Multiple PLABEL commands in sequence table. \nEach PLABEL must refer to same '.ejf' file!"},
    LabelAbortCase{"TwoFiles2", "PLABEL2", "1", "Multiple PLABEL2 commands in sequence table. \nEach PLABEL2 must refer to same '.ejf' file!"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST_F(CompileDriverTest, IdsJustOutsideTheRangesPass) {
    writeLabel("TAG", "F\n");
    p.fill(table::Message, {{"100", "M"}, {"1", "START"}});
    p.sequence({{"PLABEL", "TAG"}, {"KMESSAGE", "1"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    p.fill(table::Message, {{"120", "M"}, {"99", "N"}, {"1", "START"}});
    p.sequence({{"PLABEL2", "TAG"}, {"KMESSAGE", "1"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    EXPECT_TRUE(p.ui.ShownBoxes().empty());
    EXPECT_EQ(messages().PLabel2Data().Text(1, 0), "100");
}

TEST_F(CompileDriverTest, MissingLabelFileWithoutStoredDataAbortsWithoutAsking) {
    p.state.params().SetVal(param::EJFDirectory, Value(p.folder.string()));
    p.sequence({{"PLABEL", "tag"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Aborted);
    EXPECT_EQ(p.boxes(),
              std::vector<std::string>{"TAG.EJF File Not Found!: A PLABEL command in "
                                       "the Sequence Table \n referenced the tag.ejf file."});
    EXPECT_EQ(p.ui.ShownBoxes()[0].buttons, Buttons::Ok);
}

TEST_F(CompileDriverTest, MissingLabelFilesWithStoredDataAskOnceThenFeedTheStoredRows) {
    p.state.params().SetVal(param::EJFDirectory, Value(p.folder.string()));
    messages().AddPLabelRecord_V1(1, {Value("80"), Value("OLD PART")});
    messages().AddPLabel2Record_V1(1, {Value("100"), Value("OLD SERIAL")});
    p.sequence({{"PLABEL", "TAG"}, {"PLABEL2", "TAG2"}, {"END", ""}});
    EXPECT_EQ(p.run(), CompileEnd::Finished);
    ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(p.ui.ShownBoxes()[0].buttons, Buttons::OkCancel);
    EXPECT_TRUE(
        p.ui.ShownBoxes()[0].text.ends_with("\nLabel data from previous session will be used!"));
    EXPECT_NE(std::find(p.calls.begin(), p.calls.end(), "AddMessage(\"80\", \"OLD PART\")"),
              p.calls.end());
    EXPECT_NE(std::find(p.calls.begin(), p.calls.end(), "AddMessage(\"100\", \"OLD SERIAL\")"),
              p.calls.end());
    EXPECT_EQ(std::count(p.calls.begin(), p.calls.end(), "Reset()"), 1); // traced once

    // The stored arrays' unused rows are no messages.
    std::vector<std::string> ids;
    for (const auto& m : p.result.image.messages)
        ids.push_back(m.id);
    EXPECT_EQ(ids, (std::vector<std::string>{"1", "80", "100"}));
}

TEST_F(CompileDriverTest, CancelOnStoredLabelDataEndsWithoutImage) {
    p.state.params().SetVal(param::EJFDirectory, Value(p.folder.string()));
    messages().AddPLabelRecord_V1(1, {Value("80"), Value("OLD PART")});
    p.sequence({{"PLABEL", "TAG"}, {"END", ""}});
    p.ui.Queue(Answer::Cancel);
    EXPECT_EQ(p.run(), CompileEnd::Aborted);
    EXPECT_FALSE(std::filesystem::exists(p.bin()));
    EXPECT_EQ(std::find(p.calls.begin(), p.calls.end(), "Compile()"), p.calls.end());
}

} // namespace
} // namespace zolt::test
