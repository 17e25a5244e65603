#include "core/ports/frame_controls.h"
#include "core/table_kinds.h"
#include "fixture/fixture_table.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using test::TestProgram;

TEST(NetlistModel, TheDefaultNameCountsNetlistsAndFollowsUpperCase) {
    TestProgram p;
    p.ui.Queue(Answer::Ok);
    NewNetlistCommand(p.state);
    EXPECT_NE(p.state.project().FindNetlist("Netlist1"), nullptr);
    p.state.params().SetVal(param::UpperCase, Value(std::int32_t{1}));
    p.ui.Queue(Answer::Ok);
    NewNetlistCommand(p.state);
    EXPECT_EQ(p.state.project().FindNetlist("NETLIST2")->NetlistName, "NETLIST2");
}

TEST(NetlistModel, CancelAndCompileLabelsAddNothing) {
    TestProgram p;
    NewNetlistCommand(p.state); // queue empty: the prompt is cancelled
    p.state.project().CompileLabels.insert("START");
    p.addNetlist("start");
    EXPECT_EQ(p.state.project().NetlistCollection.Count(), 1u);
    EXPECT_EQ(p.boxes(), std::vector<std::string>{"Duplicate Name: Only Unique Names Are Allowed"});
    EXPECT_FALSE(p.state.IsDirty());
}

struct FixtureLinkCase {
    const char* name;
    std::vector<std::string> answers;
    bool linked;
};

class NewNetlistFixtureLink : public ::testing::TestWithParam<FixtureLinkCase> {};

