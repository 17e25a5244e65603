#include "platform/qt_serial_port.h"

#include <QSerialPort>
#include <optional>

namespace zolt {
namespace {

std::optional<QSerialPort::Parity> parityOf(char letter) {
    switch (letter) {
    case 'N':
        return QSerialPort::NoParity;
    case 'E':
        return QSerialPort::EvenParity;
    case 'O':
        return QSerialPort::OddParity;
    case 'M':
        return QSerialPort::MarkParity;
    case 'S':
        return QSerialPort::SpaceParity;
    default:
        return std::nullopt;
    }
}

std::optional<QSerialPort::DataBits> dataBitsOf(int bits) {
    if (bits < 5 || bits > 8)
        return std::nullopt;
    return static_cast<QSerialPort::DataBits>(bits);
}

std::optional<QSerialPort::StopBits> stopBitsOf(int bits) {
    if (bits == 1)
        return QSerialPort::OneStop;
    if (bits == 2)
        return QSerialPort::TwoStop;
    return std::nullopt;
}

// An error that ends the transfer; a wait that ran out is none.
bool failed(const QSerialPort& port) {
    const auto error = port.error();
    return !port.isOpen() || (error != QSerialPort::NoError && error != QSerialPort::TimeoutError);
}

} // namespace

QtSerialPort::QtSerialPort() = default;

QtSerialPort::~QtSerialPort() {
    Close();
}

bool QtSerialPort::Open(const std::string& device, const download::LineSettings& settings,
                        std::string& error) {
    Close();
    const auto parity = parityOf(settings.parity);
    const auto dataBits = dataBitsOf(settings.dataBits);
    const auto stopBits = stopBitsOf(settings.stopBits);
    if (!parity || !dataBits || !stopBits) {
        error = "unsupported line settings " + download::SettingsText(settings);
        return false;
    }
    auto port = std::make_unique<QSerialPort>();
    port->setPortName(QString::fromStdString(device));
    if (!port->open(QIODevice::WriteOnly)) {
        error = "cannot open " + device + ": " + port->errorString().toStdString();
        return false;
    }
    if (!port->setBaudRate(settings.baud) || !port->setParity(*parity) ||
        !port->setDataBits(*dataBits) || !port->setStopBits(*stopBits)) {
        error = "cannot set " + device + " to " + download::SettingsText(settings) + ": " +
                port->errorString().toStdString();
        port->close();
        return false;
    }
    port_ = std::move(port);
    queued_ = 0;
    return true;
}

bool QtSerialPort::IsOpen() const {
    return port_ && port_->isOpen();
}

download::WriteResult QtSerialPort::Write(std::span<const std::uint8_t> bytes,
                                          std::chrono::milliseconds wait) {
    if (!IsOpen())
        return {0, true};
    if (queued_ == 0 && !bytes.empty()) {
        const qint64 taken = port_->write(reinterpret_cast<const char*>(bytes.data()),
                                          static_cast<qint64>(bytes.size()));
        if (taken < 0)
            return {0, true};
        queued_ = static_cast<std::size_t>(taken);
    }
    if (port_->bytesToWrite() > 0)
        port_->waitForBytesWritten(static_cast<int>(wait.count()));
    if (failed(*port_))
        return {0, true};
    const auto waiting = static_cast<std::size_t>(port_->bytesToWrite());
    const std::size_t left = waiting < queued_ ? queued_ - waiting : 0;
    queued_ -= left;
    return {left, false};
}

void QtSerialPort::Close() {
    if (port_)
        port_->close();
    port_.reset();
    queued_ = 0;
}

} // namespace zolt
