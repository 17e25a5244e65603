// The desktop with a program at the format's limits: opening it and painting
// its largest table, and paging through that table.
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist.h"
#include "core/program_state.h"
#include "file/program_file.h"
#include "large_project.h"
#include "platform/qt_window_registry.h"
#include "shell/main_window.h"
#include "shell/table_window.h"
#include "tables/data_table.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>

namespace zolt {
namespace {

using namespace zolt::bench;

constexpr int kLargestTableRows = 30000;

// A program of about 4 MB whose MAIN pin table holds 30,000 rows, written once.
class LargeProgramFile {
public:
    LargeProgramFile() {
        HeadlessProgram source;
        buildLargeProject(source.state, 6500);
        fill(*source.state.project().MainNetlist->GetTable(table::Pin), kLargestTableRows,
             [](int r) {
                 return std::vector<Value>{named("J", r / 20 + 1), named("", r % 20 + 1),
                                           named("W", r), L(r), L(0)};
             });
        path_ = dir_.filePath(QStringLiteral("large.zlf"));
        ok_ = file::WriteProgramFile(source.state, path_.toStdString()) == Answer::Yes;
    }
    bool ok() const { return ok_; }
    const QString& path() const { return path_; }
    // The lock the last open left behind (its window went without closing it).
    void Unlock() const {
        for (const auto& entry : std::filesystem::directory_iterator(dir_.path().toStdString()))
            if (entry.path() != path_.toStdString())
                std::filesystem::remove(entry.path());
    }
    double megabytes() const {
        return static_cast<double>(std::filesystem::file_size(path_.toStdString())) / 1e6;
    }

private:
    QTemporaryDir dir_;
    QString path_;
    bool ok_ = false;
};

const LargeProgramFile& largeProgram() {
    static const LargeProgramFile file;
    return file;
}

struct Desktop {
    ScriptedUi ui;
    MemorySettingsStore settings;
    shell::MainWindow window{ui, settings};

    Desktop() {
        window.resize(1280, 800);
        window.show();
        QApplication::processEvents();
    }
    QTableView* pinGrid() {
        const CNetList* active = window.state().project().ActiveNetlist;
        QMdiSubWindow* sub =
            active ? window.windows().WindowOf(table::Pin, active->netlistIndex) : nullptr;
        auto* table = sub ? qobject_cast<shell::TableWindow*>(sub->widget()) : nullptr;
        return table ? &table->grid() : nullptr;
    }
    std::string boxes() const {
        std::string texts;
        for (const auto& box : ui.ShownBoxes())
            texts += box.caption + ": " + box.text + "\n";
        return texts;
    }
};

// Notes the first paint of a widget.
class PaintWatch : public QObject {
public:
    bool painted = false;
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted = true;
        return QObject::eventFilter(object, event);
    }
};

// From the open command to the first painted rows of the pin window.
void BM_OpenLargeProgramAndShowPins(benchmark::State& bench) {
    const LargeProgramFile& file = largeProgram();
    if (!file.ok()) {
        bench.SkipWithError("the program could not be written");
        return;
    }
    int rows = 0;
    for (auto _ : bench) {
        bench.PauseTiming();
        auto desktop = std::make_unique<Desktop>();
        bench.ResumeTiming();
        desktop->window.OpenFromCommandLine(file.path());
        desktop->window.ToolClick(QStringLiteral("ID_Pins"));
        QTableView* grid = desktop->pinGrid();
        if (!grid) {
            bench.SkipWithError(("no pin window\n" + desktop->boxes()).c_str());
            return;
        }
        PaintWatch watch;
        grid->viewport()->installEventFilter(&watch);
        while (!watch.painted)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        grid->viewport()->removeEventFilter(&watch);
        bench.PauseTiming();
        rows = grid->model()->rowCount();
        desktop.reset();
        file.Unlock();
        bench.ResumeTiming();
    }
    bench.counters["fileMB"] = file.megabytes();
    bench.counters["gridRows"] = rows;
}
BENCHMARK(BM_OpenLargeProgramAndShowPins)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->UseRealTime();

// One page down the 30,000 rows and its paint, from top to bottom and round again.
void BM_PageThroughPins(benchmark::State& bench) {
    const LargeProgramFile& file = largeProgram();
    Desktop desktop;
    desktop.window.OpenFromCommandLine(file.path());
    desktop.window.ToolClick(QStringLiteral("ID_Pins"));
    QTableView* grid = desktop.pinGrid();
    if (!grid) {
        bench.SkipWithError("no pin window");
        return;
    }
    QApplication::processEvents();
    file.Unlock();
    QScrollBar* bar = grid->verticalScrollBar();
    for (auto _ : bench) {
        const int next = bar->value() + bar->pageStep();
        bar->setValue(next > bar->maximum() ? 0 : next);
        grid->viewport()->repaint();
    }
    bench.counters["gridRows"] = grid->model()->rowCount();
}
BENCHMARK(BM_PageThroughPins)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zolt

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
