// A PID file of 50,000 lines, spread over netlists and sections as a large
// harness program would be, imported into a new program (target: under 200 ms).
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"
#include "import/pid_import.h"

#include <benchmark/benchmark.h>

namespace {

using namespace zolt;

struct FixedClock final : Clock {
    LocalTime Now() const override { return {}; }
};

// Ten netlists of 4,800 data lines each, plus MAIN's messages and sequence.
std::string largePidFile() {
    std::string text = "; generated\n[messages]\n";
    for (int m = 1; m <= 500; ++m)
        text += std::to_string(m) + " MESSAGE TEXT NUMBER " + std::to_string(m) + "\n";
    text += "[sequence]\n";
    for (int s = 1; s <= 500; ++s)
        text += std::to_string(s) + "\tMESSAGE\t" + std::to_string(s) + "\n";
    for (int n = 0; n < 10; ++n) {
        text += "[netlist]\nN" + std::to_string(n) + "\n[connectors]\n";
        for (int c = 0; c < 100; ++c)
            text += "J" + std::to_string(c) + " 12 0 0 0 - - -1\n";
        text += "[wires]\n";
        for (int w = 0; w < 1200; ++w)
            text += "W" + std::to_string(w) + " - 1 2\n";
        text += "[pins]\n";
        for (int p = 0; p < 2400; ++p)
            text += "J" + std::to_string(p % 100) + " " + std::to_string(p / 100 + 1) + " W" +
                    std::to_string(p / 2) + "\n";
        text += "[fixture]\n";
        for (int f = 0; f < 1194; ++f)
            text += std::to_string(f / 128) + "-" + std::to_string(f % 128) + " J" +
                    std::to_string(f % 100) + " " + std::to_string(f / 100 + 1) + "\n";
    }
    return text;
}

void BM_ImportLargePidFile(benchmark::State& bench) {
    const std::string text = largePidFile();
    const FixedClock clock;
    int lines = 0;
    for (char c : text)
        lines += c == '\n';
    for (auto _ : bench) {
        ScriptedUi ui;
        MemorySettingsStore settings;
        HeadlessFrame frame;
        ProgramState state(Ports{ui, settings, frame, frame}, MakeTable);
        NewProject(state);
        if (import::ImportPIDText(state, text, import::ImportContext{clock, {}, "large.zlf"}) !=
            Answer::Yes)
            bench.SkipWithError("the import failed");
    }
    bench.counters["lines"] = lines;
}
BENCHMARK(BM_ImportLargePidFile)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

} // namespace

BENCHMARK_MAIN();
