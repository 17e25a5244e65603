#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/heap_policy.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/table_factory.h"
#include "large_project.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

using namespace zolt;
using namespace zolt::bench;

void BM_ProgramRoundTrip(benchmark::State& bench) {
    const auto dir = std::filesystem::temp_directory_path() / "zolt-program-bench";
    std::filesystem::create_directories(dir);
    const std::string path = (dir / "large.grv").string();
    HeadlessProgram source;
    buildLargeProject(source.state, static_cast<int>(bench.range(0)));
    std::size_t bytes = 0;
    for (auto _ : bench) {
        if (file::WriteProgramFile(source.state, path) != Answer::Yes)
            bench.SkipWithError("write failed");
        HeadlessProgram target;
        NewProject(target.state);
        if (file::ReadProgramFile(target.state, path) != Answer::Yes)
            bench.SkipWithError("read failed");
        bytes = std::filesystem::file_size(path);
    }
    bench.counters["fileBytes"] = static_cast<double>(bytes);
    bench.SetBytesProcessed(static_cast<std::int64_t>(bench.iterations() * bytes));
    std::filesystem::remove_all(dir);
}
BENCHMARK(BM_ProgramRoundTrip)
    ->Arg(1000)
    ->Arg(2000)
    ->Arg(3000)
    ->Arg(7500)
    ->Unit(benchmark::kMillisecond);

// The two halves in memory, without the disk, at about 1 MB and 4 MB.
void BM_ProgramBytes(benchmark::State& bench) {
    HeadlessProgram source;
    buildLargeProject(source.state, static_cast<int>(bench.range(0)));
    std::size_t bytes = 0;
    for (auto _ : bench)
        bytes = file::ProgramFileBytes(source.state, "large.grv").value().size();
    bench.counters["fileBytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_ProgramBytes)->Arg(2000)->Arg(7500)->Unit(benchmark::kMillisecond);

void BM_ProgramRead(benchmark::State& bench) {
    HeadlessProgram source;
    buildLargeProject(source.state, static_cast<int>(bench.range(0)));
    const std::string bytes = file::ProgramFileBytes(source.state, "large.grv").value();
    bench.counters["fileBytes"] = static_cast<double>(bytes.size());
    for (auto _ : bench) {
        HeadlessProgram target;
        NewProject(target.state);
        if (file::ReadProgramBytes(target.state, bytes, "large.grv") != Answer::Yes)
            bench.SkipWithError("read failed");
    }
}
BENCHMARK(BM_ProgramRead)->Arg(2000)->Arg(7500)->Unit(benchmark::kMillisecond);

// The assembly lists of a .grv program, blocks 215 and 216, at up to the
// 16-bit count of a block: reading them keeps their names unique.
void BM_AssemblyListsRead(benchmark::State& bench) {
    HeadlessProgram source;
    NewProject(source.state);
    const int entries = static_cast<int>(bench.range(0));
    for (int n = 1; n <= entries; ++n) {
        const std::string name = named("NETLIST ", n);
        source.state.project().Assembly.NetlistInfoList.Add(
            CNetlistInfo{name, "", "", 0, false, false}, name);
        source.state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{name, false}, name);
    }
    const std::string bytes = file::ProgramFileBytes(source.state, "lists.grv").value();
    for (auto _ : bench) {
        HeadlessProgram target;
        NewProject(target.state);
        if (file::ReadProgramBytes(target.state, bytes, "lists.grv") != Answer::Yes)
            bench.SkipWithError("read failed");
    }
    bench.counters["fileBytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_AssemblyListsRead)->Arg(8000)->Arg(32767)->Unit(benchmark::kMillisecond);

} // namespace
// The programs run with this heap policy; so do their file reads here.
int main(int argc, char** argv) {
    zolt::KeepFreedHeapForReuse();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
