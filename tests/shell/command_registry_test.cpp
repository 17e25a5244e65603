#include "desktop.h"
#include "shell/command_registry.h"
#include "shell/command_table.h"

#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
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
    d.window.ToolClick("ID_Connectors");
    actionsFollow("a table shown");
    d.window.ToolClick("ID_Close");
    actionsFollow("closed");
}

// A new project whose program lies in a folder of its own.
struct CommandDesktop : Desktop {
    QTemporaryDir dir;
    CommandDesktop() {
        window.state().document().CurrentFile = dir.filePath("door.zlf").toStdString();
        window.UpdateControls();
    }
    void fileIs(const char* name) {
        window.state().document().CurrentFile = dir.filePath(name).toStdString();
        window.UpdateControls();
    }
};

// Each arrangement changes the project logic only; the frame is not asked to update.
struct CommandCase {
    const char* name;
    const char* command;
    std::function<void(CommandDesktop&)> arrange;
    bool enabled;
};

class CommandState : public testing::TestWithParam<CommandCase> {};

TEST_P(CommandState, FollowsTheProgram) {
    CommandDesktop d;
    if (GetParam().arrange)
        GetParam().arrange(d);
    QAction* action = d.window.Action(QString::fromUtf8(GetParam().command));
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->isEnabled(), GetParam().enabled);
}

void closeProject(CommandDesktop& d) {
    d.window.ToolClick("ID_Close");
}
void compiled(CommandDesktop& d) {
    QFile bin(d.dir.filePath("door.bin"));
    ASSERT_TRUE(bin.open(QIODevice::WriteOnly) && bin.write("image") > 0);
    bin.close();
    d.window.UpdateControls();
}
void family(CommandDesktop& d) {
    d.fileIs("family.grv");
}
void typing(CommandDesktop& d) {
    d.window.state().SetGridEditing(true);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Commands, CommandState, testing::Values(
    CommandCase{"SaveOfAnUnchangedProject", "ID_Save", {}, false},
    CommandCase{"SaveOfAChangedProject", "ID_Save", [](auto& d) { d.window.state().SetDirty(true); }, true},
    CommandCase{"ConnectorsWithoutAProject", "ID_Connectors", closeProject, false},
    CommandCase{"OpenWithoutAProject", "ID_Open", closeProject, true},
    CommandCase{"CascadeWithATable", "ID_Cascade", [](auto& d) { d.window.ToolClick("ID_Connectors"); }, true},
            CommandCase{"ZoltSettingsWithoutAProject", "ID_ZOLTSettings", closeProject, true},
    CommandCase{"Compile", "ID_Compile", {}, true},
    CommandCase{"CompileWhileARowIsTyped", "ID_Compile", typing, false},
    CommandCase{"UndoWhileARowIsTyped", "ID_Undo", typing, false},
    CommandCase{"CompileWithoutAProject", "ID_Compile", closeProject, false},
        CommandCase{"DownloadWithoutAnImage", "ID_Download", {}, false},
    CommandCase{"DownloadOfACompiledProgram", "ID_Download", compiled, true},
    CommandCase{"DownloadWithoutAProject", "ID_Download", [](auto& d) { compiled(d); closeProject(d); }, false},
        CommandCase{"PrintFromToolbarWithoutATable", "ID_PrintFromToolbar", {}, false},
    CommandCase{"PrintFromToolbarOverATable", "ID_PrintFromToolbar", [](auto& d) { d.window.ToolClick("ID_Pins"); }, true},
    CommandCase{"PrintGrvDataOfAPlainProgram", "ID_PrintGRVData", {}, false},
    CommandCase{"PrintGrvDataOfAFamily", "ID_PrintGRVData", family, true},
    CommandCase{"FeatureCodesOfAPlainProgram", "ID_FeatureCodes", {}, false},
    CommandCase{"FeatureCodesOfAFamily", "ID_FeatureCodes", family, true},
    CommandCase{"AssemblyOrderOfAPlainProgram", "ID_AssemblyOrder", {}, false},
    CommandCase{"AssemblyOrderOfAFamily", "ID_AssemblyOrder", family, true},
    CommandCase{"GrvTestCompileOfAPlainProgram", "ID_GRVTestCompile", {}, false},
    CommandCase{"GrvTestCompileOfAFamily", "ID_GRVTestCompile", family, true},
    CommandCase{"GroupsTutorialOfAWiresProject", "ID_GroupsTutorial", {}, false},
    CommandCase{"GroupsTutorialOfAGroupsProject", "ID_GroupsTutorial",
                [](auto& d) { d.window.state().params().SetVal(param::Group, Value(true)); d.window.UpdateControls(); }, true}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

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

} // namespace
} // namespace zolt::shell
