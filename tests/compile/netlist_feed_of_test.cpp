// What a netlist's tables feed the compile control, read as a value: the
// program settings that drop cells, the cells that mean "nothing", and the
// rows fed before a run-time error.
#include "compile/netlist_feed_of.h"
#include "compile_project.h"

#include <gtest/gtest.h>

namespace zolt::compile {
namespace {

struct Feeding : test::CompileProject {
    Feeding() {
        fill(table::Connector, {{"J1", "4", "2", "3", "17", "A1"}});
        fill(table::Switches, {{"J1", "S1", "1"}, {"J2", "S1", "1"}, {"J1", "S2", "2"}});
        fill(table::Wire, {{"W1", "(none)", "0"}, {"W2", "RED", "GRN"}});
        fill(table::Pin, {{"J1", "1", "W1"}, {"J1", "2", "(none)"}, {"J1", "3", ""}});
        fill(table::Fixture, {{"0-001", "J1", "1"}, {"0-002", "J1", "2"}});
    }
    FeedOutcome feed(FeedSettings settings = {}) {
        return FeedOf(state.project(), *state.project().MainNetlist, settings);
    }
};

TEST(FeedOf, SettingsDecideLampPointsAndSwitches) {
    Feeding p;
    const NetlistFeed off = p.feed({.lampPin = false, .switches = false}).feed;
    ASSERT_EQ(off.connectors.size(), 1u);
    EXPECT_EQ(off.connectors[0].lamp1, -1);
    EXPECT_EQ(off.connectors[0].lamp2, -1);
    EXPECT_TRUE(off.switches.empty());

    const NetlistFeed on = p.feed({.lampPin = true, .switches = true}).feed;
    EXPECT_EQ(on.connectors[0].lamp1, 3);
    EXPECT_EQ(on.connectors[0].lamp2, 17);
    EXPECT_EQ(on.connectors[0].grid, "A1");
    // Each switch counts among its own connector's switches.
    ASSERT_EQ(on.switches.size(), 3u);
    EXPECT_EQ(on.switches[0].ordinal, 1);
    EXPECT_EQ(on.switches[1].ordinal, 1);
    EXPECT_EQ(on.switches[2].ordinal, 2);
}

TEST(FeedOf, NoColorAndNoWireAreSpelledForTheControl) {
    Feeding p;
    const NetlistFeed feed = p.feed().feed;
    ASSERT_EQ(feed.wires.size(), 2u);
    EXPECT_EQ(feed.wires[0].base, "");
    EXPECT_EQ(feed.wires[0].stripe, "");
    EXPECT_EQ(feed.wires[1].stripe, "GRN");
    ASSERT_EQ(feed.pins.size(), 3u);
    EXPECT_EQ(feed.pins[0].wire, "W1");
    EXPECT_EQ(feed.pins[1].wire, kUnconnected);
    EXPECT_EQ(feed.pins[2].wire, kUnconnected);
    ASSERT_EQ(feed.fixture.size(), 2u);
    EXPECT_EQ(feed.fixture[1].board, 0);
    EXPECT_EQ(feed.fixture[1].point, 2);
}

TEST(FeedOf, ARunTimeErrorKeepsOnlyTheRowsBeforeIt) {
    Feeding p;
    p.fill(table::Component, {{"DIODE", "1", "W1", "W2"}, {"NOSUCH", "2", "W1", "W2"}});
    ClearCollection(p.state.project().DeviceList);
    const FeedOutcome outcome = p.feed();
    EXPECT_EQ(outcome.error, "Subscript out of range");
    EXPECT_EQ(outcome.feed.components.size(), 1u);
    EXPECT_TRUE(outcome.feed.reversibles.empty());

    p.fill(table::Fixture, {{"0-001", "J1", "1"}, {"X", "J1", "2"}});
    const FeedOutcome bad = p.feed();
    EXPECT_EQ(bad.error, "Type mismatch");
    EXPECT_EQ(bad.feed.fixture.size(), 1u);
    EXPECT_TRUE(bad.feed.connectors.empty());
}

} // namespace
} // namespace zolt::compile
