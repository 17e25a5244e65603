// AutoGen over a harness that collects exactly 2046 records: 40 connectors of
// 25 pins, each pin named in the pin table (half by number, half by letters),
// and 46 group rows. The indexed generation is timed against its quadratic
// reference, after checking that both give the same list.
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "fixture/autogen_pipeline.h"
#include "fixture/autogen_reference.h"
#include "fixture/fixture_table.h"

#include <benchmark/benchmark.h>

namespace zolt {
namespace {

std::string prefixed(const char* prefix, int n) {
    std::string text = prefix;
    text += std::to_string(n);
    return text;
}

class HeadlessProgram {
public:
    HeadlessProgram() : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) {
        NewProject(state_);
        CNetList& main = *state_.project().MainNetlist;
        Grid& connectors = main.GetTable(table::Connector)->gridarray();
        Grid& pins = main.GetTable(table::Pin)->gridarray();
        Grid& groups = main.GetTable(table::Groups)->gridarray();
        constexpr int kConnectors = 40;
        constexpr int kPins = 25;
        connectors.ReDim(kConnectors, connectors.Columns());
        pins.ReDim(kConnectors * kPins, pins.Columns());
        groups.ReDim(46, groups.Columns());
        int pinRow = 0;
        for (int c = 1; c <= kConnectors; ++c) {
            // Numeric and alpha connector names, listed out of order.
            const int n = (c * 17) % kConnectors + 1;
            const std::string name = n % 2 ? std::to_string(n) : prefixed("J", n);
            connectors.Set(c, 0, Value(name));
            connectors.Set(c, 1, Value(std::to_string(kPins)));
            connectors.Set(c, 2, Value("0"));
            for (int p = 1; p <= kPins; ++p) {
                const std::string pin = p % 2 ? std::to_string(kPins + 1 - p)
                                              : std::string(1, static_cast<char>('A' + p));
                pins.Set(++pinRow, 0, Value(name));
                pins.Set(pinRow, 1, Value(pin));
            }
        }
        for (int g = 1; g <= groups.Rows(); ++g) {
            groups.Set(g, 0, Value("G"));
            groups.Set(g, 1, Value(g % 2 ? "J2" : "3"));
            groups.Set(g, 2, Value(prefixed("W", g)));
        }
    }
    CFixtureTable& fixture() {
        return *state_.project().MainNetlist->TableAs<CFixtureTable>(table::Fixture);
    }
    AutoGenSources sources() {
        CNetList& main = *state_.project().MainNetlist;
        return {main.GetTable(table::Pin)->gridarray(), main.GetTable(table::Groups)->gridarray(),
                main.GetTable(table::Connector)->gridarray(),
                main.GetTable(table::Switches)->gridarray()};
    }

private:
    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
};

void BM_AutoGen(benchmark::State& run) {
    HeadlessProgram project;
    const AutoGenOutcome fast = BuildFixtureList(project.sources(), {});
    const AutoGenOutcome plain = reference::BuildFixtureList(project.sources(), {});
    if (fast.fault != AutoGenFault::None || fast.list != plain.list) {
        run.SkipWithError("the indexed generation differs from the reference");
        return;
    }
    for (auto _ : run) {
        project.fixture().AutoGen();
        benchmark::DoNotOptimize(project.fixture().gridarray().Rows());
    }
    if (project.fixture().gridarray().Rows() != 1000)
        run.SkipWithError("unexpected number of rows");
}
BENCHMARK(BM_AutoGen)->Unit(benchmark::kMillisecond);

void BM_AutoGenReferenceList(benchmark::State& run) {
    HeadlessProgram project;
    for (auto _ : run)
        benchmark::DoNotOptimize(reference::BuildFixtureList(project.sources(), {}).list.size());
}
BENCHMARK(BM_AutoGenReferenceList)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zolt
BENCHMARK_MAIN();
