// The compiler window on the desktop: it shows first, compiles, shows the
// results and lets the user close it; the commands that lead to it.
#include "core/table_kinds.h"
#include "desktop.h"
#include "sequence/load_system_sequence_table.h"
#include "shell/compiler_window.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

namespace fs = std::filesystem;

class FixedClock final : public Clock {
public:
    LocalTime Now() const override { return {2026, 1, 2, 3, 4, 5}; }
};

struct CompilerDesktop : test_desktop::Desktop {
    QTemporaryDir dir;
    fs::path folder = dir.path().toStdString();
    CompilerDesktop() { window.state().document().CurrentFile = (folder / "panel.zlf").string(); }
};

TEST(CompilerWindow, ShowsTheResultsAndThenLetsTheUserClose) {
    CompilerDesktop d;
    FixedClock clock;
    CompilerWindow w(d.window.state(), clock, &d.window);
    w.show();
    EXPECT_FALSE(w.outcome()); // the window is on the screen before the compile starts
    EXPECT_FALSE(w.closeButton().isEnabled());
    test_desktop::RunUntil([&w] { return w.outcome().has_value(); });
    ASSERT_EQ(w.outcome(), compile::CompileEnd::Finished);
    EXPECT_EQ(w.results().toPlainText(),
              QStringLiteral("Compiling: MAIN\n\nWarnings: Turned Off\nErrors: 0"));
    EXPECT_TRUE(w.closeButton().isEnabled());
    EXPECT_TRUE(fs::exists(d.folder / "panel.bin"));
    EXPECT_FALSE(d.window.state().project().NeedsCompile);
    EXPECT_TRUE(d.window.Action(QStringLiteral("ID_Download"))->isEnabled());
}

TEST(CompilerWindow, ProgramWithoutFileIsSavedFirstAndCancelCompilesNothing) {
    CompilerDesktop d;
    d.window.state().document().CurrentFile.clear();
    d.window.ToolClick(QStringLiteral("ID_Compile"));
    bool askedForFile = false;
    for (const auto& e : d.ui.Events())
        askedForFile = askedForFile || e.kind == ScriptedUi::Event::Kind::File;
    EXPECT_TRUE(askedForFile);
    EXPECT_TRUE(d.window.state().document().CurrentFile.empty());
}

TEST(CompilerWindow, LabelsWithoutTheApplicationSayHowToGetIt) {
    CompilerDesktop d;
    d.window.ToolClick(QStringLiteral("ID_Labels"));
    ASSERT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(d.ui.ShownBoxes()[0].caption, "Create Labels");
}

} // namespace
} // namespace zolt::shell
