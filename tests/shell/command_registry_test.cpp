#include "desktop.h"
#include "shell/command_registry.h"
#include "shell/command_table.h"

#include <QAction>
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

} // namespace
} // namespace zolt::shell
