#include "download/posix_serial_port.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace zolt::download {

namespace {

std::optional<speed_t> Speed(int baud) {
    switch (baud) {
    case 300:
        return B300;
    case 600:
        return B600;
    case 1200:
        return B1200;
    case 2400:
        return B2400;
    case 4800:
        return B4800;
    case 9600:
        return B9600;
    case 19200:
        return B19200;
    case 38400:
        return B38400;
    case 57600:
        return B57600;
    case 115200:
        return B115200;
    case 230400:
        return B230400;
    default:
        return std::nullopt;
    }
}

std::string Reason(const std::string& what) {
    return what + ": " + std::strerror(errno);
}

int PollMilliseconds(std::chrono::milliseconds wait) {
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(0, wait.count()));
}

} // namespace

std::optional<std::string> ConfigureLine(int fd, const LineSettings& settings) {
    const auto speed = Speed(settings.baud);
    if (!speed)
        return "unsupported baud rate " + std::to_string(settings.baud);
    termios line{};
    if (tcgetattr(fd, &line) != 0)
        return Reason("not a terminal");
    cfmakeraw(&line);
    cfsetispeed(&line, *speed);
    cfsetospeed(&line, *speed);
    line.c_cflag &= ~static_cast<tcflag_t>(CSIZE | PARENB | PARODD | CSTOPB);
    line.c_cflag |= CLOCAL | CREAD;
    switch (settings.dataBits) {
    case 5:
        line.c_cflag |= CS5;
        break;
    case 6:
        line.c_cflag |= CS6;
        break;
    case 7:
        line.c_cflag |= CS7;
        break;
    case 8:
        line.c_cflag |= CS8;
        break;
    default:
        return "unsupported data bits " + std::to_string(settings.dataBits);
    }
    if (settings.parity == 'E')
        line.c_cflag |= PARENB;
    else if (settings.parity == 'O')
        line.c_cflag |= PARENB | PARODD;
    else if (settings.parity != 'N')
        return std::string("unsupported parity ") + settings.parity;
    if (settings.stopBits == 2)
        line.c_cflag |= CSTOPB;
    else if (settings.stopBits != 1)
        return "unsupported stop bits " + std::to_string(settings.stopBits);
    if (tcsetattr(fd, TCSANOW, &line) != 0)
        return Reason("cannot set the line");
    return std::nullopt;
}

bool PosixSerialPort::Open(const std::string& device, const LineSettings& settings,
                           std::string& error) {
    Close();
    const int fd = ::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        error = Reason("cannot open " + device);
        return false;
    }
    if (const auto failure = ConfigureLine(fd, settings)) {
        error = *failure;
        ::close(fd);
        return false;
    }
    fd_ = fd;
    return true;
}

WriteResult PosixSerialPort::Write(std::span<const std::uint8_t> bytes,
                                   std::chrono::milliseconds wait) {
    if (fd_ < 0)
        return {0, true};
    pollfd ready{fd_, POLLOUT, 0};
    const int polled = ::poll(&ready, 1, PollMilliseconds(wait));
    if (polled < 0)
        return {0, errno != EINTR};
    if (polled == 0)
        return {};
    if ((ready.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0)
        return {0, true};
    const ssize_t written = ::write(fd_, bytes.data(), bytes.size());
    if (written < 0)
        return {0, errno != EAGAIN && errno != EINTR};
    return {static_cast<std::size_t>(written), false};
}

PosixSerialPort::ReadResult PosixSerialPort::Read(std::span<std::uint8_t> buffer,
                                                  std::chrono::milliseconds wait) {
    if (fd_ < 0)
        return {0, true};
    pollfd ready{fd_, POLLIN, 0};
    const int polled = ::poll(&ready, 1, PollMilliseconds(wait));
    if (polled < 0)
        return {0, errno != EINTR};
    if (polled == 0)
        return {};
    if ((ready.revents & POLLIN) == 0)
        return {0, true};
    const ssize_t count = ::read(fd_, buffer.data(), buffer.size());
    if (count < 0)
        return {0, errno != EAGAIN && errno != EINTR};
    if (count == 0)
        return {0, true};
    return {static_cast<std::size_t>(count), false};
}

void PosixSerialPort::Close() {
    if (fd_ >= 0)
        ::close(fd_);
    fd_ = -1;
}

std::optional<PseudoTerminal> OpenPseudoTerminal(std::string& error) {
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0) {
        error = Reason("cannot make a pseudo-terminal");
        if (master >= 0)
            ::close(master);
        return std::nullopt;
    }
    char name[128] = {};
    if (::ptsname_r(master, name, sizeof name) != 0) {
        error = Reason("cannot name the pseudo-terminal");
        ::close(master);
        return std::nullopt;
    }
    const int slave = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave < 0) {
        error = Reason(std::string("cannot open ") + name);
        ::close(master);
        return std::nullopt;
    }
    // Raw on both sides: no echo back to the sender, no line editing of the image.
    termios line{};
    if (tcgetattr(slave, &line) == 0) {
        cfmakeraw(&line);
        tcsetattr(slave, TCSANOW, &line);
    }
    ::fcntl(master, F_SETFL, ::fcntl(master, F_GETFL) | O_NONBLOCK);
    return PseudoTerminal{master, slave, name};
}

} // namespace zolt::download
