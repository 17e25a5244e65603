// Simulate, Compare with and Verify against drawing on the example program: a
// step selects its line, a fault shows, each list brings its row to the front,
// and what cannot be read is told in a box with nothing opened.
#include "core/table_columns.h"
#include "desktop.h"
#include "shell/differences_window.h"
#include "shell/simulate_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

namespace fs = std::filesystem;
using test_desktop::Desktop;

struct Example : test_desktop::ExampleDesktop {
    Grid& rows(const std::string& netlist, TableId table) {
        return window.state().project().FindNetlist(netlist)->GetTable(table)->gridarray();
    }
    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(folder.path() / name, std::ios::binary) << text;
        return folder.file(name);
    }
    // The row (1-based) selected in the table window in front, when it shows that table.
    int rowInFront(const std::string& netlist, TableId table) {
        QMdiSubWindow* frame = window.windows().WindowOf(
            table, window.state().project().FindNetlist(netlist)->netlistIndex);
        if (!frame || window.workspace().activeSubWindow() != frame)
            return -1;
        auto* grid = qobject_cast<TableWindow*>(frame->widget());
        if (!grid)
            grid = frame->widget()->findChild<TableWindow*>();
        return grid ? grid->CurrentRow() : -1;
    }
    template <typename W> W* latest() {
        const auto all = window.findChildren<W*>();
        return all.isEmpty() ? nullptr : all.back();
    }
    SimulateWindow& simulate() {
        window.ToolClick("ID_Simulate");
        SimulateWindow* w = latest<SimulateWindow>();
        if (!w)
            throw std::runtime_error("no Simulate window");
        return *w;
    }
    static void measure(SimulateWindow& w) {
        w.MeasureCoverage();
        test_desktop::RunUntil([&w] { return !w.measuring() && w.coverage(); },
                               std::chrono::seconds{20});
    }
    // Enter on the current item of a list, as the user presses it.
    static void enter(QTreeWidget& list) { zolt::test::Key(&list, Qt::Key_Return); }
};

TEST(Simulate, EachStepSelectsTheLineAboutToRunAndAFaultBuiltInFailsTheRun) {
    Example d;
    SimulateWindow& w = d.simulate();
    EXPECT_EQ(w.focusWidget(), &w.transcript());
    EXPECT_EQ(w.simulation().CurrentLine(), 1u);
    w.Step();
    EXPECT_EQ(w.simulation().CurrentLine(), 2u);
    EXPECT_EQ(d.rowInFront("MAIN", table::Sequence), 2);
    while (!w.simulation().Ended())
        w.Step();
    const analyzer::RunResult stepped = w.simulation().Result();
    w.Reset();
    w.RunToEnd();
    EXPECT_EQ(w.simulation().Result().transcript, stepped.transcript);
    EXPECT_EQ(w.simulation().Result().endLine, stepped.endLine);
    EXPECT_TRUE(stepped.Passed());
    EXPECT_TRUE(w.status().text().contains(QStringLiteral("PASSED")))
        << w.status().text().toStdString();

    // A fault built in fails the run, and its errors are listed.
    w.faultBox().setEditText(QStringLiteral("open:J1-2"));
    ASSERT_TRUE(w.AddFault());
    EXPECT_EQ(w.builtIn().count(), 1);
    w.Reset();
    w.RunToEnd();
    ASSERT_FALSE(w.simulation().Result().errors.empty());
    EXPECT_EQ(w.transcript().topLevelItem(1)->childCount(),
              static_cast<int>(w.simulation().Result().errors.size()));
    EXPECT_TRUE(w.status().text().contains(QStringLiteral("FAILED")));
}

TEST(Simulate, AnUndetectedFaultLeadsToTheSequenceLineThatWouldShowIt) {
    Example d;
    // Line 3 jumps past the scan of DOOR_LH on line 4.
    d.rows("MAIN", table::Sequence).Set(3, sequence_column::Command, "GOTO");
    d.rows("MAIN", table::Sequence).Set(3, sequence_column::Parameter, "8");
    SimulateWindow& w = d.simulate();
    Example::measure(w);
    ASSERT_TRUE(w.coverage());
    ASSERT_GT(w.undetected().topLevelItemCount(), 0);
    EXPECT_EQ(w.focusWidget(), &w.undetected());
    EXPECT_EQ(w.coverage()->undetected.front().line, 4u);
    Example::enter(w.undetected());
    EXPECT_EQ(d.rowInFront("MAIN", table::Sequence), 4);

    const std::string pdf = d.folder.file("coverage.pdf");
    d.ui.Queue(ScriptedUi::TextAnswer{pdf});
    w.pdfButton().click();
    EXPECT_GT(fs::file_size(pdf), 0u);
}

