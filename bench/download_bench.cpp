// The download through a pseudo-terminal into the analyzer's receiving side:
// paced to a line rate, the ratio of the transfer time to what that rate allows
// (`ratio`, at most 1.02 is the goal); unpaced, the host's own throughput.
#include "core/ports/clock.h"
#include "download/download.h"
#include "download/line_receiver.h"
#include "download/posix_serial_port.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <future>
#include <stdexcept>
#include <unistd.h>

namespace zolt::download {
namespace {

using namespace std::chrono_literals;
constexpr std::chrono::milliseconds kIdle{50};

class QuietView final : public DownloadView {
public:
    void SetStatus(const std::string&) override {}
    void SetProgressMaximum(std::size_t) override {}
    void SetProgress(std::size_t) override {}
    void SetBusy(bool) override {}
};

// Seconds from the download's start to the receiver's last byte.
double TimedTransfer(std::size_t size, int pacedBaud) {
    const auto folder = std::filesystem::temp_directory_path() /
                        ("zolt-download-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "bench.bin", std::ios::binary) << std::string(size, '\x5A');
    std::string error;
    const auto pair = OpenPseudoTerminal(error);
    if (!pair)
        throw std::runtime_error(error);
    PosixSerialPort receiverPort(pair->master);

    const auto start = std::chrono::steady_clock::now();
    auto received = std::async(std::launch::async, [&] {
        return Receive(receiverPort, {pacedBaud, kIdle}).size();
    });
    PosixSerialPort port;
    QuietView view;
    const SystemClock clock;
    const std::atomic<bool> cancel{false};
    const DownloadRequest request{
        (folder / "bench.zlf").string(), "bench", pair->slaveName, {115200, 'N', 8, 1}};
    const auto outcome = RunDownload(request, port, view, clock, cancel);
    const std::size_t count = received.get();
    const auto end = std::chrono::steady_clock::now() - kIdle;
    ::close(pair->slave);
    std::filesystem::remove_all(folder);
    if (outcome != DownloadOutcome::Complete || count != size)
        throw std::runtime_error("the download did not arrive whole");
    return std::chrono::duration<double>(end - start).count();
}

void BM_DownloadPaced(benchmark::State& state) {
    const int baud = static_cast<int>(state.range(0));
    const std::size_t size = static_cast<std::size_t>(baud) / 10 * 2; // two seconds of line
    double ratio = 0;
    for (auto _ : state) {
        const double seconds = TimedTransfer(size, baud);
        state.SetIterationTime(seconds);
        ratio = seconds / (static_cast<double>(size) * 10.0 / baud);
    }
    state.counters["ratio"] = ratio;
}
BENCHMARK(BM_DownloadPaced)
    ->Arg(115200)
    ->Arg(9600)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_DownloadUnpaced(benchmark::State& state) {
    const std::size_t size = 4u << 20;
    for (auto _ : state)
        state.SetIterationTime(TimedTransfer(size, 0));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * size));
}
BENCHMARK(BM_DownloadUnpaced)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zolt::download

BENCHMARK_MAIN();
