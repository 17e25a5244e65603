#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace zolt::download {

// The line as the analyzer expects it; the defaults are those of a fresh install.
struct LineSettings {
    int baud = 9600;
    char parity = 'N'; // N, E, O, M or S
    int dataBits = 8;
    int stopBits = 1;
    bool operator==(const LineSettings&) const = default;
};

// "9600,N,8,1": baud, the parity's first letter, data bits, stop bits.
std::string SettingsText(const LineSettings& settings);
// The reverse; nullopt for a text that is not four such fields.
std::optional<LineSettings> ParseSettingsText(const std::string& text);
// From the stored parameters: Parity is a word ("NONE", "Even") of which only the
// first letter counts.
LineSettings LineFromParameters(const std::string& baud, const std::string& parity,
                                const std::string& dataBits, const std::string& stopBits);

struct WriteResult {
    std::size_t written = 0; // may be fewer than given when the wait ran out
    bool failed = false;     // the port reported an error or went away
};

// What the download needs of a serial port. Flow control and buffers stay at
// the platform's defaults.
class SerialPort {
public:
    virtual ~SerialPort() = default;
    // False, with a reason, when the device cannot be opened or set up.
    virtual bool Open(const std::string& device, const LineSettings& settings,
                      std::string& error) = 0;
    virtual bool IsOpen() const = 0;
    // Writes as much of `bytes` as the port takes within `wait`.
    virtual WriteResult Write(std::span<const std::uint8_t> bytes,
                              std::chrono::milliseconds wait) = 0;
    virtual void Close() = 0;
};

} // namespace zolt::download