TEST(CompareWith, EachDifferenceLeadsToItsRowInThisProgram) {
    Example d;
    const std::string other = d.folder.file("before.zlf");
    fs::copy_file(d.program, other);
    d.rows("DOOR_LH", table::Pin).Set(23, pin_column::Wire, "W13");
    d.ui.Queue(ScriptedUi::TextAnswer{other});
    d.window.ToolClick("ID_CompareWith");
    DifferencesWindow* w = d.latest<DifferencesWindow>();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->focusWidget(), &w->list());
    ASSERT_NE(w->list().currentItem(), nullptr);
    EXPECT_EQ(w->list().currentItem()->parent()->parent()->text(0), QStringLiteral("DOOR_LH"));
    Example::enter(w->list());
    EXPECT_EQ(d.rowInFront("DOOR_LH", table::Pin), 23);

    // The list is of this program: closing it takes the list along.
    d.ui.Queue(Answer::No);
    d.window.ToolClick("ID_Close");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(d.window.state().document().FileOpen);
    EXPECT_EQ(d.latest<DifferencesWindow>(), nullptr);
}

TEST(VerifyAgainstDrawing, AMissingConnectionLeadsToItsPinOnTheNetlistChosen) {
    Example d;
    const std::string drawing =
        d.write("door.csv", "From Connector,From Pin,To Connector,To Pin\n"
                            "J1,1,J2,1\nJ1,2,J2,2\nJ1,3,J2,3\nJ1,3,P3,4\nJ1,7,J2,7\nJ1,7,P3,3\n"
                            "J1,8,P3,1\nJ1,9,P3,2\nJ1,10,J2,8\nJ1,4,J2,4\nJ1,5,J2,6\n");
    d.ui.Queue(ScriptedUi::TextAnswer{drawing});
    d.ui.Queue(ScriptedUi::TextAnswer{"DOOR_LH"});
    d.window.ToolClick("ID_VerifyAgainstDrawing");
    DifferencesWindow* w = d.latest<DifferencesWindow>();
    ASSERT_NE(w, nullptr);
    ASSERT_EQ(w->differences().size(), 2u);
    EXPECT_EQ(w->differences().front().text, "missing J1-5 to J2-6");
    Example::enter(w->list());
    EXPECT_EQ(d.rowInFront("DOOR_LH", table::Pin), 23);
}

// What cannot be read is told in a box, and nothing opens or changes.
TEST(Views, UnreadableInputIsToldInABoxAndChangesNothing) {
    Example d;
    const auto told = [&d](const char* caption, const std::string& start) {
        const auto boxes = d.ui.ShownBoxes();
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.back().caption, caption);
        EXPECT_EQ(boxes.back().text.rfind(start, 0), 0u) << boxes.back().text;
        EXPECT_EQ(d.latest<DifferencesWindow>(), nullptr);
        EXPECT_FALSE(d.window.state().IsDirty());
    };
    d.ui.Queue(ScriptedUi::TextAnswer{d.write("cut.zlf", "ZOLT")});
    d.window.ToolClick("ID_CompareWith");
    told("Abort File Read", "");
    d.ui.Queue(ScriptedUi::TextAnswer{d.write("bad.csv", "J1,4,\"J2\n")});
    d.window.ToolClick("ID_VerifyAgainstDrawing");
    told("Verify against Drawing", d.folder.path().string());

    SimulateWindow& w = d.simulate();
    w.faultBox().setEditText(QStringLiteral("open:J9-1"));
    EXPECT_FALSE(w.AddFault());
    EXPECT_EQ(w.builtIn().count(), 0);
    told("Simulate", "");
    w.keys().setText(QStringLiteral("start,jump"));
    w.keys().setModified(true);
    w.Step();
    EXPECT_EQ(w.simulation().Steps(), 0u);
    told("Simulate", "unknown key 'JUMP'");
}

// The other program may be of any kind File > Open reads: a drawing is imported.
TEST(CompareWith, ADrawingIsReadAsItsImportReadsIt) {
    Example d;
    d.ui.Queue(ScriptedUi::TextAnswer{d.write("bad.csv", "J1,4,\"J2\n")});
    d.window.ToolClick("ID_CompareWith");
    const auto boxes = d.ui.ShownBoxes();
    ASSERT_FALSE(boxes.empty());
    EXPECT_EQ(boxes.back().caption, "Import Drawing");
    EXPECT_EQ(boxes.back().text.rfind("bad.csv, ", 0), 0u) << boxes.back().text;
    EXPECT_EQ(d.latest<DifferencesWindow>(), nullptr);
}

} // namespace
} // namespace zolt::shell
