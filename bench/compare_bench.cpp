// zolt-cli diff on two large programs: the compare of the loaded projects,
// the target being under 200 ms for two 4 MB programs (7500 rows a table).
#include "compare/program_compare.h"
#include "file/program_file.h"
#include "large_project.h"

#include <benchmark/benchmark.h>

namespace {

using namespace zolt;
using namespace zolt::bench;

std::string LargeProgramBytes(int rowsPerTable) {
    HeadlessProgram source;
    buildLargeProject(source.state, rowsPerTable);
    return file::ProgramFileBytes(source.state, "large.zlf").value();
}

void BM_CompareLargePrograms(benchmark::State& bench) {
    const std::string bytes = LargeProgramBytes(static_cast<int>(bench.range(0)));
    const auto before = file::LoadProgram(bytes, "large.zlf");
    auto after = file::LoadProgram(bytes, "large.zlf");
    if (!before.ok() || !after.ok()) {
        bench.SkipWithError("read failed");
        return;
    }
    // A moved cavity in one netlist, or in each of them (the worst case: no
    // netlist can be passed over).
    const bool everyNetlist = bench.range(1) != 0;
    after.project->NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        if (everyNetlist || netlist.get() == after.project->MainNetlist)
            netlist->GetTable(table::Pin)->gridarray().Set(1, 2, Value("W77"));
    });
    std::size_t found = 0;
    for (auto _ : bench)
        found = compare::CompareProjects(*before.project, *after.project).size();
    bench.counters["fileBytes"] = static_cast<double>(bytes.size());
    bench.counters["differences"] = static_cast<double>(found);
}
BENCHMARK(BM_CompareLargePrograms)->Args({7500, 0})->Args({7500, 1})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
