#pragma once

#include "download/serial_port.h"

#include <memory>

class QSerialPort;

namespace zolt {

// The desktop's serial port: a device by the platform's name (COM3,
// /dev/ttyUSB0, /dev/pts/4) through QSerialPort, flow control and buffers at
// their defaults. Opened, written and closed on the one thread that runs the
// transfer.
class QtSerialPort final : public download::SerialPort {
public:
    QtSerialPort();
    ~QtSerialPort() override;
    QtSerialPort(const QtSerialPort&) = delete;
    QtSerialPort& operator=(const QtSerialPort&) = delete;

    bool Open(const std::string& device, const download::LineSettings& settings,
              std::string& error) override;
    bool IsOpen() const override;
    // Counts as written what has left for the device, not what waits in the
    // port's own buffer, so that progress and the deadline stay exact.
    download::WriteResult Write(std::span<const std::uint8_t> bytes,
                                std::chrono::milliseconds wait) override;
    void Close() override;

private:
    std::unique_ptr<QSerialPort> port_;
    std::size_t queued_ = 0; // the first bytes of the next Write, already handed to port_
};

} // namespace zolt
