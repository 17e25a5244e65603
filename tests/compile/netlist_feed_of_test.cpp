// What a netlist's tables feed the compile control, read as a value: the
// program settings that drop cells, and the rows fed before a run-time error.
#include "compile/netlist_feed_of.h"
#include "compile_project.h"

#include <gtest/gtest.h>

namespace zolt::compile {
namespace {

struct Feeding : test::CompileProject {
    Feeding() {
        fill(table::Connector, {{"J1", "4", "2", "3", "17", "A1"}});
        fill(table::Switches, {{"J1", "S1", "1"}});
        fill(table::Pin, {{"J1", "1", "W1"}, {"J1", "2", "(none)"}, {"J1", "3", ""}});
        fill(table::Fixture, {{"0-001", "J1", "1"}, {"0-002", "J1", "2"}});
    }
    FeedOutcome feed(FeedSettings settings = {}) {
        return FeedOf(state.project(), *state.project().MainNetlist, settings);
    }
};

// With both settings on, FeedOrder.EveryCallInItsPlaceWithItsMappedArguments
// checks every mapped cell (colors, unwired pins, switch ordinals).
TEST(FeedOf, SettingsOffDropLampPointsAndSwitches) {
    Feeding p;
    const NetlistFeed feed = p.feed({.lampPin = false, .switches = false}).feed;
    ASSERT_EQ(feed.connectors.size(), 1u);
    EXPECT_EQ(feed.connectors[0].lamp1, -1);
    EXPECT_EQ(feed.connectors[0].lamp2, -1);
    EXPECT_EQ(feed.connectors[0].grid, "A1");
    EXPECT_TRUE(feed.switches.empty());
    EXPECT_EQ(feed.pins.size(), 3u);
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
