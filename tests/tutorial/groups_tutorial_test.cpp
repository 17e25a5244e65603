#include "core/ports/clock.h"
#include "file/document_lifecycle.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "file/program_session.h"
#include "fixture/fixture_commands.h"
#include "tables/table_editor.h"
#include "tutorial/groups_tutorial.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace zolt::tutorial {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr const char* kSaveQuestion = "ZOLT 6.0: Save Changes to ''Mine'' ?";

struct FixedClock final : Clock {
    LocalTime Now() const override { return {2026, 3, 7, 14, 5, 9}; }
};

// A desk with a group method project open and a tutorial template beside it.
struct Desk {
    test::ScratchFolder dir;
    test::Session s;
    FixedClock clock;
    std::unique_ptr<file::DocumentLifecycle> doc;
    std::string templatePath = dir.file("Tutorial.zlt");

    Desk() {
        s.state.params().LoadDirectoryParameters(false);
        s.state.params().SetVal(param::ProgramsDirectory, Value(dir.path().string()));
        file::WriteProgramFile(s.state, templatePath);
        s.addRow(table::Connector, {Value("P9"), Value("2")});
        s.state.params().SetVal(param::Group, Value(true));
        file::WriteProgramFile(s.state, dir.file("Mine.zlf"));
        s.state.document().CurrentFile = dir.file("Mine.zlf");
        s.state.SetDirty(true);
        s.ui.ClearEvents();
        doc = std::make_unique<file::DocumentLifecycle>(
            s.state, file::DocumentEnvironment{clock, "BENCH-PC", {}});
        doc->WriteLockFile(dir.file("Mine.zlf"));
        s.state.document().LockedFile = dir.file("Mine.zlf");
    }
    bool start() { return OpenTutorialExample(s.state, *doc, templatePath); }
    // Starts the tutorial, leaving the open project unsaved.
    bool started() {
        s.ui.Queue(Answer::No);
        return start();
    }
    TableEditor editor(TableId table) {
        return TableEditor(*s.state.project().MainNetlist->TableAs<DataTable>(table));
    }
    std::vector<std::string> boxes() const {
        std::vector<std::string> out;
        for (const auto& b : s.ui.ShownBoxes())
            out.push_back(b.caption + ": " + b.text);
        return out;
    }
};

TEST(TutorialStart, ClosesTheProjectAndOpensAnUnnamedGroupMethodExample) {
    Desk d;
    ASSERT_TRUE(d.started()); // "Save Changes to ''Mine'' ?" answered No
    EXPECT_EQ(d.boxes(), std::vector<std::string>{kSaveQuestion});
    EXPECT_TRUE(d.s.state.document().FileOpen);
    EXPECT_TRUE(file::IsNewOrTemplate(d.s.state.document().CurrentFile));
    EXPECT_EQ(d.s.state.params().Text(param::Group), "True");
    EXPECT_FALSE(d.s.state.IsDirty());
    EXPECT_EQ(d.s.grid(table::Connector).Rows(), 0);
    EXPECT_FALSE(fs::exists(d.dir.file("Mine.lck")));
}

struct Refusal {
    const char* name;
    std::function<void(Desk&)> arrange;
    // The one box the refusal shows.
    std::function<std::string(const Desk&)> box;
};

class TutorialStartRefused : public ::testing::TestWithParam<Refusal> {};

