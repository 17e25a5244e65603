// A pin table of 5000 rows (200 connectors of 25 pins, each with its fixture
// row) made into its report and drawn into a PDF, as Print Reports does.
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "platform/report_painter.h"
#include "reports/report_catalog.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace zolt {
namespace {

class HeadlessProgram {
public:
    HeadlessProgram() : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) {
        NewProject(state_);
        state_.document().CurrentFile = "/bench/harness.zlf";
        CNetList& main = *state_.project().MainNetlist;
        Grid& pins = main.GetTable(table::Pin)->gridarray();
        Grid& fixture = main.GetTable(table::Fixture)->gridarray();
        constexpr int kConnectors = 200;
        constexpr int kPins = 25;
        pins.ReDim(kConnectors * kPins, pins.Columns());
        fixture.ReDim(kConnectors * kPins, fixture.Columns());
        for (int c = 0; c < kConnectors; ++c)
            for (int p = 1; p <= kPins; ++p) {
                const int row = c * kPins + p;
                const std::string connector = "X" + std::to_string(c + 1);
                const std::string point = std::to_string((row - 1) / 128) + "-" +
                                          std::to_string(1000 + (row - 1) % 128).substr(1);
                pins.Set(row, 0, Value(connector));
                pins.Set(row, 1, Value(std::to_string(p)));
                pins.Set(row, 2, Value("W" + std::to_string(row)));
                fixture.Set(row, 0, Value(point));
                fixture.Set(row, 1, Value(connector));
                fixture.Set(row, 2, Value(std::to_string(p)));
            }
    }
    reports::Report pinReport() const {
        const reports::ReportContext context{
            state_, *state_.project().MainNetlist, {2026, 3, 7, 14, 5, 0}};
        return reports::MakeReport(context, {reports::ReportKind::Table, table::Pin, "Pins", true});
    }

private:
    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
};

void BM_PinTableToPdf(benchmark::State& bench) {
    const HeadlessProgram project;
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("pins.pdf"));
    for (auto _ : bench) {
        const reports::Report report = project.pinReport();
        if (!WriteReportsPdf({report}, path))
            bench.SkipWithError("the PDF could not be written");
    }
}
BENCHMARK(BM_PinTableToPdf)->Unit(benchmark::kMillisecond)->MinTime(2.0);

} // namespace
} // namespace zolt

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
