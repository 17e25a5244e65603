// Headless compiles of the variants of one family, as a coverage run makes
// them: 15 filled netlists (a base of three and six options of two), a pattern
// block run once per chosen netlist, and all 64 choices of options compiled
// one after the other, each pre-compiled on its own copy of the family, none
// touching the family or any file.
#include "assembly/variant_compile.h"
#include "bench_netlist.h"
#include "bench_ports.h"
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"
#include "sequence/load_system_sequence_table.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <unistd.h>

namespace zolt {
namespace {

constexpr int kNetlists = 15;
constexpr int kOptions = 6;

std::string netlistName(int i) {
    return "N" + std::to_string(i);
}

class Family {
public:
    Family() : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "zolt-bench-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        NewProject(state_);
        state_.document().CurrentFile = (folder_ / "family.grv").string();
        LoadSystemSequenceTable(state_, state_.document().CurrentFile);
        for (const char* kind : {"DIODE", "RESISTOR"})
            state_.project().DeviceList.Add(CComponent{kind, "A", "B", kind});
        AssemblyData& assembly = state_.project().Assembly;
        for (int i = 1; i <= kNetlists; ++i) {
            const std::string name = netlistName(i);
            AddNetlist(state_, name);
            fillNetlist(*state_.project().FindNetlist(name), i);
            assembly.AssemblyOrderList.Add(CAssemblyRec{name, true}, name);
            assembly.NetlistInfoList.Add(CNetlistInfo{name, "Fit " + name,
                                                      "Station" + std::to_string(1 + i % 3), 1,
                                                      true, false},
                                         name);
        }
        assembly.FeatureCodeData.push_back("Base,N1,N2,N3");
        for (int o = 0; o < kOptions; ++o)
            assembly.FeatureCodeData.push_back("Option" + std::to_string(o) + "," +
                                               netlistName(4 + 2 * o) + "," +
                                               netlistName(5 + 2 * o));
        fill(*state_.project().MainNetlist->GetTable(table::TestParameter), 15, [](int r) {
            return std::vector<Value>{Value(static_cast<std::int16_t>(r)), 5.0, 0.1, 2.0, 2.0};
        });
        fill(*state_.project().MainNetlist->GetTable(table::Sequence), 5, [](int r) {
            static const char* const rows[][2] = {{"PBEGIN", "1"},
                                                  {"CONTINUITY", "PATTERN"},
                                                  {"PEND", ""},
                                                  {"DELAY", "1"},
                                                  {"END", ""}};
            return std::vector<Value>{r, rows[r - 1][0], rows[r - 1][1]};
        });
        request_.programFile = state_.document().CurrentFile;
        request_.settings = compile::CompileSettingsOf(state_.params());
        request_.now = FixedClock().Now();
    }
    ~Family() {
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

    // The variant of the options whose bits are set; its error count, or -1
    // when it did not compile.
    int Compile(unsigned options) const {
        const Project& family = state_.project();
        Variant variant{{family.Assembly.FeatureCodeData[0]}};
        for (int o = 0; o < kOptions; ++o)
            if (options & (1u << o))
                variant.featureCodes.push_back(
                    family.Assembly.FeatureCodeData[static_cast<std::size_t>(o) + 1]);
        const compile::CompileResult result = CompileVariant(family, variant, request_, progress_);
        return result.end == compile::CompileEnd::Finished ? result.errors : -1;
    }

private:
    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
    mutable SilentProgress progress_;
    compile::CompileRequest request_;
    std::filesystem::path folder_;
};

void BM_VariantCompiles(benchmark::State& bench) {
    Family family;
    constexpr unsigned kVariants = 1u << kOptions;
    int failed = 0;
    for (auto _ : bench) {
        failed = 0;
        for (unsigned options = 0; options < kVariants; ++options)
            failed += family.Compile(options) != 0;
    }
    if (failed != 0)
        bench.SkipWithError("a variant did not compile clean");
    bench.counters["variants/s"] =
        benchmark::Counter(static_cast<double>(kVariants) * static_cast<double>(bench.iterations()),
                           benchmark::Counter::kIsRate);
}
BENCHMARK(BM_VariantCompiles)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zolt

BENCHMARK_MAIN();
