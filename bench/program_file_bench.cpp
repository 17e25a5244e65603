#include "bench_tables.h"
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/table_factory.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

using namespace zolt;

Value I(int n) {
    return Value(static_cast<std::int16_t>(n));
}
Value L(int n) {
    return Value(static_cast<std::int32_t>(n));
}
// A name with a number behind it.
std::string named(std::string prefix, int n) {
    prefix += std::to_string(n);
    return prefix;
}

struct Project {
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state{Ports{ui, settings, frame, frame}, MakeTable};
};

// A project at the format's limits: eight netlists of a few thousand rows per
// table, a full sequence, all messages.
void buildLargeProject(ProgramState& state, int rowsPerTable) {
    NewProject(state);
    for (int n = 1; n <= 7; ++n)
        AddNetlist(state, named("HARNESS ", n));
    std::int32_t nl = 0;
    state.NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        const std::string tag = std::to_string(nl);
        fill(*netlist->GetTable(table::Connector), rowsPerTable / 10, [&](int r) {
            return std::vector<Value>{named("J", r), I(20),     I(0), I(0),
                                      I(0),          "A" + tag, L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Pin), rowsPerTable, [&](int r) {
            return std::vector<Value>{named("J", r / 20 + 1), named("", r % 20 + 1), named("W", r),
                                      L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Wire), rowsPerTable, [&](int r) {
            return std::vector<Value>{named("W", r), "RED", "WHT", L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Fixture), rowsPerTable, [&](int r) {
            return std::vector<Value>{named(std::to_string(r / 128 % 16) + "-", 100 + r % 28),
                                      named("J", r / 20 + 1), named("", r % 20 + 1), L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Component), rowsPerTable / 10, [&](int r) {
            return std::vector<Value>{
                "RES", I(r), named("W", r), named("W", r + 1), I(100), I(5), I(5), "", L(r), L(nl)};
        });
        ++nl;
    });
    Table& sequence = *state.MainNetlist->GetTable(table::Sequence);
    fill(sequence, 1024,
         [](int r) { return std::vector<Value>{I(r), "CONT", "MAIN", "", "", L(r), L(0)}; });
    fill(*state.MainNetlist->GetTable(table::Message), 1024, [](int r) {
        return std::vector<Value>{I(r), named("MESSAGE NUMBER ", r), L(r), L(0)};
    });
}

void BM_ProgramRoundTrip(benchmark::State& bench) {
    const auto dir = std::filesystem::temp_directory_path() / "zolt-program-bench";
    std::filesystem::create_directories(dir);
    const std::string path = (dir / "large.grv").string();
    Project source;
    buildLargeProject(source.state, static_cast<int>(bench.range(0)));
    std::size_t bytes = 0;
    for (auto _ : bench) {
        if (file::WriteProgramFile(source.state, path) != 6)
            bench.SkipWithError("write failed");
        Project target;
        NewProject(target.state);
        if (file::ReadProgramFile(target.state, path) != 6)
            bench.SkipWithError("read failed");
        bytes = std::filesystem::file_size(path);
    }
    bench.counters["fileBytes"] = static_cast<double>(bytes);
    bench.SetBytesProcessed(static_cast<std::int64_t>(bench.iterations() * bytes));
    std::filesystem::remove_all(dir);
}
BENCHMARK(BM_ProgramRoundTrip)->Arg(1000)->Arg(2000)->Arg(3000)->Unit(benchmark::kMillisecond);

// The two halves in memory, without the disk.
void BM_ProgramBytes(benchmark::State& bench) {
    Project source;
    buildLargeProject(source.state, 2000);
    for (auto _ : bench)
        benchmark::DoNotOptimize(file::ProgramFileBytes(source.state, "large.grv"));
}
BENCHMARK(BM_ProgramBytes)->Unit(benchmark::kMillisecond);

void BM_ProgramRead(benchmark::State& bench) {
    Project source;
    buildLargeProject(source.state, 2000);
    const std::string bytes = file::ProgramFileBytes(source.state, "large.grv").value();
    for (auto _ : bench) {
        Project target;
        NewProject(target.state);
        if (file::ReadProgramBytes(target.state, bytes, "large.grv") != 6)
            bench.SkipWithError("read failed");
    }
}
BENCHMARK(BM_ProgramRead)->Unit(benchmark::kMillisecond);

// The assembly lists of a .grv program, blocks 215 and 216, at up to the
// 16-bit count of a block: reading them keeps their names unique.
void BM_AssemblyListsRead(benchmark::State& bench) {
    Project source;
    NewProject(source.state);
    const int entries = static_cast<int>(bench.range(0));
    for (int n = 1; n <= entries; ++n) {
        const std::string name = named("NETLIST ", n);
        source.state.Assembly.NetlistInfoList.Add(CNetlistInfo{name, "", "", 0, false, false},
                                                  name);
        source.state.Assembly.AssemblyOrderList.Add(CAssemblyRec{name, false}, name);
    }
    const std::string bytes = file::ProgramFileBytes(source.state, "lists.grv").value();
    for (auto _ : bench) {
        Project target;
        NewProject(target.state);
        if (file::ReadProgramBytes(target.state, bytes, "lists.grv") != 6)
            bench.SkipWithError("read failed");
    }
    bench.counters["fileBytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_AssemblyListsRead)->Arg(8000)->Arg(32767)->Unit(benchmark::kMillisecond);

} // namespace
BENCHMARK_MAIN();
