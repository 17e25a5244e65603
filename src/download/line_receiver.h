#pragma once

#include "download/posix_serial_port.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace zolt::download {

struct ReceiveOptions {
    // 0: as fast as the device gives; otherwise reads no faster than a line at
    // this rate would carry, 10 bits a byte.
    int pacedBaud = 0;
    // The transfer is over when nothing came for this long after the first byte.
    std::chrono::milliseconds idle{1000};
};

// The analyzer's side of the line: the bytes of one transfer, in the order they
// arrived. Waits for the first byte as long as it takes; ends early when the
// device reports an error or a hang-up.
std::vector<std::uint8_t> Receive(PosixSerialPort& port, const ReceiveOptions& options);

} // namespace zolt::download