TEST_P(TutorialStartRefused, LeavesTheProjectOpen) {
    Desk d;
    GetParam().arrange(d);
    EXPECT_FALSE(d.start());
    EXPECT_EQ(d.boxes(), std::vector<std::string>{GetParam().box(d)});
    EXPECT_TRUE(d.s.state.document().FileOpen);
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Mine.zlf"));
    EXPECT_EQ(d.s.grid(table::Connector).Text(1, 0), "P9");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, TutorialStartRefused, ::testing::Values(
    Refusal{"WiresMethod", [](Desk& d) { d.s.state.params().SetVal(param::Group, Value(false)); },
            [](const Desk&) { return "Abort Operation: The tutorial is only currently implemented for Group method."s; }},
    Refusal{"TemplateMissing", [](Desk& d) { fs::remove(d.templatePath); },
            [](const Desk& d) { return "Abort Operation: " + d.templatePath + " not found"; }},
    Refusal{"SaveQuestionCancelled", [](Desk& d) { d.s.ui.Queue(Answer::Cancel); },
            [](const Desk&) { return kSaveQuestion; }}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

void key(Desk& d, TableId table, int k, int row, std::vector<std::string> values) {
    ASSERT_EQ(d.editor(table).PressKey(k, row, values), code::None);
}

// What the user does for each step that waits, as the step's text tells it, in order.
// clang-format off
const std::vector<std::pair<std::string, std::function<void(Desk&)>>> kSteps = {
    {"The Connectors table has no row for Connector J1 yet.", [](Desk& d) { ASSERT_EQ(d.editor(table::Connector).AddRow({"J1", "4"}), code::None); }},
    {"The Connectors table has no row for Connector J2 yet.", [](Desk& d) { key(d, table::Connector, key::F5, 1, {"4"}); }},
    {"The Groups table has no row for Connector J1, Pin 1 yet.", [](Desk& d) { key(d, table::Groups, key::F5, 0, {"J1", "1"}); }},
    {"The Groups table has no row for Connector J2, Pin 1 yet.", [](Desk& d) { key(d, table::Groups, key::F6, 1, {"J2", "1"}); }},
    {"The Groups table has no row for Connector J1, Pin 2 yet.", [](Desk& d) { key(d, table::Groups, key::F5, 2, {"J1", "2"}); }},
    {"The Groups table has no row for Connector J2, Pin 2 yet.", [](Desk& d) { key(d, table::Groups, key::F6, 3, {"J2", "2"}); key(d, table::Groups, key::F6, 4, {"J2", "3"}); }},
    {"The Groups table has no row for Connector J1, Pin 3 yet.", [](Desk& d) { key(d, table::Groups, key::F5, 5, {"J1", "3"}); key(d, table::Groups, key::F6, 6, {"J2", "4"}); }},
    {"The Fixture table has no row for Connector J1, Pin 1 yet.", [](Desk& d) { d.s.ui.Queue(Answer::Ok); ASSERT_EQ(FixtureKey(d.s.state, 1, key::F8), code::None); }},
    {"The example has no name yet: press Save Example... to save it.", [](Desk& d) { d.s.ui.Queue(ScriptedUi::TextAnswer{d.dir.file("Example.zlf")}); d.doc->Save(); }},
};
// clang-format on

TEST(StepCheck, EachStepWaitsForTheTablesThenGoesOn) {
    Desk d;
    ASSERT_TRUE(d.started());
    GroupsTutorial walk(d.s.state);
    EXPECT_TRUE(d.s.state.session().TutorialActive);
    for (const auto& [hint, doIt] : kSteps) {
        SCOPED_TRACE(hint);
        while (walk.Check().done) // a step of text alone
            ASSERT_TRUE(walk.Next());
        const int index = walk.Index();
        d.s.ui.ClearEvents();
        EXPECT_FALSE(walk.Next());
        EXPECT_EQ(d.boxes(), std::vector<std::string>{"Groups Tutorial: " + hint});
        EXPECT_EQ(walk.Index(), index);
        doIt(d);
        EXPECT_TRUE(walk.Check().done) << walk.Check().hint;
        d.s.ui.ClearEvents();
        EXPECT_TRUE(walk.Next());
        // The last step finishes the walk where it stands.
        EXPECT_EQ(walk.Finished() ? walk.Count() : walk.Index(), index + 1);
        EXPECT_EQ(d.boxes(), std::vector<std::string>{});
    }
    EXPECT_TRUE(walk.Finished());
}

TEST(StepCheck, OnlyTheStepsOwnRowsCount) {
    Desk d;
    ASSERT_TRUE(d.started());
    GroupsTutorial walk(d.s.state);
    ASSERT_TRUE(walk.Next()); // the introduction
    // Half a group is not the step: the second pin is still missing.
    ASSERT_EQ(d.editor(table::Connector).AddRow({"J1", "4"}), code::None);
    ASSERT_TRUE(walk.Next());
    ASSERT_EQ(d.editor(table::Connector).AddRow({"J2", "4"}), code::None);
    ASSERT_TRUE(walk.Next());
    ASSERT_EQ(d.editor(table::Groups).AddRow({"7", "J1", "1"}), code::None);
    const StepState wrongGroup = walk.Check();
    EXPECT_FALSE(wrongGroup.done);
    EXPECT_EQ(wrongGroup.hint, "Row 1 of the Groups table has Group '7'; this step needs 1.");
    EXPECT_EQ(std::tuple(wrongGroup.focus.table, wrongGroup.focus.row, wrongGroup.focus.column),
              std::tuple(table::Groups, 1, 0));
    // Skip retypes the wrong cell through the table's own checks.
    ASSERT_TRUE(walk.Skip());
    EXPECT_EQ(d.s.grid(table::Groups).Text(1, 0), "1");
    EXPECT_EQ(d.s.grid(table::Groups).Rows(), 1);
}

TEST(TutorialWalk, SkipStopsWhereATableRefusesTheRow) {
    Desk d;
    ASSERT_TRUE(d.started());
    GroupsTutorial walk(d.s.state);
    while (walk.Step().table != table::Groups)
        ASSERT_TRUE(walk.Skip());
    // J1 lost its pins: the group's pin no longer fits the connector.
    ASSERT_EQ(d.editor(table::Connector).EditCell(1, 1, "0"), code::None);
    const int index = walk.Index();
    d.s.ui.ClearEvents();
    EXPECT_FALSE(walk.Skip());
    EXPECT_EQ(walk.Index(), index);
    EXPECT_FALSE(d.s.ui.ShownBoxes().empty());
    EXPECT_EQ(d.s.grid(table::Groups).Rows(), 0);
}

TEST(TutorialWalk, BackQuitAndFinishReleaseTheEditingTools) {
    Desk d;
    ASSERT_TRUE(d.started());
    {
        GroupsTutorial walk(d.s.state);
        walk.Back();
        EXPECT_EQ(walk.Index(), 0);
        ASSERT_TRUE(walk.Skip());
        ASSERT_TRUE(walk.Skip());
        walk.Back();
        EXPECT_EQ(walk.Index(), 1);
        EXPECT_TRUE(walk.Check().done) << "going back keeps what was typed";
        walk.Quit();
        EXPECT_TRUE(walk.Finished());
        EXPECT_FALSE(d.s.state.session().TutorialActive);
        EXPECT_FALSE(walk.Next());
    }
    GroupsTutorial walk(d.s.state);
    while (!walk.IsLast())
        ASSERT_TRUE(walk.Skip());
    d.s.ui.Queue(ScriptedUi::TextAnswer{d.dir.file("Example.zlf")});
    d.doc->Save();
    ASSERT_TRUE(walk.Next());
    EXPECT_TRUE(walk.Finished());
    EXPECT_FALSE(d.s.state.session().TutorialActive);
    EXPECT_EQ(d.s.grid(table::Groups).Rows(), 7) << "skipping typed every step's rows";
}

} // namespace
} // namespace zolt::tutorial
