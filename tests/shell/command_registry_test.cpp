#include "desktop.h"
#include "shell/command_registry.h"
#include "shell/command_table.h"

#include <QAction>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

TEST(CommandRegistry, RunsAndEnablesOnlyWhatIsBoundAndFindsTheUnbound) {
    CommandRegistry r;
    EXPECT_EQ(r.Unbound().size(), Commands().size());
    int runs = 0;
    bool allowed = false;
    r.Bind(
        Command::New, [&runs] { ++runs; }, [&allowed] { return allowed; });
    EXPECT_TRUE(r.Run(Command::New));
    EXPECT_EQ(runs, 1);
    EXPECT_FALSE(r.Enabled(Command::New));
    allowed = true;
    EXPECT_TRUE(r.Enabled(Command::New));
    EXPECT_FALSE(r.Run(Command::Open)) << "nothing bound";
    EXPECT_FALSE(r.Enabled(Command::Open));
    EXPECT_EQ(r.Checked(Command::Sequence), std::nullopt) << "no check mark of its own";
    EXPECT_EQ(r.Unbound().size(), Commands().size() - 1);
}

TEST(CommandRegistry, ToolIdentifiersAreDataTurnedIntoCommands) {
    for (const CommandDef& c : Commands())
        EXPECT_EQ(CommandNamed(c.id), c.command) << c.id;
    EXPECT_EQ(CommandNamed("ID_Nonesuch"), std::nullopt);
    EXPECT_EQ(CommandNamed("ID_new"), std::nullopt) << "case counts, as in a toolbar file";
}

TEST(CommandRegistry, EveryCommandOfTheFrameHasAHandlerAndItsActionFollowsEnabledWhen) {
    Desktop d;
    EXPECT_TRUE(d.window.commands().Unbound().empty());
    const auto actionsFollow = [&d](const char* when) {
        for (const CommandDef& c : Commands())
            EXPECT_EQ(d.window.Action(c.command)->isEnabled(),
                      d.window.commands().Enabled(c.command))
                << c.id << " " << when;
    };
    actionsFollow("open");
    EXPECT_FALSE(d.window.Action("ID_Save")->isEnabled());
    EXPECT_TRUE(d.window.Action("ID_Connectors")->isEnabled());
    d.window.ToolClick("ID_Connectors");
    EXPECT_TRUE(d.window.Action("ID_Cascade")->isEnabled());
    actionsFollow("a table shown");
    d.window.ToolClick("ID_Close");
    EXPECT_FALSE(d.window.Action("ID_Connectors")->isEnabled());
    EXPECT_TRUE(d.window.Action("ID_Open")->isEnabled());
    actionsFollow("closed");
}

struct TabCase {
    const char* name;
    const char* tab;
    bool netlistCommands; // Delete and Rename Netlist Tab
    bool harnessTables;   // Connectors, Groups, Colors, Cascade, …
};

class CommandsOfTheActiveTab : public testing::TestWithParam<TabCase> {};

// The tab changes in the project logic; the frame is not asked to update.
TEST_P(CommandsOfTheActiveTab, FollowWhoseTabItIs) {
    const TabCase& c = GetParam();
    Desktop d;
    AddNetlist(d.window.state(), "DOOR");
    AddNetlist(d.window.state(), kManualNetlists);
    std::string tab = c.tab;
    ASSERT_TRUE(ActivateNetlist(d.window.state(), tab));
    for (const Command command : {Command::DeleteNetlistTab, Command::RenameNetlistTab})
        EXPECT_EQ(d.window.Action(command)->isEnabled(), c.netlistCommands)
            << Definition(command).id;
    for (const Command command : {Command::Connectors, Command::Groups, Command::Colors})
        EXPECT_EQ(d.window.Action(command)->isEnabled(), c.harnessTables) << Definition(command).id;
    EXPECT_TRUE(d.window.Action(Command::Fixture)->isEnabled());
    EXPECT_TRUE(d.window.Action(Command::Messages)->isEnabled());
    d.window.ToolClick(Command::Fixture);
    EXPECT_EQ(d.window.Action(Command::Cascade)->isEnabled(), c.harnessTables);
}

INSTANTIATE_TEST_SUITE_P(
    Tabs, CommandsOfTheActiveTab,
    testing::Values(TabCase{"Main", "MAIN", false, true}, TabCase{"Door", "DOOR", true, true},
                    TabCase{"ManualNetlists", "MANUAL NETLISTS", false, false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(CommandsOfTheProject, FollowItsStateWithoutTheFrameAsked) {
    Desktop d;
    ProgramState& s = d.window.state();
    EXPECT_FALSE(d.window.Action(Command::Save)->isEnabled());
    s.SetDirty(true);
    EXPECT_TRUE(d.window.Action(Command::Save)->isEnabled());
    s.SetGridEditing(true);
    EXPECT_FALSE(d.window.Action(Command::Compile)->isEnabled());
    EXPECT_FALSE(d.window.Action(Command::Undo)->isEnabled());
    s.SetGridEditing(false);
    EXPECT_TRUE(d.window.Action(Command::Compile)->isEnabled());
}

} // namespace
} // namespace zolt::shell
