// The virtual analyzer: single-fault coverage of a full fixture (2048 points in
// 16 netlists; the goal is under 2 s, the counter `faults` says how many), and a
// plain run of the example's image (goal under 5 ms).
#include "analyzer/coverage.h"

#include <benchmark/benchmark.h>
#include <fstream>
#include <iterator>

namespace zolt::analyzer {
namespace {

// Netlist k holds board k: four 32-pin connectors, pins wired in pairs, every
// eighth net a splice of four, and four diodes; the sequence tests each netlist.
compile::ProgramImage FullFixture() {
    compile::ProgramImage image;
    image.header.programName = "full";
    for (int board = 0; board < 16; ++board) {
        compile::ImageNetlist netlist;
        netlist.name = board == 15 ? "MAIN" : "N" + std::to_string(board);
        for (int p = 0; p < 128;) {
            const int size = (p / 2) % 8 == 7 ? 4 : 2;
            compile::TestPointSet net;
            for (int i = 0; i < size && p < 128; ++i, ++p)
                net.push_back(static_cast<std::uint16_t>(board * 128 + p));
            netlist.nets.push_back(net);
        }
        for (int p = 0; p < 128; ++p)
            netlist.points.push_back({static_cast<std::uint16_t>(board * 128 + p),
                                      "J" + std::to_string(board * 4 + p / 32),
                                      std::to_string(p % 32 + 1)});
        for (int d = 0; d < 4; ++d)
            netlist.components.push_back({"DIOM", d + 1, 2 * d, 2 * d + 1, 0});
        image.netlists.push_back(netlist);
        image.sequence.push_back({"TEST", netlist.name});
    }
    return image;
}

void BM_CoverageOfFullFixture(benchmark::State& state) {
    const auto image = FullFixture();
    const PointNames names({&image});
    const Harness harness = DesignedHarness(image);
    const std::vector<FaultClass> classes(std::begin(kFaultClasses), std::end(kFaultClasses));
    int faults = 0;
    for (auto _ : state) {
        const Coverage coverage = MeasureCoverage(image, harness, names, classes, {});
        faults = coverage.faults;
        benchmark::DoNotOptimize(coverage.detected);
    }
    state.counters["faults"] = faults;
}
BENCHMARK(BM_CoverageOfFullFixture)->Unit(benchmark::kMillisecond)->Iterations(1);

void BM_RunOfTheExample(benchmark::State& state) {
    std::ifstream in(ZOLT_SOURCE_DIR "/tests/data/compile/harness.bin", std::ios::binary);
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(in), {}};
    const auto image = compile::ReadImage(bytes).image.value();
    const PointNames names({&image});
    const Harness harness = DesignedHarness(image);
    for (auto _ : state)
        benchmark::DoNotOptimize(Run(image, harness, names, {}).steps);
}
BENCHMARK(BM_RunOfTheExample)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zolt::analyzer

BENCHMARK_MAIN();
