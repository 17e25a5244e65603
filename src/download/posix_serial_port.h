#pragma once

#include "download/serial_port.h"

#include <optional>
#include <string>

namespace zolt::download {

// A serial device by name (/dev/ttyUSB0, /dev/pts/3) through termios: raw
// bytes, the line set from the settings, no flow control asked for.
class PosixSerialPort final : public SerialPort {
public:
    PosixSerialPort() = default;
    // Takes over an open descriptor, as the master side of a pseudo-terminal.
    explicit PosixSerialPort(int fd) : fd_(fd) {}
    ~PosixSerialPort() override { Close(); }
    PosixSerialPort(const PosixSerialPort&) = delete;
    PosixSerialPort& operator=(const PosixSerialPort&) = delete;

    bool Open(const std::string& device, const LineSettings& settings, std::string& error) override;
    bool IsOpen() const override { return fd_ >= 0; }
    WriteResult Write(std::span<const std::uint8_t> bytes, std::chrono::milliseconds wait) override;
    void Close() override;

    struct ReadResult {
        std::size_t count = 0;
        bool failed = false; // error, or the other side hung up
    };
    // Reads what has arrived, waiting at most `wait` for the first byte.
    ReadResult Read(std::span<std::uint8_t> buffer, std::chrono::milliseconds wait);

private:
    int fd_ = -1;
};

// Sets a terminal descriptor raw at the settings' line; the error text when not.
std::optional<std::string> ConfigureLine(int fd, const LineSettings& settings);

// A pseudo-terminal pair: the master stays here, the slave's device name is
// what a sender opens. The slave is held open too, so that a sender closing its
// side is not a hang-up of the pair.
struct PseudoTerminal {
    int master = -1;
    int slave = -1;
    std::string slaveName;
};
std::optional<PseudoTerminal> OpenPseudoTerminal(std::string& error);

} // namespace zolt::download
