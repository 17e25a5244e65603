#include "cli/download_command.h"

#include "core/ports/clock.h"
#include "download/download.h"
#include "download/posix_serial_port.h"

#include <filesystem>
#include <ostream>

namespace zolt::cli {

namespace {

// Status lines as they change, and progress at every tenth of the file.
class StreamDownloadView final : public download::DownloadView {
public:
    explicit StreamDownloadView(std::ostream& err) : err_(err) {}
    void SetStatus(const std::string& text) override { err_ << text << '\n'; }
    void SetProgressMaximum(std::size_t maximum) override {
        maximum_ = maximum;
        shownTenth_ = 0;
    }
    void SetProgress(std::size_t value) override {
        const std::size_t tenth = maximum_ > 0 ? value * 10 / maximum_ : 0;
        if (tenth <= shownTenth_)
            return;
        shownTenth_ = tenth;
        err_ << value << " of " << maximum_ - 10 << " bytes sent\n";
    }
    void SetBusy(bool) override {}
    void PortFailureReason(const std::string& reason) override { err_ << reason << '\n'; }

private:
    std::ostream& err_;
    std::size_t maximum_ = 0;
    std::size_t shownTenth_ = 0;
};

} // namespace

int DownloadCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err) {
    download::DownloadRequest request;
    std::string baud;
    bool understood = !arguments.empty();
    for (std::size_t i = 1; understood && i < arguments.size(); i += 2) {
        understood = i + 1 < arguments.size();
        if (understood && arguments[i] == "--port")
            request.device = arguments[i + 1];
        else if (understood && arguments[i] == "--baud")
            baud = arguments[i + 1];
        else
            understood = false;
    }
    if (!understood || request.device.empty()) {
        err << "usage: zolt-cli download FILE --port DEV [--baud N]\n";
        return 2;
    }
    if (!baud.empty()) {
        const auto line = download::ParseSettingsText(baud + ",N,8,1");
        if (!line) {
            err << "ERROR: '" << baud << "' is no baud rate\n";
            return 2;
        }
        request.line = *line;
    }
    request.programPath = arguments[0];
    request.programName = std::filesystem::path(arguments[0]).stem().string();
    out << "Port " << request.device << " at " << download::SettingsText(request.line) << '\n';

    download::PosixSerialPort port;
    StreamDownloadView view(err);
    const SystemClock clock;
    const std::atomic<bool> cancel{false};
    const auto outcome = download::RunDownload(request, port, view, clock, cancel);
    return outcome == download::DownloadOutcome::Complete ? 0 : 1;
}

} // namespace zolt::cli
