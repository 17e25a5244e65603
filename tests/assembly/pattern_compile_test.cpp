#include "assembly/pattern_compile.h"
#include "grv_project.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using Names = std::vector<std::string>;

// The worked case: three netlists of pattern 2 in one station, a block of four
// rows at rows 10 to 15, a branch to row 20 behind it.
struct WorkedCase : test::GrvProject {
    WorkedCase() {
        place("DOOR", "Doors", 2, "Fit door");
        place("SEAT", "Doors", 2, "Fit seat");
        place("ROOF", "Doors", 2, "Fit roof");
        select({"DOOR", "SEAT", "ROOF"});
        addMessage(5, "Now |R");
        addMessage(6, "Plain text");
        setSequence(beeps(9) +
                    "PBEGIN 2; TEST PATTERN; KMESSAGE 5; BER 12; KMESSAGE 6; PEND; "
                    "GOTO 20; GOTO 12; GOTO 3; " +
                    beeps(3));
    }
    bool run() {
        PatternCompile compile(state, progress);
        const bool ok = compile.CollectNetlists() && compile.ExpandSequence();
        used = compile.UsedNetlists();
        return ok;
    }
    test::RecordingProgress progress;
    Names used;
};

TEST(ExpandSequence, WorkedRenumberingCase) {
    WorkedCase p;
    ASSERT_EQ(p.rows(), 21);
    ASSERT_TRUE(p.run());
    EXPECT_EQ(p.rows(), 27); // 21 + 8 - the two marker rows
    EXPECT_EQ(p.command(10), "TEST");
    EXPECT_EQ(p.param(10), "DOOR");
    EXPECT_EQ(p.param(14), "SEAT");
    EXPECT_EQ(p.param(18), "ROOF");
    // One branch in a copy, one behind the blocks: LineRenumbering has the other cases.
    EXPECT_EQ(p.param(12), "11");
    EXPECT_EQ(p.param(22), "26"); // GOTO 20
    EXPECT_EQ(p.sequence().gridarray().Text(27, 0), "27");
    EXPECT_EQ(p.used, (Names{"DOOR", "SEAT", "ROOF"}));
    EXPECT_EQ(p.progress.captions, (Names{"Creating New Sequence Table ..."}));
    EXPECT_EQ(p.progress.maximum, 21);
}

TEST(ExpandSequence, MarkerMessagesFrom800AndPlainMessagesKept) {
    WorkedCase p;
    ASSERT_TRUE(p.run());
    EXPECT_EQ(p.param(11), "800");
    EXPECT_EQ(p.param(15), "801");
    EXPECT_EQ(p.param(19), "802");
    for (int row : {13, 17, 21})
        EXPECT_EQ(p.param(row), "6");
    EXPECT_EQ(p.messages().GetMessage(800), "Doors: Fit door Fit seat Fit roof");
    EXPECT_EQ(p.messages().GetMessage(801), "Doors: Fit seat Fit roof");
    EXPECT_EQ(p.messages().GetMessage(802), "Doors: Fit roof");
    // The table's add trims the text.
    EXPECT_EQ(p.messages().gridarray().Rows(), 5);
    // The message line shows the new text.
    EXPECT_EQ(p.sequence().gridarray().Text(15, 3), "Doors: Fit seat Fit roof");
}

TEST(ExpandSequence, StationChangeRestartsTheMessages) {
    WorkedCase p;
    p.state.project().Assembly.NetlistInfoList.Item("ROOF")->Station = "Roof";
    p.addMessage(900, "High");
    ASSERT_TRUE(p.run());
    EXPECT_EQ(p.param(11), "901");
    EXPECT_EQ(p.param(15), "902");
    EXPECT_EQ(p.param(19), "903"); // k back to 0, base the next free number
    EXPECT_EQ(p.messages().GetMessage(903), "Roof: Fit roof");
    EXPECT_EQ(p.messages().GetMessage(902), "Doors: Fit seat");
}

TEST(ExpandSequence, MessagesPastTheTableLimitRefuseTheCompile) {
    WorkedCase p;
    p.addMessage(1022, "High");
    const Names before = {p.command(11), p.param(11)};
    EXPECT_FALSE(p.run()); // 1023 and 1024 fit, 1025 does not
    EXPECT_EQ(p.boxTexts(), (Names{"The expanded sequence would need message 1025; a program "
                                   "holds 1024 messages at most."}));
    EXPECT_EQ(p.rows(), 21);
    EXPECT_EQ(p.messages().gridarray().Rows(), 3);
    EXPECT_EQ((Names{p.command(11), p.param(11)}), before);
}

