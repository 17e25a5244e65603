#include "download/download.h"

#include "core/ports/clock.h"
#include "file/file_bytes.h"
#include "file/path_names.h"

#include <algorithm>
#include <filesystem>

namespace zolt::download {

namespace {

using std::chrono::milliseconds;

// A write takes at once what the port's queue has room for, so a large chunk
// keeps progress exact and a fast line is not one system call a byte; the wait
// for room stays short so that Cancel and the deadline are seen promptly.
constexpr std::size_t kChunk = 4096;
constexpr milliseconds kLongestWait{20};
// Far more than any line carries within the watchdog's minute.
constexpr std::size_t kLargestImage = 64u << 20;

// Holds the port for the transfer; whatever way the transfer ends, it is closed.
class PortSession {
public:
    PortSession(SerialPort& port, DownloadView& view) : port_(port), view_(view) {}
    ~PortSession() {
        port_.Close();
        view_.SetBusy(false);
    }
    PortSession(const PortSession&) = delete;
    PortSession& operator=(const PortSession&) = delete;

private:
    SerialPort& port_;
    DownloadView& view_;
};

} // namespace

std::string NotCompiledText(const std::string& programName) {
    return "'" + programName + "' Has Not Been Successfully Compiled!";
}

DownloadOutcome RunDownload(const DownloadRequest& request, SerialPort& port, DownloadView& view,
                            const Clock& clock, const std::atomic<bool>& cancel) {
    const std::string binPath = file::CompanionPath(request.programPath, ".bin");
    std::error_code ec;
    if (!std::filesystem::is_regular_file(binPath, ec)) {
        view.SetStatus(NotCompiledText(request.programName));
        return DownloadOutcome::NotCompiled;
    }

    const PortSession session(port, view);
    std::string reason;
    const auto bytes = file::ReadFileBytes(binPath, kLargestImage);
    if (!bytes)
        reason = "cannot read " + binPath;
    else if (!port.IsOpen() && !port.Open(request.device, request.line, reason) && reason.empty())
        reason = "cannot open " + request.device;
    if (!reason.empty()) {
        view.PortFailureReason(reason);
        view.SetStatus(kPortFailure);
        return DownloadOutcome::PortFailure;
    }
    view.SetStatus(kDownloadInProcess);
    view.SetProgressMaximum(bytes->size() + 10);
    view.SetBusy(true);

    const auto deadline = clock.Monotonic() + request.watchdog;
    std::size_t sent = 0;
    while (sent < bytes->size()) {
        if (cancel.load())
            return DownloadOutcome::Cancelled;
        const auto now = clock.Monotonic();
        if (now >= deadline) {
            view.SetStatus(kDownloadTimeout);
            return DownloadOutcome::Timeout;
        }
        const auto left = std::chrono::duration_cast<milliseconds>(deadline - now);
        const std::size_t size = std::min(kChunk, bytes->size() - sent);
        const auto* data = reinterpret_cast<const std::uint8_t*>(bytes->data());
        const WriteResult result =
            port.Write({data + sent, size}, std::clamp(left, milliseconds{1}, kLongestWait));
        if (result.failed) {
            view.PortFailureReason(request.device + " reported an error or went away after " +
                                   std::to_string(sent) + " bytes");
            view.SetStatus(kPortFailure);
            return DownloadOutcome::PortFailure;
        }
        sent += result.written;
        if (result.written > 0)
            view.SetProgress(sent);
    }
    view.SetStatus(kDownloadComplete);
    return DownloadOutcome::Complete;
}

} // namespace zolt::download
