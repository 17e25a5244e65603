#include "desktop.h"
#include "shell/command_registry.h"
#include "shell/command_table.h"

#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <QToolBar>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

TEST(CommandRegistry, KnowsOnlyTheTablesCommandsAndFindsTheUnbound) {
    CommandRegistry r;
    EXPECT_THROW(r.Bind("ID_Nonesuch", [] {}), std::logic_error);
    EXPECT_EQ(r.Unbound().size(), Commands().size());
    int runs = 0;
    bool allowed = false;
    r.Bind(
        "ID_New", [&runs] { ++runs; }, [&allowed] { return allowed; });
    EXPECT_TRUE(r.Run("ID_New"));
    EXPECT_EQ(runs, 1);
    EXPECT_FALSE(r.Enabled("ID_New"));
    allowed = true;
    EXPECT_TRUE(r.Enabled("ID_New"));
    EXPECT_FALSE(r.Run("ID_Open")) << "nothing bound";
    EXPECT_FALSE(r.Enabled("ID_Open"));
    EXPECT_EQ(r.Unbound().size(), Commands().size() - 1);
}

TEST(CommandRegistry, EveryCommandOfTheFrameHasAHandlerAndItsActionFollowsEnabledWhen) {
    Desktop d;
    EXPECT_TRUE(d.window.commands().Unbound().empty());
    const auto actionsFollow = [&d](const char* when) {
        for (const CommandDef& c : Commands())
            EXPECT_EQ(d.window.Action(QString::fromUtf8(c.id))->isEnabled(),
                      d.window.commands().Enabled(c.id))
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

struct CommandCase {
    const char* name;
    const char* command;
    const char* text; // the menu's text, where the case checks it
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
    if (GetParam().text) {
        EXPECT_EQ(action->text(), QString::fromUtf8(GetParam().text));
    }
    EXPECT_EQ(action->isEnabled(), GetParam().enabled);
}

void closeProject(CommandDesktop& d) {
    d.window.ToolClick("ID_Close");
}

void compiled(CommandDesktop& d) {
    QFile bin(d.dir.filePath("door.bin"));
    ASSERT_TRUE(bin.open(QIODevice::WriteOnly));
    bin.write("image");
    bin.close();
    d.window.UpdateControls();
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CommandState,
    testing::Values(
        CommandCase{"SaveOfAnUnchangedProject", "ID_Save", nullptr, {}, false},
        CommandCase{"ConnectorsWithAProject", "ID_Connectors", nullptr, {}, true},
        CommandCase{"ConnectorsWithoutAProject", "ID_Connectors", nullptr, closeProject, false},
        CommandCase{"OpenWithoutAProject", "ID_Open", nullptr, closeProject, true},
        CommandCase{"CascadeWithATable", "ID_Cascade", nullptr,
                    [](auto& d) { d.window.ToolClick("ID_Connectors"); }, true},
        CommandCase{"FileSettings", "ID_Settings", "File S&ettings", {}, true},
        CommandCase{"FileSettingsWithoutAProject", "ID_Settings", nullptr, closeProject, false},
        CommandCase{"Properties", "ID_Properties", "P&roperties...", {}, true},
        CommandCase{"PropertiesWithoutAProject", "ID_Properties", nullptr, closeProject, false},
        CommandCase{"ZoltSettingsWithoutAProject", "ID_ZOLTSettings", nullptr, closeProject, true},
        CommandCase{"Compile", "ID_Compile", "&Compile", {}, true},
        CommandCase{"CompileWhileARowIsTyped", "ID_Compile", nullptr,
                    [](auto& d) { d.window.state().SetGridEditing(true); }, false},
        CommandCase{"CompileWithoutAProject", "ID_Compile", nullptr, closeProject, false},
        CommandCase{"Labels", "ID_Labels", "Edit &Labels", {}, true},
        CommandCase{"LabelsWithoutAProject", "ID_Labels", nullptr, closeProject, false},
        CommandCase{"DownloadWithoutAnImage", "ID_Download", "&Download", {}, false},
        CommandCase{"DownloadOfACompiledProgram", "ID_Download", nullptr, compiled, true},
        CommandCase{"DownloadWithoutAProject", "ID_Download", nullptr,
                    [](auto& d) {
                        compiled(d);
                        closeProject(d);
                    },
                    false},
        CommandCase{"Print", "ID_Print", "&Print...", {}, true},
        CommandCase{"PrintWithoutAProject", "ID_Print", nullptr, closeProject, false},
        CommandCase{"PrintFromToolbarWithoutATable", "ID_PrintFromToolbar", nullptr, {}, false},
        CommandCase{"PrintFromToolbarOverATable", "ID_PrintFromToolbar", nullptr,
                    [](auto& d) { d.window.ToolClick("ID_Pins"); }, true},
        CommandCase{"PrintGrvDataOfAPlainProgram", "ID_PrintGRVData", nullptr, {}, false},
        CommandCase{"PrintGrvDataOfAFamily", "ID_PrintGRVData", nullptr,
                    [](auto& d) { d.fileIs("family.grv"); }, true},
        CommandCase{"FeatureCodesOfAPlainProgram", "ID_FeatureCodes", nullptr, {}, false},
        CommandCase{"FeatureCodesOfAFamily", "ID_FeatureCodes", nullptr,
                    [](auto& d) { d.fileIs("family.grv"); }, true},
        CommandCase{"AssemblyOrderOfAPlainProgram", "ID_AssemblyOrder", nullptr, {}, false},
        CommandCase{"AssemblyOrderOfAFamily", "ID_AssemblyOrder", nullptr,
                    [](auto& d) { d.fileIs("family.grv"); }, true},
        CommandCase{"GrvTestCompileOfAPlainProgram", "ID_GRVTestCompile", nullptr, {}, false},
        CommandCase{"GrvTestCompileOfAFamily", "ID_GRVTestCompile", nullptr,
                    [](auto& d) { d.fileIs("family.grv"); }, true},
        CommandCase{
            "GroupsTutorialOfAWiresProject", "ID_GroupsTutorial", "Groups Tutorial", {}, false},
        CommandCase{"GroupsTutorialOfAGroupsProject", "ID_GroupsTutorial", nullptr,
                    [](auto& d) {
                        d.window.state().Params().SetVal(param::Group, Value(true));
                        d.window.UpdateControls();
                    },
                    true}),
    [](const auto& info) { return std::string(info.param.name); });

// Download sits beside Compile on the main toolbar.
TEST(CommandRegistry, DownloadFollowsCompileOnTheToolbar) {
    Desktop d;
    auto* toolbar = d.window.findChild<QToolBar*>(QStringLiteral("MainToolbars"));
    ASSERT_TRUE(toolbar);
    const auto actions = toolbar->actions();
    const auto compile = actions.indexOf(d.window.Action(QStringLiteral("ID_Compile")));
    ASSERT_GE(compile, 0);
    EXPECT_EQ(actions.indexOf(d.window.Action(QStringLiteral("ID_Download"))), compile + 1);
}

} // namespace
} // namespace zolt::shell
