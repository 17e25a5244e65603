// The pattern pre-compile of a full family: a 1024-line sequence with 50
// pattern blocks, expanded for 200 chosen netlists (50 stations of four, one
// pattern each), with a marker message in every block and branches inside,
// between and behind the blocks. Each run starts from the same sequence and
// message table.
#include "assembly/pattern_compile.h"
#include "bench_ports.h"
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/sequence_table.h"
#include "tables/message_table.h"

#include <benchmark/benchmark.h>

namespace zolt {
namespace {

constexpr int kStations = 50;
constexpr int kPerStation = 4;
constexpr int kLines = 1024;

class Family {
public:
    Family() : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) {
        NewProject(state_);
        state_.document().CurrentFile = "family.grv";
        LoadSystemSequenceTable(state_, state_.document().CurrentFile);
        std::string line = "All";
        for (int s = 1; s <= kStations; ++s)
            for (int n = 1; n <= kPerStation; ++n) {
                const std::string name = "N" + std::to_string(s) + "_" + std::to_string(n);
                AddNetlist(state_, name);
                state_.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{name, true}, name);
                state_.project().Assembly.NetlistInfoList.Add(
                    CNetlistInfo{name, "Step " + name, "Station" + std::to_string(s),
                                 static_cast<std::int16_t>(s), true, false},
                    name);
                line += "," + name;
            }
        state_.project().Assembly.FeatureCodeData = {line};
        state_.project().SelectedFeatureCodes = {line};
        messages().AddMessageRecord(
            1, {Value(std::int16_t{5}), Value("NEXT |S"), Value(std::int32_t{1}), Value(0)});

        auto& sequence = *state_.project().MainNetlist->TableAs<CSequenceTable>(table::Sequence);
        int row = 0;
        const auto add = [&](const std::string& command, const std::string& parameter) {
            ++row;
            sequence.AddRecord_v1(row, static_cast<std::int16_t>(row), command, parameter, "", "",
                                  0, 0);
        };
        for (int b = 1; b <= kStations; ++b) {
            add("PBEGIN", std::to_string(b));
            add("KMESSAGE", "5");
            add("TEST", "PATTERN1");
            add("BER", std::to_string(row)); // back to the TEST of this block
            add("GOTO", std::to_string(kLines - 1));
            add("PEND", "");
            for (int f = 0; f < 14; ++f)
                add(f == 7 ? "BER" : "BEEP", f == 7 ? std::to_string(row - 3) : "");
        }
        while (row < kLines)
            add("BEEP", "");
        savedSequence_ = sequence.gridarray();
        savedMessages_ = messages().gridarray();
    }

    void Reset() {
        auto& sequence = *state_.project().MainNetlist->GetTable(table::Sequence);
        sequence.ReDimGrid(savedSequence_.Rows(), savedSequence_.Columns());
        sequence.gridarray() = savedSequence_;
        messages().ReDimGrid(savedMessages_.Rows(), savedMessages_.Columns());
        messages().gridarray() = savedMessages_;
    }

    // The number of lines of the new sequence, 0 when the expansion failed.
    int Expand() {
        PatternCompile compile(state_, progress_);
        if (!compile.CollectNetlists() || !compile.ExpandSequence())
            return 0;
        return state_.project().MainNetlist->GetTable(table::Sequence)->gridarray().Rows();
    }

private:
    CMessageTable& messages() {
        return *state_.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    }

    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
    SilentProgress progress_;
    Grid savedSequence_;
    Grid savedMessages_;
};

void BM_ExpandSequence(benchmark::State& bench) {
    Family family;
    int lines = 0;
    for (auto _ : bench) {
        bench.PauseTiming();
        family.Reset();
        bench.ResumeTiming();
        lines = family.Expand();
        benchmark::DoNotOptimize(lines);
    }
    if (lines != kLines - 2 * kStations + kStations * 4 * (kPerStation - 1))
        bench.SkipWithError("the expansion did not give the expected lines");
    bench.counters["lines"] = lines;
}
BENCHMARK(BM_ExpandSequence)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zolt

BENCHMARK_MAIN();
