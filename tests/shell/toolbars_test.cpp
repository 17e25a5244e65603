#include "desktop.h"
#include "shell/customize_toolbars_dialog.h"
#include "shell/name_toolbar_dialog.h"
#include "shell/tab_strip.h"
#include "shell/toolbar_set.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

QStringList actionIds(const QToolBar& toolbar) {
    QStringList ids;
    for (const QAction* a : toolbar.actions())
        ids << a->objectName();
    return ids;
}

// The layout without the docking, which the toolkit owns.
ToolbarLayout undocked(ToolbarLayout layout) {
    layout.dockState.clear();
    return layout;
}

// The factory set and a user toolbar "Mine".
ToolbarLayout customised() {
    ToolbarLayout layout = FactoryToolbarLayout();
    layout.toolbars.push_back({ToolbarKind::User, "Mine", true, {{"ID_Open", true}}});
    return layout;
}

void setChecked(QListWidget& list, int row, bool on) {
    list.item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

TEST(Toolbars, AUserToolbarHiddenToolsAndOrderSurviveTheLayoutFile) {
    Desktop d;
    QTemporaryDir dir;
    const QString file = dir.filePath("ZOLT.atb");
    ToolbarSet& set = d.window.toolbars();
    ToolbarLayout layout = set.Current();
    std::swap(layout.toolbars[0].tools[0], layout.toolbars[0].tools[1]);
    layout.toolbars[0].tools[2].shown = false;
    layout.toolbars.push_back(
        {ToolbarKind::User, "Build", true, {{"ID_Compile", true}, {"ID_Fixture", true}}});
    set.Apply(layout);
    const QStringList mainTools = actionIds(*set.Toolbar("Main"));
    EXPECT_FALSE(mainTools.contains(QString::fromStdString(layout.toolbars[0].tools[2].command)));
    ASSERT_TRUE(set.Save(file));

    set.Apply(FactoryToolbarLayout());
    EXPECT_EQ(set.Toolbar("Build"), nullptr) << "a toolbar the layout lacks goes";
    EXPECT_EQ(set.Load(file), ToolbarSet::Loaded::FromFile);
    EXPECT_EQ(undocked(set.Current()), undocked(layout));
    EXPECT_EQ(actionIds(*set.Toolbar("Main")), mainTools);
    EXPECT_EQ(actionIds(*set.Toolbar("Build")), (QStringList{"ID_Compile", "ID_Fixture"}));
}

TEST(Toolbars, ADamagedOrMissingFileGivesTheFactorySet) {
    Desktop d;
    QTemporaryDir dir;
    const QString file = dir.filePath("ZOLT.atb");
    ToolbarSet& set = d.window.toolbars();
    set.Apply(customised());
    EXPECT_EQ(set.Load(file), ToolbarSet::Loaded::NoFile);
    EXPECT_EQ(undocked(set.Current()), FactoryToolbarLayout());
    set.Apply(customised());
    std::ofstream(file.toStdString()) << "ZOLT Toolbars 1\n";
    EXPECT_EQ(set.Load(file), ToolbarSet::Loaded::Damaged);
    EXPECT_EQ(undocked(set.Current()), FactoryToolbarLayout());
}

// At 1024 by 768 no table button hides behind the toolbar's overflow, and each says what it does.
TEST(Toolbars, EveryNetlistToolShowsInANarrowWindow) {
    Desktop d;
    d.window.tabStrip().show();
    d.window.resize(1024, 768);
    QApplication::processEvents();
    auto* toolbar = d.window.tabStrip().findChild<QToolBar*>(QStringLiteral("NetlistToolbars"));
    ASSERT_NE(toolbar, nullptr);
    for (QAction* action : toolbar->actions())
        if (action->isVisible() && !action->isSeparator()) {
            const QWidget* button = toolbar->widgetForAction(action);
            ASSERT_NE(button, nullptr) << action->objectName().toStdString();
            EXPECT_TRUE(button->isVisible()) << action->objectName().toStdString();
            EXPECT_FALSE(action->toolTip().isEmpty()) << action->objectName().toStdString();
        }
}

TEST(Toolbars, TheMenuChecksShowAndHideMainAndNetlistToolbars) {
    Desktop d;
    ToolbarSet& set = d.window.toolbars();
    ASSERT_TRUE(d.window.Action("ID_MainToolbar")->isChecked());
    d.window.Action("ID_MainToolbar")->trigger();
    EXPECT_TRUE(set.Toolbar("Main")->isHidden());
    EXPECT_FALSE(d.window.Action("ID_MainToolbar")->isChecked());
    d.window.Action("ID_NetlistToolbar")->setChecked(true);
    d.window.Action("ID_NetlistToolbar")->trigger();
    EXPECT_FALSE(d.window.tabStrip().ToolbarVisible());
    EXPECT_FALSE(set.Current().toolbars[1].visible);
}

TEST(CustomizeToolbars, EditsTheLayoutAndTheLookAndOkAppliesThem) {
    Desktop d;
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<CustomizeToolbarsDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QListWidget& tools = dialog->ToolList();
        tools.setCurrentRow(0);
        dialog->MoveTool(1);
        dialog->MoveTool(-1);
        dialog->MoveTool(-1); // at the top: stays
        dialog->MoveTool(1);
        setChecked(tools, 1, false);
        dialog->LargeImages().setChecked(true);
        dialog->TextState().setCurrentIndex(0);
        dialog->AddToolbar({ToolbarKind::User, "Checks", true, {{"ID_Compile", true}}});
        setChecked(dialog->ToolbarList(), 1, false);
        dialog->accept();
    });
    const QString second = actionIds(*d.window.toolbars().Toolbar("Main")).at(1);
    d.window.ToolClick("ID_ConfigureToolbars");
    ToolbarSet& set = d.window.toolbars();
    EXPECT_EQ(actionIds(*set.Toolbar("Main")).front(), second)
        << "the first tool moved down and was then hidden";
    EXPECT_EQ(set.Current().toolbars[0].tools[1].shown, false);
    ASSERT_NE(set.Toolbar("Checks"), nullptr);
    EXPECT_EQ(set.Toolbar("Checks")->iconSize(), QSize(32, 32)) << "a new toolbar takes the look";
    EXPECT_EQ(set.TextState(), 1);
    EXPECT_FALSE(d.window.tabStrip().ToolbarVisible());
    EXPECT_FALSE(d.window.Action("ID_NetlistToolbar")->isChecked());
}

