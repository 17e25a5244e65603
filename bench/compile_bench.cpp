// A whole compile, from the window's load to the written image, of a full
// program: 16 netlists of 128 fixtured pins each (2048 test points), every table
// filled, 1024 sequence lines and 1024 messages; and of a program twice as big,
// which should take about twice as long.
#include "bench_netlist.h"
#include "bench_ports.h"
#include "compile/compile_driver.h"
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "sequence/load_system_sequence_table.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <unistd.h>

namespace zolt {
namespace {

class Program {
public:
    explicit Program(int scale) : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "zolt-bench-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        NewProject(state_);
        state_.document().CurrentFile = (folder_ / "bench.zlf").string();
        LoadSystemSequenceTable(state_, state_.document().CurrentFile);
        for (const char* kind : {"DIODE", "RESISTOR"})
            state_.project().DeviceList.Add(CComponent{kind, "A", "B", kind});
        const int netlists = 16 * scale;
        for (int i = 1; i < netlists; ++i)
            AddNetlist(state_, "N" + std::to_string(i));
        for (int i = 0; i < netlists; ++i)
            fillNetlist(**state_.project().NetlistCollection.Item(static_cast<std::size_t>(i + 1)),
                        i);
        CNetList& main = *state_.project().MainNetlist;
        fill(*main.GetTable(table::TestParameter), 15, [](int) {
            return std::vector<Value>{"P", 5.0, 0.1, 2.0, 2.0};
        });
        const int lines = 1024 * scale;
        fill(*main.GetTable(table::Message), lines, [](int r) {
            return std::vector<Value>{std::to_string(r), "MESSAGE " + std::to_string(r)};
        });
        fill(*main.GetTable(table::Sequence), lines, [&](int r) {
            const int netlist = r % netlists;
            const std::string name = netlist == 0 ? "MAIN" : "N" + std::to_string(netlist);
            switch (r == lines ? 4 : r % 4) {
            case 0:
                return std::vector<Value>{r, "CONTINUITY", name};
            case 1:
                return std::vector<Value>{r, "BER", std::to_string(r + 1)};
            case 2:
                return std::vector<Value>{r, "MESSAGE", std::to_string(r)};
            case 3:
                return std::vector<Value>{r, "DELAY", "1"};
            default:
                return std::vector<Value>{r, "END", ""};
            }
        });
    }
    ~Program() {
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

    int Compile() {
        compile::CompileDriver driver(state_, clock_);
        driver.Load();
        if (driver.Run() != compile::CompileEnd::Finished)
            throw std::runtime_error("the bench program did not compile");
        return driver.Result().errors;
    }

private:
    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
    FixedClock clock_;
    std::filesystem::path folder_;
};

void BM_Compile(benchmark::State& bench) {
    Program program(static_cast<int>(bench.range(0)));
    if (program.Compile() != 0)
        bench.SkipWithError("the bench program has errors");
    for (auto _ : bench)
        benchmark::DoNotOptimize(program.Compile());
}
BENCHMARK(BM_Compile)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zolt

BENCHMARK_MAIN();
