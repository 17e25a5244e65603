#include "download/line_receiver.h"

#include <algorithm>
#include <thread>

namespace zolt::download {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// How long a line at `baud` needs for `count` bytes of 10 bits.
Clock::duration LineTime(std::size_t count, int baud) {
    return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(
        static_cast<double>(count) * 10.0 / static_cast<double>(baud)));
}

} // namespace

std::vector<std::uint8_t> Receive(PosixSerialPort& port, const ReceiveOptions& options) {
    std::vector<std::uint8_t> received;
    // A paced read takes what the line carries in about 10 ms, so that the
    // sender's queue fills as it would in front of a real line.
    const std::size_t slice =
        options.pacedBaud > 0 ? std::max<std::size_t>(1, options.pacedBaud / 1000) : 4096;
    std::vector<std::uint8_t> buffer(slice);
    Clock::time_point first{};
    Clock::time_point lastArrival{};
    while (true) {
        const milliseconds wait = received.empty() ? milliseconds{100} : options.idle;
        const auto result = port.Read(buffer, wait);
        if (result.count > 0) {
            if (received.empty())
                first = Clock::now();
            received.insert(received.end(), buffer.begin(),
                            buffer.begin() + static_cast<std::ptrdiff_t>(result.count));
            if (options.pacedBaud > 0)
                std::this_thread::sleep_until(first + LineTime(received.size(), options.pacedBaud));
            lastArrival = Clock::now();
            continue;
        }
        if (result.failed)
            break; // the device went away: what came is all there is
        if (!received.empty() && Clock::now() - lastArrival >= options.idle)
            break;
    }
    return received;
}

} // namespace zolt::download