// One station of the given netlists, all of one pattern, all in one feature code.
void placeStation(test::GrvProject& p, const Names& netlists, const std::string& station,
                  int pattern) {
    for (const auto& name : netlists)
        p.place(name, station, pattern);
    p.select(netlists);
}

// Collects and expands as the test compile does; false where either step refuses.
bool expand(test::GrvProject& p) {
    test::RecordingProgress progress;
    PatternCompile compile(p.state, progress);
    return compile.CollectNetlists() && compile.ExpandSequence();
}

TEST(ExpandSequence, BlockOfAPatternNobodyHasVanishes) {
    test::GrvProject p;
    placeStation(p, {"DOOR"}, "Doors", 1);
    p.setSequence("GOTO 7; PBEGIN 3; TEST PATTERN; PEND; PBEGIN 1; TEST PATTERN; PEND; BEEP");
    ASSERT_TRUE(expand(p));
    ASSERT_EQ(p.rows(), 3);
    EXPECT_EQ(p.param(2), "DOOR");
    EXPECT_EQ(p.command(3), "BEEP");
}

TEST(ExpandSequence, MoreThan51NetlistsInAStationAreRefused) {
    test::GrvProject p;
    Names all;
    for (int i = 1; i <= 52; ++i)
        all.push_back("N" + std::to_string(i));
    placeStation(p, all, "Big", 1);
    p.setSequence("PBEGIN 1; TEST PATTERN; PEND");
    EXPECT_FALSE(expand(p));
    ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
    EXPECT_NE(p.ui.ShownBoxes()[0].text.find("Station Big has 52 netlists"), std::string::npos);
    EXPECT_EQ(p.rows(), 3);
}

TEST(CollectNetlists, AssemblyOrderDecidesAndUnorderedAreLeftOut) {
    test::GrvProject p;
    p.place("SEAT", "A", 1);
    p.place("DOOR", "A", 1);
    p.addNetlist("LOOSE");
    p.select({"DOOR", "LOOSE"});
    p.select({"SEAT", "DOOR"});
    test::RecordingProgress progress;
    PatternCompile compile(p.state, progress);
    ASSERT_TRUE(compile.CollectNetlists());
    EXPECT_EQ(compile.ChosenNetlists(), (Names{"DOOR", "LOOSE", "SEAT"}));
    Names ordered;
    for (const CNetlistInfo& info : compile.OrderedInfo())
        ordered.push_back(info.Name);
    EXPECT_EQ(ordered, (Names{"SEAT", "DOOR"}));
}

TEST(CollectNetlists, NothingChosenFails) {
    test::GrvProject p;
    p.select({});
    test::RecordingProgress progress;
    PatternCompile compile(p.state, progress);
    EXPECT_FALSE(compile.CollectNetlists());
}

TEST(FilterNetlists, KeepsOnlyTheUsedNetlists) {
    WorkedCase p;
    p.addNetlist("SPARE");
    AddNetlist(p.state, "MANUAL NETLISTS");
    PatternCompile compile(p.state, p.progress);
    p.state.project().Assembly.NetlistInfoList.Item("ROOF")->Pattern = 9;
    ASSERT_TRUE(compile.CollectNetlists());
    ASSERT_TRUE(compile.ExpandSequence());
    const auto names = [&] {
        Names n;
        p.state.project().NetlistCollection.ForEach(
            [&](const std::unique_ptr<CNetList>& l) { n.push_back(l->NetlistName); });
        return n;
    };
    compile.FilterNetlists();
    EXPECT_EQ(names(), (Names{"MAIN", "DOOR", "SEAT", "MANUAL NETLISTS"}));
    EXPECT_EQ(p.state.project().FindNetlist("SEAT")->NetlistName, "SEAT");
}

TEST(ExpandedSequenceFits, RefusedPastTheProgramLimit) {
    for (const int filler : {1014, 1015}) {
        test::GrvProject p;
        placeStation(p, {"DOOR", "SEAT", "ROOF"}, "Doors", 1);
        p.setSequence("PBEGIN 1; TEST PATTERN1; BEEP; BEEP; BEEP; PEND; " +
                      test::GrvProject::beeps(filler));
        test::RecordingProgress progress;
        PatternCompile compile(p.state, progress);
        ASSERT_TRUE(compile.CollectNetlists());
        // 6 + filler rows become filler + 12.
        EXPECT_EQ(compile.ExpandedSequenceFits(), filler + 12 <= 1024) << filler;
        EXPECT_EQ(p.ui.ShownBoxes().empty(), filler + 12 <= 1024);
    }
}

} // namespace
} // namespace zolt
