#pragma once

#include "download/posix_serial_port.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace zolt::analyzer {

struct ReceiveOptions {
    // 0: as fast as the device gives; otherwise reads no faster than a line at
    // this rate would carry, 10 bits a byte.
    int pacedBaud = 0;
    // The transfer is over when nothing came for this long after the first byte.
    std::chrono::milliseconds idle{1000};
};

// The bytes of one transfer, in the order they arrived.
std::vector<std::uint8_t> Receive(download::PosixSerialPort& port, const ReceiveOptions& options);

} // namespace zolt::analyzer
