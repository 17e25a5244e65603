// Undo and redo in a program of about 4 MB: a step costs time and memory in
// proportion to the edit, not to the program. The reference is what a step cost
// when the history kept the whole program file per step and read it back.
#include "file/program_file.h"
#include "large_project.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

using namespace zolt;
using bench::buildLargeProject;
using bench::HeadlessProgram;

constexpr int kLargeRows = 6000; // about 4 MB of program file

std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

struct Edited : HeadlessProgram {
    explicit Edited(int rows) {
        buildLargeProject(state, rows);
        state.history().Reset();
    }
    Grid& pins() {
        return state.project().FindNetlist("HARNESS 3")->GetTable(table::Pin)->gridarray();
    }
};

void BM_UndoRedoCell(benchmark::State& bench) {
    Edited project(kLargeRows);
    EditHistory& history = project.state.history();
    project.pins().Set(1234, 2, Value("W99999"));
    history.Record();
    for (auto _ : bench) {
        history.Undo();
        history.Redo();
    }
    bench.counters["fileBytes"] =
        static_cast<double>(file::ProgramFileBytes(project.state, "large.zlf").value_or("").size());
    bench.SetLabel("one undo and one redo");
}
BENCHMARK(BM_UndoRedoCell)->Unit(benchmark::kMicrosecond);

// What a step cost before: the program's bytes written and read back.
void BM_SnapshotStepReference(benchmark::State& bench) {
    Edited project(kLargeRows);
    for (auto _ : bench) {
        const std::string bytes = file::ProgramFileBytes(project.state, "large.zlf").value();
        HeadlessProgram restored;
        NewProject(restored.state);
        file::ReadProgramBytes(restored.state, bytes, "large.zlf");
    }
}
BENCHMARK(BM_SnapshotStepReference)->Unit(benchmark::kMillisecond);

// The memory one step keeps, for a cell and for deleting 100 pin rows, in a
// program of range(0) rows a table: the figures do not grow with the program.
void BM_StepMemory(benchmark::State& bench) {
    Edited project(static_cast<int>(bench.range(0)));
    EditHistory& history = project.state.history();
    Grid& pins = project.pins();
    std::size_t cellBytes = 0;
    std::size_t rowsBytes = 0;
    std::size_t heapBytes = 0;
    for (auto _ : bench) {
        const std::size_t heapBefore = heapInUse();
        pins.Set(10, 2, Value(pins.Text(10, 2) + "X"));
        history.Record();
        heapBytes = heapInUse() - heapBefore;
        cellBytes = history.Bytes();
        pins.DeleteRows(100, 100);
        history.Record();
        rowsBytes = history.Bytes() - cellBytes;
        bench.PauseTiming();
        history.Undo();
        history.Undo();
        history.Reset();
        bench.ResumeTiming();
    }
    bench.counters["cellStepBytes"] = static_cast<double>(cellBytes);
    bench.counters["cellStepHeap"] = static_cast<double>(heapBytes);
    bench.counters["delete100StepBytes"] = static_cast<double>(rowsBytes);
    bench.counters["fileBytes"] =
        static_cast<double>(file::ProgramFileBytes(project.state, "large.zlf").value_or("").size());
}
BENCHMARK(BM_StepMemory)->Arg(1000)->Arg(kLargeRows)->Unit(benchmark::kMicrosecond);

} // namespace
BENCHMARK_MAIN();
