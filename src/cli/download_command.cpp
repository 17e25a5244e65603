#include "cli/download_command.h"

#include "compile/compile_commands.h"
#include "core/ports/clock.h"
#include "core/value.h"
#include "download/download.h"
#include "download/posix_serial_port.h"
#include "file/byte_stream.h"
#include "file/file_bytes.h"
#include "file/program_header.h"
#include "file/read_limits.h"

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

// Whether FILE is a program saved with edits its `.bin` does not hold. A `.bin`
// named itself is sent as asked; an unreadable program is the download's to report.
bool ChangedSinceCompile(const std::string& path) {
    if (vb::UCase(std::filesystem::path(path).extension().string()) == ".BIN")
        return false;
    const auto bytes = file::ReadFileBytes(path, file::kMaxProgramFileSize);
    if (!bytes)
        return false;
    try {
        file::ByteReader in(*bytes);
        return file::ReadHeader(in).NeedsCompile;
    } catch (const file::FormatError&) {
        return false;
    }
}

} // namespace

int DownloadCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err) {
    download::DownloadRequest request;
    std::string baud;
    bool understood = !arguments.empty();
    bool confirmed = false;
    for (std::size_t i = 1; understood && i < arguments.size(); ++i) {
        if (arguments[i] == "--yes") {
            confirmed = true;
            continue;
        }
        understood = i + 1 < arguments.size();
        if (understood && arguments[i] == "--port")
            request.device = arguments[++i];
        else if (understood && arguments[i] == "--baud")
            baud = arguments[++i];
        else
            understood = false;
    }
    if (!understood || request.device.empty()) {
        err << "usage: zolt-cli download FILE --port DEV [--baud N] [--yes]\n";
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
    if (ChangedSinceCompile(arguments[0])) {
        err << compile::kStaleImageTitle << ": " << compile::kStaleImageText << '\n';
        if (!confirmed) {
            err << "Not downloaded: compile first, or give --yes to download it anyway\n";
            return 1;
        }
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
