#pragma once

#include "download/serial_port.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <string>

namespace zolt {
class Clock;
}

namespace zolt::download {

inline constexpr const char* kDownloadInProcess = "Download in Process";
inline constexpr const char* kDownloadComplete = "DOWNLOAD COMPLETE";
inline constexpr const char* kDownloadTimeout = "Communications Download Timeout Failure!";
inline constexpr const char* kPortFailure = "Communications Port Failure!";

enum class DownloadOutcome { Complete, Timeout, PortFailure, NotCompiled, Cancelled };

struct DownloadRequest {
    std::string programPath; // the program file; its `.bin` lies beside it
    std::string programName; // as the not-compiled text names it
    std::string device;
    LineSettings line;
    // The whole file must leave within this time; it is not restarted per byte.
    std::chrono::milliseconds watchdog{60000};
};

// What the download window shows. Called from the thread that runs the transfer.
class DownloadView {
public:
    virtual ~DownloadView() = default;
    virtual void SetStatus(const std::string& text) = 0;
    virtual void SetProgressMaximum(std::size_t maximum) = 0;
    // Bytes given to the port so far.
    virtual void SetProgress(std::size_t value) = 0;
    virtual void SetBusy(bool busy) = 0;
    // Why the port failed, for a log or the command line; the window shows the status only.
    virtual void PortFailureReason(const std::string&) {}
};

// "'<name>' Has Not Been Successfully Compiled!"
std::string NotCompiledText(const std::string& programName);

// Sends the program's `.bin` to the port in file order. Runs to one of its
// outcomes; `cancel` may be set from another thread and is honoured between
// writes, which never wait long. The port is closed on every way out.
DownloadOutcome RunDownload(const DownloadRequest& request, SerialPort& port, DownloadView& view,
                            const Clock& clock, const std::atomic<bool>& cancel);

} // namespace zolt::download