TEST(CustomizeToolbars, CancelKeepsEverythingAndResetAndDeleteWorkOnTheDialogsCopy) {
    Desktop d;
    d.window.toolbars().Apply(customised());
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<CustomizeToolbarsDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->ToolbarList().setCurrentRow(0);
        dialog->DeleteToolbar();
        EXPECT_EQ(dialog->Options().layout.toolbars.size(), 3u) << "Main cannot be deleted";
        dialog->ToolbarList().setCurrentRow(2);
        dialog->DeleteToolbar();
        EXPECT_EQ(dialog->Options().layout.toolbars.size(), 2u);
        dialog->LargeImages().setChecked(true);
        dialog->Reset();
        EXPECT_EQ(undocked(dialog->Options().layout), FactoryToolbarLayout());
        EXPECT_FALSE(dialog->Options().largeImages);
        dialog->reject();
    });
    d.window.ToolClick("ID_ConfigureToolbars");
    EXPECT_NE(d.window.toolbars().Toolbar("Mine"), nullptr);
}

struct NameCase {
    const char* name;
    QString toolbarName;
    bool pickCommand;
    const char* refusal; // empty when the toolbar is made
};

class NameToolbar : public testing::TestWithParam<NameCase> {};

TEST_P(NameToolbar, RefusesWithABoxOrMakesTheToolbar) {
    test::QtApp();
    ScriptedUi ui;
    ToolbarLayout existing = FactoryToolbarLayout();
    existing.toolbars.push_back({ToolbarKind::User, "Mine", true, {}});
    NameToolbarDialog dialog(existing, ui);
    dialog.NameEdit().setText(GetParam().toolbarName);
    if (GetParam().pickCommand)
        setChecked(dialog.CommandList(), 2, true);
    dialog.accept();
    const std::string refusal = GetParam().refusal;
    if (refusal.empty()) {
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_TRUE(ui.Boxes().empty());
        const ToolbarDef made = dialog.Toolbar();
        EXPECT_EQ(made.name, "Door checks");
        ASSERT_EQ(made.tools.size(), 1u);
        EXPECT_EQ(made.tools[0].command,
                  dialog.CommandList().item(2)->data(Qt::UserRole).toString().toStdString());
    } else {
        EXPECT_NE(dialog.result(), QDialog::Accepted);
        ASSERT_EQ(ui.Boxes().size(), 1u);
        EXPECT_EQ(ui.Boxes()[0].text, refusal);
        EXPECT_EQ(ui.Boxes()[0].caption, "New Toolbar");
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(NameToolbar, NameToolbar, testing::Values(
    NameCase{"Made", "  Door checks ", true, ""},
    NameCase{"NoName", "   ", true, "Enter a name for the new toolbar."},
    NameCase{"NameOfMain", "MAIN", true, "A toolbar named \"MAIN\" already exists."},
    NameCase{"NameOfAUserToolbar", "mine", true, "A toolbar named \"mine\" already exists."},
    NameCase{"NoCommand", "Door checks", false, "Choose at least one command for the toolbar."}),
    [](const testing::TestParamInfo<NameCase>& info) { return info.param.name; });
// clang-format on

} // namespace
} // namespace zolt::shell
