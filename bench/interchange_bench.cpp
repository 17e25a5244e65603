// A drawing of 5,000 connections read and written into a new program through
// the tables' checks, as File > Open of a drawing does (target: under 200 ms).
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"
#include "interchange/from_to_reader.h"
#include "interchange/kicad_reader.h"
#include "interchange/netlist_fill.h"
#include "interchange/wireviz_reader.h"

#include <benchmark/benchmark.h>

namespace {

using namespace zolt;

constexpr int kConnections = 5000;
constexpr int kPinsPerConnector = 100;

std::string wireVizConnectors() {
    std::string text = "connectors:\n";
    for (int c = 0; c < 2 * kConnections / kPinsPerConnector; ++c)
        text += "  J" + std::to_string(c) +
                ":\n    pincount: " + std::to_string(kPinsPerConnector) + "\n";
    return text +
           "cables:\n  W:\n    category: bundle\n    wirecount: " + std::to_string(kConnections) +
           "\n    colors: [BK, RD, GNYE, BUWH]\nconnections:\n";
}

// The same harness as a person writes it: one set joins two connectors pin for pin.
std::string wireVizParallelDrawing() {
    std::string text = wireVizConnectors();
    const int half = kConnections / kPinsPerConnector;
    for (int c = 0; c < half; ++c) {
        const int first = c * kPinsPerConnector + 1;
        text += "  -\n    - J" + std::to_string(c) + ": [1-" + std::to_string(kPinsPerConnector) +
                "]\n    - W: [" + std::to_string(first) + "-" +
                std::to_string(first + kPinsPerConnector - 1) + "]\n    - J" +
                std::to_string(c + half) + ": [1-" + std::to_string(kPinsPerConnector) + "]\n";
    }
    return text;
}

// 100 connectors of 100 pins; wire i joins pin i of the first half to pin i of
// the second half, each wire a connection set of one bundle, coloured (as ZOLT
// exports a netlist).
std::string wireVizDrawing() {
    std::string text = "connectors:\n";
    for (int c = 0; c < 2 * kConnections / kPinsPerConnector; ++c)
        text += "  J" + std::to_string(c) +
                ":\n    pincount: " + std::to_string(kPinsPerConnector) + "\n";
    text += "cables:\n  W:\n    category: bundle\n    wirecount: " + std::to_string(kConnections) +
            "\n    colors: [BK, RD, GNYE, BUWH]\nconnections:\n";
    const int half = kConnections / kPinsPerConnector;
    for (int i = 0; i < kConnections; ++i) {
        const int c = i / kPinsPerConnector;
        const std::string pin = std::to_string(i % kPinsPerConnector + 1);
        text += "  -\n    - J" + std::to_string(c) + ": " + pin +
                "\n    - W: " + std::to_string(i + 1) + "\n    - J" + std::to_string(c + half) +
                ": " + pin + "\n";
    }
    return text;
}

std::string fromToDrawing() {
    std::string text = "From Connector,From Pin,To Connector,To Pin,Wire,Colour\n";
    const int half = kConnections / kPinsPerConnector;
    for (int i = 0; i < kConnections; ++i) {
        const int c = i / kPinsPerConnector;
        const std::string pin = std::to_string(i % kPinsPerConnector + 1);
        text += "J" + std::to_string(c) + "," + pin + ",J" + std::to_string(c + half) + "," + pin +
                ",W" + std::to_string(i + 1) + ",GRN/YEL\n";
    }
    return text;
}

// The same connectors as a KiCad netlist: each net joins pin i of the first
// half to pin i of the second half.
std::string kicadDrawing() {
    std::string text = "(export (version \"E\")\n  (components\n";
    for (int c = 0; c < 2 * kConnections / kPinsPerConnector; ++c)
        text += "    (comp (ref \"J" + std::to_string(c) +
                "\") (libsource (lib \"Connector_Generic\") (part \"Conn_01x100\")))\n";
    text += "  )\n  (libparts\n    (libpart (lib \"Connector_Generic\") (part \"Conn_01x100\")"
            " (pins";
    for (int p = 1; p <= kPinsPerConnector; ++p)
        text += " (pin (num \"" + std::to_string(p) + "\"))";
    text += ")))\n  (nets\n";
    const int half = kConnections / kPinsPerConnector;
    for (int i = 0; i < kConnections; ++i) {
        const int c = i / kPinsPerConnector;
        const std::string pin = std::to_string(i % kPinsPerConnector + 1);
        text += "    (net (code \"" + std::to_string(i + 1) + "\") (name \"/S" +
                std::to_string(i + 1) + "\")\n      (node (ref \"J" + std::to_string(c) +
                "\") (pin \"" + pin + "\"))\n      (node (ref \"J" + std::to_string(c + half) +
                "\") (pin \"" + pin + "\")))\n";
    }
    return text + "))\n";
}

void importDrawing(benchmark::State& bench, const std::string& text,
                   interchange::DrawingRead (*read)(std::string_view,
                                                    const interchange::DrawingOptions&)) {
    for (auto _ : bench) {
        ScriptedUi ui;
        MemorySettingsStore settings;
        HeadlessFrame frame;
        ProgramState state(Ports{ui, settings, frame, frame}, MakeTable);
        NewProject(state);
        const interchange::DrawingRead drawing = read(text, {});
        if (!drawing.ok()) {
            bench.SkipWithError(drawing.error.c_str());
            return;
        }
        const std::string error =
            interchange::FillNetlist(state, *state.project().MainNetlist, drawing.drawing);
        if (!error.empty()) {
            bench.SkipWithError(error.c_str());
            return;
        }
    }
    bench.counters["connections"] = kConnections;
}

// The read alone, to tell the YAML's share of an import from the tables'.
void BM_ReadWireVizDrawing(benchmark::State& bench) {
    const std::string text = wireVizDrawing();
    for (auto _ : bench)
        benchmark::DoNotOptimize(interchange::ReadWireViz(text, {}));
}
void BM_ImportWireVizDrawing(benchmark::State& bench) {
    importDrawing(bench, wireVizDrawing(), interchange::ReadWireViz);
}
void BM_ImportWireVizParallelSets(benchmark::State& bench) {
    importDrawing(bench, wireVizParallelDrawing(), interchange::ReadWireViz);
}
void BM_ImportFromToList(benchmark::State& bench) {
    importDrawing(bench, fromToDrawing(), interchange::ReadFromToList);
}
void BM_ImportKicadNetlist(benchmark::State& bench) {
    importDrawing(bench, kicadDrawing(), interchange::ReadKicadNetlist);
}

BENCHMARK(BM_ReadWireVizDrawing)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportWireVizDrawing)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportWireVizParallelSets)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportFromToList)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportKicadNetlist)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
