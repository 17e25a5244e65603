// Simulate, Compare with and Verify against drawing on the example program: a
// step selects its line, a fault shows, each list brings its row to the front,
// and what cannot be read is told in a box with nothing opened.
#include "core/table_columns.h"
#include "desktop.h"
#include "shell/differences_window.h"
#include "shell/mnemonics.h"
#include "shell/simulate_window.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

namespace fs = std::filesystem;
using test_desktop::Desktop;

struct Example : Desktop {
    fs::path folder =
        fs::temp_directory_path() /
        ("zolt-views-" + std::to_string(std::hash<std::string>()(
                             testing::UnitTest::GetInstance()->current_test_info()->name())));
    fs::path program = folder / "harness.zlf";

    Example() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        fs::copy_file(fs::path(ZOLT_TEST_DATA_DIR) / "../../examples/harness.zlf", program);
        ui.Queue(ScriptedUi::TextAnswer{program.string()});
        window.ToolClick("ID_Open");
    }
    ~Example() {
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    Grid& rows(const std::string& netlist, TableId table) {
        return window.state().project().FindNetlist(netlist)->GetTable(table)->gridarray();
    }
    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(folder / name, std::ios::binary) << text;
        return (folder / name).string();
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
        QElapsedTimer clock;
        clock.start();
        while ((w.measuring() || !w.coverage()) && clock.elapsed() < 20000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    // Enter on the current item of a list, as the user presses it.
    static void enter(QTreeWidget& list) { zolt::test::Key(&list, Qt::Key_Return); }
};

TEST(Simulate, EachStepSelectsTheLineAboutToRunAndStepsEndWhereARunEnds) {
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
}

TEST(Simulate, AFaultBuiltInFailsTheRunAndItsErrorIsListed) {
    Example d;
    SimulateWindow& w = d.simulate();
    w.faultBox().setEditText(QStringLiteral("open:J1-2"));
    ASSERT_TRUE(w.AddFault());
    EXPECT_EQ(w.builtIn().count(), 1);
    w.RunToEnd();
    EXPECT_FALSE(w.simulation().Result().Passed());
    ASSERT_FALSE(w.simulation().Result().errors.empty());
    QTreeWidgetItem* errors = w.transcript().topLevelItem(1);
    EXPECT_EQ(errors->childCount(), static_cast<int>(w.simulation().Result().errors.size()));
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

    const std::string pdf = (d.folder / "coverage.pdf").string();
    d.ui.Queue(ScriptedUi::TextAnswer{pdf});
    w.pdfButton().click();
    EXPECT_GT(fs::file_size(pdf), 0u);
}

TEST(CompareWith, EachDifferenceLeadsToItsRowInThisProgram) {
    Example d;
    const std::string other = (d.folder / "before.zlf").string();
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

// The letter after a single "&"; none without one.
QChar MnemonicOf(const QString& caption) {
    const qsizetype at = caption.indexOf(QRegularExpression(QStringLiteral("&[^&]")));
    return at < 0 ? QChar() : caption[at + 1].toUpper();
}

TEST(Simulate, AltLettersAreTheWindowsOwnAndLeaveTheMenuBarsAlone) {
    Example d;
    SimulateWindow& w = d.simulate();
    QStringList captions;
    for (const QLabel* label : w.findChildren<QLabel*>())
        captions << label->text();
    for (const QAbstractButton* button : w.findChildren<QAbstractButton*>())
        captions << button->text();
    for (int i = 0; i < w.tabs().count(); ++i)
        captions << w.tabs().tabText(i);
    QString taken = QString::fromStdString(MenuBarMnemonics());
    int letters = 0;
    for (const QString& caption : captions) {
        const QChar letter = MnemonicOf(caption);
        if (letter.isNull())
            continue;
        EXPECT_FALSE(taken.contains(letter)) << caption.toStdString();
        taken += letter;
        ++letters;
    }
    EXPECT_GE(letters, 14);
}

struct BoxCase {
    std::string name;
    std::function<void(Example&)> act;
    std::string caption;
    std::string text; // the start of the box's text
};

void PrintTo(const BoxCase& c, std::ostream* out) {
    *out << c.name;
}

class UnreadableInput : public testing::TestWithParam<BoxCase> {};

TEST_P(UnreadableInput, IsToldInABoxAndChangesNothing) {
    Example d;
    GetParam().act(d);
    const auto boxes = d.ui.ShownBoxes();
    ASSERT_FALSE(boxes.empty());
    EXPECT_EQ(boxes.back().caption, GetParam().caption);
    EXPECT_EQ(boxes.back().text.rfind(GetParam().text, 0), 0u) << boxes.back().text;
    EXPECT_EQ(d.latest<DifferencesWindow>(), nullptr);
    EXPECT_FALSE(d.window.state().IsDirty());
}

INSTANTIATE_TEST_SUITE_P(
    Views, UnreadableInput,
    testing::Values(BoxCase{"ADamagedProgram",
                            [](Example& d) {
                                d.ui.Queue(ScriptedUi::TextAnswer{d.write("cut.zlf", "ZOLT")});
                                d.window.ToolClick("ID_CompareWith");
                            },
                            "Abort File Read", ""},
                    BoxCase{"ADrawingWithAQuoteLeftOpen",
                            [](Example& d) {
                                d.ui.Queue(
                                    ScriptedUi::TextAnswer{d.write("bad.csv", "J1,4,\"J2\n")});
                                d.window.ToolClick("ID_VerifyAgainstDrawing");
                            },
                            "Verify against Drawing",
                            (fs::temp_directory_path() / "zolt-views-").string()},
                    BoxCase{"AFaultThatNamesNoPin",
                            [](Example& d) {
                                SimulateWindow& w = d.simulate();
                                w.faultBox().setEditText(QStringLiteral("open:J9-1"));
                                EXPECT_FALSE(w.AddFault());
                                EXPECT_EQ(w.builtIn().count(), 0);
                            },
                            "Simulate", ""},
                    BoxCase{"KeysOfNoKind",
                            [](Example& d) {
                                SimulateWindow& w = d.simulate();
                                w.keys().setText(QStringLiteral("start,jump"));
                                w.keys().setModified(true);
                                w.Step();
                                EXPECT_EQ(w.simulation().Steps(), 0u);
                            },
                            "Simulate", "unknown key 'JUMP'"}),
    [](const auto& info) { return info.param.name; });

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
