// Simulate, Compare with and Verify against drawing: the commands that open a
// window over the program rather than change it.
#include "assembly/compile_in_memory.h"
#include "compare/drawing_check.h"
#include "compare/program_compare.h"
#include "compare/row_places.h"
#include "core/netlist_operations.h"
#include "core/ports/clock.h"
#include "core/ports/ui.h"
#include "file/path_names.h"
#include "file/program_format.h"
#include "interchange/drawing_connections.h"
#include "interchange/open_formats.h"
#include "interchange/other_program.h"
#include "platform/data_locations.h"
#include "shell/compile_progress_window.h"
#include "shell/differences_window.h"
#include "shell/main_window.h"
#include "shell/simulate_window.h"
#include "shell/table_window.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>
#include <QTimer>
#include <filesystem>

namespace zolt::shell {
namespace {

QString FileNameOf(const std::string& path) {
    return QString::fromStdString(file::FileNameOf(path));
}

// The end of the compiler's results, where its errors and counts stand.
std::string LastLines(const std::string& text, int count) {
    std::size_t start = text.size();
    for (int n = 0; n < count; ++n) {
        const std::size_t before = start == 0 ? std::string::npos : text.rfind('\n', start - 1);
        if (before == std::string::npos)
            return text;
        start = before;
    }
    return text.substr(start + 1);
}

QString Counted(std::size_t count) {
    return count == 1 ? QObject::tr("1 difference") : QObject::tr("%1 differences").arg(count);
}

} // namespace

void MainWindow::bindViewCommands() {
    const auto idle = [this] {
        return state_->document().FileOpen && !state_->session().GridEditing;
    };
    commands_.Bind(
        Command::Simulate, [this] { simulate(); }, idle);
    commands_.Bind(
        Command::CompareWith, [this] { compareWith(); }, idle);
    commands_.Bind(
        Command::VerifyAgainstDrawing, [this] { verifyAgainstDrawing(); }, idle);
}

void MainWindow::showView(QDialog* view) {
    std::erase_if(views_, [](const QPointer<QDialog>& closed) { return closed.isNull(); });
    views_.emplace_back(view);
    const QRect area(mdi_->mapToGlobal(QPoint(0, 0)), mdi_->size());
    view->move(area.right() - view->width() - 8, area.top() + 8);
    view->show();
    view->activateWindow();
    if (QMdiSubWindow* active = mdi_->activeSubWindow())
        keepClearOf(*view, *active);
}

void MainWindow::showViewPlace(const EditPlace& place) {
    showEditPlace(place);
    // A table window opened just now gets its size once it is laid out: only then
    // does scrolling bring the row into sight.
    QTimer::singleShot(0, this, [this] {
        if (TableWindow* window = activeTableWindow())
            window->grid().scrollTo(window->grid().currentIndex());
    });
    QMdiSubWindow* active = mdi_->activeSubWindow();
    for (const QPointer<QDialog>& view : views_)
        if (view && view->isVisible() && active)
            keepClearOf(*view, *active);
}

void MainWindow::closeViews() {
    for (const QPointer<QDialog>& view : views_)
        if (view)
            view->close();
    views_.clear();
}

bool MainWindow::showDifference(const compare::Difference& difference) {
    const auto place = compare::PlaceOf(state_->project(), difference);
    if (place)
        showViewPlace(*place);
    return place && place->firstRow > 0;
}

void MainWindow::simulate() {
    CompileProgressWindow progress(this);
    const MemoryCompile compiled = CompileInMemory(*state_, progress);
    progress.hide();
    if (!compiled.image && !compiled.results.empty()) {
        ui_.Show(MessageBox{"Simulate",
                            "The program does not compile without errors, so there is nothing "
                            "to simulate yet.\n\n" +
                                LastLines(compiled.results, 12),
                            Buttons::Ok, Icon::Warning, 1});
    }
    if (!compiled.image)
        return;
    showView(new SimulateWindow(
        state_->project(), *compiled.image, state_->document().CurrentFile, ui_,
        [this](const EditPlace& place) { showViewPlace(place); }, this));
}

void MainWindow::compareWith() {
    // Any kind File > Open or an import reads: a drawing compares as the program it makes.
    const SystemClock clock;
    const std::string data = DataDirectory().toStdString();
    file::ProgramFormats programs;
    interchange::RegisterImportableFormats(programs, clock, data);
    const std::filesystem::path current(state_->document().CurrentFile);
    const auto path = ui_.ChooseFile(FileDialog{"Compare with", programs.OpenFilter(),
                                                current.parent_path().string(), "", false});
    if (!path)
        return;
    const interchange::OtherProgram other(*path, programs, data, ui_, state_->settings());
    if (!other.project()) {
        if (!other.error().empty())
            ui_.Show(MessageBox{"Abort File Read", other.error(), Buttons::Ok, Icon::Stop, 1});
        return;
    }
    // What changed from the other program to this one: the rows named are this program's.
    compare::Differences differences =
        compare::CompareProjects(*other.project(), state_->project());
    const QString heading =
        tr("%1 from %2 to %3, by netlist and table. Enter shows the row in %3.")
            .arg(Counted(differences.size()), FileNameOf(*path), FileNameOf(current.string()));
    showView(new DifferencesWindow(
        tr("Compare with %1").arg(FileNameOf(*path)), heading, std::move(differences),
        [this](const compare::Difference& d) { return showDifference(d); }, this));
}

void MainWindow::verifyAgainstDrawing() {
    const std::filesystem::path current(state_->document().CurrentFile);
    const auto path =
        ui_.ChooseFile(FileDialog{"Verify against Drawing", interchange::DrawingFilter(),
                                  current.parent_path().string(), "", false});
    if (!path)
        return;
    // An unreadable drawing is told before anything else is asked.
    const compare::FromToList drawing = interchange::ReadDrawingConnections(
        *path, interchange::DrawingOptionsOf(state_->settings()));
    if (!drawing.ok()) {
        ui_.Show(MessageBox{"Verify against Drawing", *path + ": " + drawing.error, Buttons::Ok,
                            Icon::Stop, 1});
        return;
    }
    std::vector<std::string> names;
    int active = 0;
    state_->project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        if (netlist.get() == state_->project().ActiveNetlist)
            active = static_cast<int>(names.size());
        names.push_back(netlist->NetlistName);
    });
    const auto picked =
        ui_.Choose(Choice{"Verify against Drawing", "Netlist the drawing shows:", names, active});
    if (!picked || *picked < 0 || *picked >= static_cast<int>(names.size()))
        return;
    const std::string netlist = names[static_cast<std::size_t>(*picked)];
    compare::Differences differences = compare::CheckAgainstDrawing(
        *state_->project().FindNetlist(netlist), *state_->project().MainNetlist, drawing);
    const QString heading =
        tr("%1 between %2 and the drawing %3. Enter shows the row.")
            .arg(Counted(differences.size()), QString::fromStdString(netlist), FileNameOf(*path));
    showView(new DifferencesWindow(
        tr("Verify %1 against %2").arg(QString::fromStdString(netlist), FileNameOf(*path)), heading,
        std::move(differences), [this](const compare::Difference& d) { return showDifference(d); },
        this));
}

} // namespace zolt::shell
