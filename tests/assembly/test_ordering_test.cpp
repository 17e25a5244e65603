#include "assembly/test_ordering.h"
#include "grv_project.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using Names = std::vector<std::string>;

Names stationNames(const TestOrdering& o) {
    Names names;
    for (const Station& s : o.Stations())
        names.push_back(s.Name + ":" + std::to_string(s.Pattern));
    return names;
}

Names netlistsOf(const Station& s) {
    Names names;
    for (const OrderedNetlist& n : s.Netlists)
        names.push_back(n.Name);
    return names;
}

struct Line : test::GrvProject {
    Line() {
        for (const char* n : {"DOOR", "SEAT", "ROOF", "DASH"})
            addNetlist(n);
    }
};

TEST(TestOrdering, LoadPutsUnplacedUnderGeneralAndRebuildsStationsInOrder) {
    Line p;
    p.place("SEAT", "Seats", 2, "Fit seat", true);
    p.place("DOOR", "Doors", 1);
    p.place("ROOF", "Seats", 2);
    const TestOrdering o = TestOrdering::Load(p.state);
    EXPECT_EQ(stationNames(o), (Names{"General:0", "Doors:1", "Seats:2"}));
    EXPECT_EQ(netlistsOf(o.Stations()[0]), (Names{"MAIN", "DASH"}));
    EXPECT_EQ(netlistsOf(o.Stations()[2]), (Names{"SEAT", "ROOF"}));
    const OrderedNetlist& seat = o.Stations()[2].Netlists[0];
    EXPECT_EQ(TestOrdering::NetlistImage(seat), "NetlistDescribed+");
    EXPECT_EQ(TestOrdering::NetlistText(seat), "SEAT - Fit seat");
    EXPECT_EQ(TestOrdering::StationImage(o.Stations()[0]), "Pattern0");
}

TEST(TestOrdering, NewStationNamesAndPlaces) {
    Line p;
    TestOrdering o = TestOrdering::Load(p.state);
    EXPECT_EQ(o.NewStation(0), 1u);
    o.SetPattern(1, 4);
    EXPECT_EQ(o.NewStation(1), 2u);
    EXPECT_EQ(stationNames(o), (Names{"General:0", "Station1:4", "Station2:4"}));
    // Behind General a new station has pattern 0.
    EXPECT_EQ(o.NewStation(0), 1u);
    EXPECT_EQ(o.Stations()[1].Name, "Station3");
    EXPECT_EQ(o.Stations()[1].Pattern, 0);
}

TEST(TestOrdering, RenameRulesIncludingGeneralAsDuplicate) {
    Line p;
    TestOrdering o = TestOrdering::Load(p.state);
    o.NewStation(0);
    o.NewStation(1);
    EXPECT_FALSE(o.RenameStation(1, "", p.ui));
    EXPECT_FALSE(o.RenameStation(1, "Station1", p.ui));
    EXPECT_TRUE(p.ui.ShownBoxes().empty());
    EXPECT_FALSE(o.RenameStation(1, "General", p.ui));
    EXPECT_FALSE(o.RenameStation(1, "Station2", p.ui));
    ASSERT_EQ(p.ui.ShownBoxes().size(), 2u);
    EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Station Naming Violation");
    EXPECT_EQ(p.ui.ShownBoxes()[0].text, "Each Station must have a unique name.");
    EXPECT_TRUE(o.RenameStation(1, "Doors", p.ui));
    EXPECT_FALSE(o.RenameStation(0, "Other", p.ui));
    EXPECT_EQ(o.Stations()[1].Name, "Doors");
}

TEST(TestOrdering, DeleteAsksAndReturnsNetlistsToGeneral) {
    Line p;
    p.place("DOOR", "Doors", 1);
    p.place("SEAT", "Doors", 1);
    TestOrdering o = TestOrdering::Load(p.state);
    p.ui.Queue(Answer::Cancel);
    EXPECT_FALSE(o.DeleteStation(1, p.ui));
    EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Station Delete Warning");
    EXPECT_EQ(p.ui.ShownBoxes()[0].text,
              "You are about to delete: Doors.  This action can not be undone.");
    EXPECT_TRUE(o.DeleteStation(1, p.ui));
    EXPECT_EQ(netlistsOf(o.Stations()[0]), (Names{"MAIN", "ROOF", "DASH", "DOOR", "SEAT"}));
    EXPECT_FALSE(o.DeleteStation(0, p.ui));
}

