#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "tables/pin_table.h"
#include "tables/table_editor.h"
#include "tables/table_indexes.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

using namespace zolt;

constexpr int kRows = 5000;

std::string Name(char prefix, int n) {
    std::string name(1, prefix);
    name += std::to_string(n);
    return name;
}
constexpr int kConnectors = 50;
constexpr int kPinsPerConnector = kRows / kConnectors;

// A project whose netlist has 50 connectors of 100 pins and 5000 wires.
class HeadlessProgram {
public:
    HeadlessProgram() : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) {
        NewProject(state_);
        CNetList& main = *state_.project().MainNetlist;
        Table& connectors = *main.GetTable(table::Connector);
        connectors.ReDimGrid(kConnectors, connectors.gridColumns());
        for (int c = 1; c <= kConnectors; ++c) {
            connectors.gridarray().Set(c, 0, Value(Name('J', c)));
            connectors.gridarray().Set(c, 1, Value(std::to_string(kPinsPerConnector)));
        }
        Table& wires = *main.GetTable(table::Wire);
        wires.ReDimGrid(kRows, wires.gridColumns());
        for (int w = 1; w <= kRows; ++w)
            wires.gridarray().Set(w, 0, Value(Name('W', w)));
    }
    CPinTable& pins() { return *state_.project().MainNetlist->TableAs<CPinTable>(table::Pin); }
    // The copied lines of 5000 pin rows, one wire each.
    static std::string Clipboard() {
        std::vector<std::string> data{"$CopyData", std::to_string(ToInt(table::Pin)),
                                      std::to_string(kRows * 3)};
        for (int r = 0; r < kRows; ++r) {
            data.push_back(Name('J', r / kPinsPerConnector + 1));
            data.push_back(std::to_string(r % kPinsPerConnector + 1));
            data.push_back(Name('W', r + 1));
        }
        return JoinCopyData(data);
    }

private:
    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
};

void BM_Paste5000PinRows(benchmark::State& s) {
    const std::string clipboard = HeadlessProgram::Clipboard();
    for (auto _ : s) {
        s.PauseTiming();
        HeadlessProgram project;
        TableEditor editor(project.pins());
        s.ResumeTiming();
        const PasteResult result = editor.Paste(clipboard, std::nullopt);
        if (result.rows != kRows)
            s.SkipWithError("paste stopped early");
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_Paste5000PinRows)->Unit(benchmark::kMillisecond);

void BM_CellCheckIn5000PinTable(benchmark::State& s) {
    HeadlessProgram project;
    TableEditor(project.pins()).Paste(HeadlessProgram::Clipboard(), std::nullopt);
    CPinTable& pins = project.pins();
    EditRow row = pins.RowForEdit(kRows / 2);
    for (auto _ : s) {
        for (int column = 0; column < 3; ++column) {
            std::string value = row.Cell(column);
            benchmark::DoNotOptimize(pins.CheckField(column, value, 1, row));
        }
    }
}
BENCHMARK(BM_CellCheckIn5000PinTable)->Unit(benchmark::kMicrosecond);

// The counts one check of a pin row asks (connector, pin, wire), answered by a
// scan of the rows (the reference) and by the table's indexes.
template <typename Counts> void pinRowCounts(benchmark::State& s, Counts counts) {
    HeadlessProgram project;
    TableEditor(project.pins()).Paste(HeadlessProgram::Clipboard(), std::nullopt);
    const CPinTable& pins = project.pins();
    const EditRow row = pins.RowForEdit(kRows / 2);
    const std::string& connector = row.Cell(0);
    const std::string& pin = row.Cell(1);
    const std::string& wire = row.Cell(2);
    for (auto _ : s)
        benchmark::DoNotOptimize(counts(pins, connector, pin, wire, row.row));
}

void BM_PinRowCountsByScan(benchmark::State& s) {
    pinRowCounts(s, [](const CPinTable& pins, const std::string& connector, const std::string& pin,
                       const std::string& wire, std::optional<int> except) {
        const Grid& grid = pins.gridarray();
        return CountMatches(grid, {{connector, 0}, {pin, 1}}, except) +
               CountDistinct(grid, connector, 0, pin, 1) +
               CountMatches(grid, {{connector, 0}, {pin, 1}, {wire, 2}}, except) +
               CountMatches(grid, {{wire, 2}}, except);
    });
}
BENCHMARK(BM_PinRowCountsByScan)->Unit(benchmark::kMicrosecond);

void BM_PinRowCountsByIndex(benchmark::State& s) {
    pinRowCounts(s, [](const CPinTable& pins, const std::string& connector, const std::string& pin,
                       const std::string& wire, std::optional<int> except) {
        return CountMatches(pins, {{connector, 0}, {pin, 1}}, except) +
               CountDistinct(pins, connector, 0, pin, 1) +
               CountMatches(pins, {{connector, 0}, {pin, 1}, {wire, 2}}, except) +
               CountMatches(pins, {{wire, 2}}, except);
    });
}
BENCHMARK(BM_PinRowCountsByIndex)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