// The choice under "Fixture Table Data" decides whose fixture the tab compiles
// with; a linked tab then takes no rows of its own.
TEST_P(NewNetlistFixtureLink, GoesIntoTheFixtureTable) {
    TestProgram p;
    for (const auto& answer : GetParam().answers)
        p.ui.Queue(ScriptedUi::TextAnswer{answer});
    p.ui.Queue(ScriptedUi::TextAnswer{"NEXT"}); // a later prompt's answer stays queued
    NewNetlistCommand(p.state);
    const auto* fixture =
        p.state.project().FindNetlist("LH")->TableAs<CFixtureTable>(table::Fixture);
    ASSERT_NE(fixture, nullptr);
    EXPECT_EQ(fixture->gridMain(), GetParam().linked);
    EXPECT_EQ(fixture->Refusal(TableCommand::Add).has_value(), GetParam().linked);
    EXPECT_EQ(p.ui.Pending(), 1u);
    EXPECT_NE(fixture->AutoGenRefusal().value_or("").find(GetParam().linked ? "Link to MAIN"
                                                                            : "MAIN tab only"),
              std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    NetlistModel, NewNetlistFixtureLink,
    ::testing::Values(FixtureLinkCase{"NameOnlyKeepsItUnique", {"LH"}, false},
                      FixtureLinkCase{"UniqueToTab", {"LH", "Unique to Tab"}, false},
                      FixtureLinkCase{"LinkToMain", {"LH", "link to main"}, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(NetlistModel, RenameKeepsPositionNumberAndFollowsEverywhere) {
    TestProgram p;
    p.addNetlist("A");
    p.addNetlist("B");
    p.frame.SetCurrentTab(1);
    p.renameNetlist("Z");
    EXPECT_EQ(p.state.project().FindNetlist("A"), nullptr);
    ASSERT_NE(p.state.project().FindNetlist("Z"), nullptr);
    EXPECT_EQ(p.state.project().NetlistCollection.PositionOf("Z"), 2u);
    EXPECT_EQ(p.state.project().FindNetlist("Z")->netlistIndex, 1);
    EXPECT_EQ(p.frame.TabCaption(1), "Z");
    EXPECT_EQ(p.state.project().MainNetlist->NetlistArray.Text(1, 1), "Z");
}

// Neither Rename nor Delete applies to MAIN and the manual netlist, whatever
// reaches the command: nothing is asked and nothing changes.
TEST(NetlistModel, RenameRefusesMainAndTheManualNetlist) {
    TestProgram p;
    AddNetlist(p.state, kManualNetlists);
    for (const char* fixed : {kMain, kManualNetlists}) {
        p.state.SetDirty(false);
        p.frame.SetCurrentTab(FindNetlistTab(p.state, fixed));
        p.renameNetlist("OTHER");
        EXPECT_NE(p.state.project().FindNetlist(fixed), nullptr) << fixed;
        EXPECT_EQ(p.state.project().FindNetlist("OTHER"), nullptr) << fixed;
        EXPECT_FALSE(p.state.IsDirty()) << fixed;
    }
    EXPECT_EQ(p.ui.Pending(), 2u); // never asked
    EXPECT_EQ(p.frame.TabCaption(0), "MAIN");
    EXPECT_EQ(p.state.project().MainNetlist->NetlistName, "MAIN");
}

// Neither a name of refused characters only nor the same name in other case
// changes anything or asks.
TEST(NetlistModel, EmptyOrUnchangedNamesDoNothing) {
    TestProgram p;
    p.addNetlist(" !' ");
    EXPECT_EQ(p.state.project().NetlistCollection.Count(), 1u);
    p.addNetlist("Door");
    p.state.SetDirty(false);
    p.frame.SetCurrentTab(1);
    p.renameNetlist("DOOR");
    EXPECT_EQ(p.state.project().FindNetlist("DOOR")->NetlistName, "Door");
    EXPECT_FALSE(p.state.IsDirty());
    EXPECT_TRUE(p.ui.ShownBoxes().empty());
}

TEST(NetlistModel, DeleteRefusesTheManualNetlistAndNetlistsTheSequenceUses) {
    TestProgram p;
    p.addNetlist("NET1");
    AddNetlist(p.state, "MANUAL NETLISTS");
    EXPECT_EQ(p.state.project().FindNetlist("MANUAL NETLISTS")->NetlistType, 1);
    EXPECT_EQ(p.frame.TabCaptionColor(2), 0x0000FF);
    Table& sequence = *p.state.project().MainNetlist->GetTable(table::Sequence);
    sequence.ReDimGrid(1, sequence.gridColumns());
    sequence.gridarray().Set(1, 2, Value(" net1 "));
    p.deleteNetlist("NET1");
    EXPECT_NE(p.state.project().FindNetlist("NET1"), nullptr);
    EXPECT_EQ(p.boxTexts(),
              std::vector<std::string>{"All occurrences of 'NET1' in the Sequence "
                                       "Table must be \nremoved before deleting 'NET1'."});
    // The manual netlist is not even offered.
    p.deleteNetlist("MANUAL NETLISTS");
    EXPECT_NE(p.state.project().FindNetlist("MANUAL NETLISTS"), nullptr);
}

TEST(NetlistModel, DeleteStripsTheAssemblyLists) {
    TestProgram p;
    p.addNetlist("A");
    p.addNetlist("B");
    p.state.project().Assembly.FeatureCodeData = {"A,B", "A", "B,A,C"};
    p.state.project().Assembly.AssemblyOrderList.Add({"A", true});
    p.state.project().Assembly.AssemblyOrderList.Add({"B", true});
    p.state.project().Assembly.NetlistInfoList.Add({"A", "", "General", 0, false, false}, "A");
    p.deleteNetlist("A");
    // The code named A keeps its name; only the netlists behind the name go.
    EXPECT_EQ(p.state.project().Assembly.FeatureCodeData,
              (std::vector<std::string>{"A,B", "A", "B,C"}));
    EXPECT_EQ(p.state.project().Assembly.AssemblyOrderList.Count(), 1u);
    EXPECT_EQ(p.state.project().Assembly.NetlistInfoList.Count(), 0u);
    p.deleteNetlist("B");
    EXPECT_EQ(p.frame.TabCount(), 1);
}

TEST(NetlistModel, ATabRemembersItsOpenWindows) {
    TestProgram p;
    p.addNetlist("A");
    CNetList& a = *p.state.project().FindNetlist("A");
    p.frame.ShowTable(table::Sequence, 0);
    p.frame.ShowTable(table::Pin, a.netlistIndex);
    p.frame.ShowTable(table::Wire, a.netlistIndex); // brought to top: the active one
    a.VisibleCount = 2;
    std::string main = "MAIN";
    ActivateNetlist(p.state, main);
    for (const auto& w : p.frame.Windows())
        EXPECT_EQ(w.visible, w.tableIndex == table::Sequence) << w.formName;
    EXPECT_EQ(p.state.project().MainNetlist->VisibleCount, 0) << "MAIN has no open window";
    std::string back = "A";
    ActivateNetlist(p.state, back);
    for (const auto& w : p.frame.Windows()) {
        EXPECT_TRUE(w.visible) << w.formName;
        EXPECT_EQ(w.active, w.tableIndex == table::Wire) << w.formName;
    }
    EXPECT_EQ(a.VisibleCount, 2);
}

TEST(ProgramState, DirtyAsksForACompileAndDestroyAllReleasesTheProject) {
    TestProgram p;
    p.state.SetDirty(true);
    p.state.SetDirty(false);
    EXPECT_TRUE(p.state.project().NeedsCompile) << "only a compile clears it";
    p.state.DestroyAll();
    EXPECT_EQ(p.state.project().NetlistCollection.Count(), 0u);
    EXPECT_EQ(p.state.project().MainNetlist, nullptr);
}

} // namespace
} // namespace zolt