TEST(TestOrdering, PatternsStaySorted) {
    Line p;
    TestOrdering o = TestOrdering::Load(p.state);
    o.NewStation(0);
    o.NewStation(1);
    o.NewStation(2);
    EXPECT_EQ(o.SetPattern(1, 5), 3u); // walks down behind the lower ones
    EXPECT_EQ(o.SetPattern(2, 7), 3u);
    EXPECT_EQ(stationNames(o), (Names{"General:0", "Station2:0", "Station1:5", "Station3:7"}));
    // A lower pattern walks up above the higher ones.
    EXPECT_EQ(o.SetPattern(3, 3), 2u);
    EXPECT_EQ(stationNames(o), (Names{"General:0", "Station2:0", "Station3:3", "Station1:5"}));
    // Equal patterns stand side by side.
    EXPECT_EQ(o.SetPattern(1, 3), 1u);
    EXPECT_EQ(o.SetPattern(0, 9), 0u);
}

TEST(TestOrdering, DropsOnlyWherePatternsStayAscending) {
    Line p;
    TestOrdering o = TestOrdering::Load(p.state);
    o.SetPattern(o.NewStation(0), 2);
    o.SetPattern(o.NewStation(1), 2);
    o.SetPattern(o.NewStation(2), 5);
    EXPECT_TRUE(o.CanMoveStation(1, 2));
    EXPECT_FALSE(o.CanMoveStation(3, 1));
    EXPECT_FALSE(o.CanMoveStation(1, 0));
    EXPECT_EQ(o.MoveStation(2, 1), std::optional<std::size_t>(1));
    EXPECT_EQ(o.Stations()[1].Name, "Station2");
}

TEST(TestOrdering, DescriptionsAndPartOfMainChangeTheImage) {
    Line p;
    TestOrdering o = TestOrdering::Load(p.state);
    o.TogglePartOfMain("DOOR");
    p.ui.Queue(ScriptedUi::TextAnswer{"Fit door"});
    EXPECT_TRUE(o.EditDescription("DOOR", p.ui));
    EXPECT_EQ(p.ui.Events().back().text, "Netlist Description for DOOR");
    const auto door = [&] { return o.Stations()[0].Netlists[1]; };
    EXPECT_EQ(TestOrdering::NetlistImage(door()), "NetlistDescribed+");
    o.SetDescription("DOOR", "");
    EXPECT_EQ(TestOrdering::NetlistImage(door()), "NetlistOnly+");
    EXPECT_EQ(TestOrdering::NetlistText(door()), "DOOR");
}

TEST(TestOrdering, OkRewritesBothListsAndAsksAboutEmptyStations) {
    Line p;
    TestOrdering o = TestOrdering::Load(p.state);
    const std::size_t doors = o.NewStation(0);
    o.SetPattern(doors, 1);
    o.MoveNetlist("SEAT", doors, 9);
    o.MoveNetlist("DOOR", doors, 0);
    o.SetPartOfMain("SEAT", true);
    o.NewStation(doors); // left empty
    p.ui.Queue(Answer::No);
    EXPECT_FALSE(o.Accept(p.state, p.ui));
    EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Save GRV Netlist Information");
    EXPECT_EQ(p.state.project().Assembly.AssemblyOrderList.Count(), 0u);
    EXPECT_TRUE(o.Accept(p.state, p.ui)); // the default answer is Yes
    Names order;
    p.state.project().Assembly.AssemblyOrderList.ForEach(
        [&](const CAssemblyRec& r) { order.push_back(r.Name + (r.Flag ? "+" : "-")); });
    EXPECT_EQ(order, (Names{"DOOR+", "SEAT+", "MAIN-", "ROOF-", "DASH-"}));
    ASSERT_EQ(p.state.project().Assembly.NetlistInfoList.Count(), 2u);
    const CNetlistInfo& seat = *p.state.project().Assembly.NetlistInfoList.Item("SEAT");
    EXPECT_EQ(seat.Station, "Station1");
    EXPECT_EQ(seat.Pattern, 1);
    EXPECT_TRUE(seat.Ordered);
    EXPECT_TRUE(seat.PartOfMain);
    EXPECT_TRUE(p.state.IsDirty());
}

TEST(TestOrdering, AllUnderGeneralGivesAnOpenOrderAndNoInformation) {
    Line p;
    p.place("DOOR", "Doors", 1);
    const TestOrdering o = TestOrdering::Load(p.state);
    TestOrdering moved = o;
    moved.MoveNetlist("DOOR", 0, 0);
    EXPECT_TRUE(moved.Accept(p.state, p.ui));
    EXPECT_EQ(p.state.project().Assembly.NetlistInfoList.Count(), 0u);
    p.state.project().Assembly.AssemblyOrderList.ForEach(
        [](const CAssemblyRec& r) { EXPECT_FALSE(r.Flag); });
}

} // namespace
} // namespace zolt
