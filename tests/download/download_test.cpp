#include "core/ports/clock.h"
#include "download_session.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace zolt::download {
namespace {

using test::BinFolder;
using test::Pattern;
using test::RecordingView;

// A port that takes at most `perWrite` bytes a call and records them.
class FakePort final : public SerialPort {
public:
    bool Open(const std::string& device, const LineSettings& line, std::string& error) override {
        ++opens;
        openedDevice = device;
        openedLine = line;
        if (refuseOpen) {
            error = "no such device";
            return false;
        }
        open = true;
        return true;
    }
    bool IsOpen() const override { return open; }
    WriteResult Write(std::span<const std::uint8_t> bytes, std::chrono::milliseconds) override {
        if (onWrite)
            onWrite(received.size());
        if (failAfter && received.size() >= *failAfter)
            return {0, true};
        const std::size_t n = std::min(bytes.size(), perWrite);
        received.insert(received.end(), bytes.begin(), bytes.begin() + static_cast<long>(n));
        return {n, false};
    }
    void Close() override {
        open = false;
        ++closes;
    }

    bool refuseOpen = false;
    std::size_t perWrite = 1000000;
    std::optional<std::size_t> failAfter;
    std::function<void(std::size_t)> onWrite;
    int opens = 0;
    int closes = 0;
    bool open = false;
    std::string openedDevice;
    LineSettings openedLine;
    std::vector<std::uint8_t> received;
};

// A clock whose every reading is one second after the last: the watchdog's
// minute passes in sixty readings.
class SteppingClock final : public Clock {
public:
    LocalTime Now() const override { return {}; }
    std::chrono::steady_clock::time_point Monotonic() const override {
        now_ += std::chrono::seconds{1};
        return now_;
    }

private:
    mutable std::chrono::steady_clock::time_point now_{};
};

struct DownloadRun {
    BinFolder folder;
    FakePort port;
    RecordingView view;
    SystemClock clock;
    std::atomic<bool> cancel{false};

    DownloadOutcome go(const Clock* otherClock = nullptr) {
        const DownloadRequest request{folder.program(), "door", "/dev/ttyUSB0", {19200, 'E', 7, 2}};
        return RunDownload(request, port, view, otherClock ? *otherClock : clock, cancel);
    }
};

struct SettingsCase {
    const char *name, *baud, *parity, *dataBits, *stopBits, *text;
};

class LineSettingsText : public testing::TestWithParam<SettingsCase> {};

TEST_P(LineSettingsText, IsBaudParityLetterDataAndStopBits) {
    const auto& c = GetParam();
    const LineSettings line = LineFromParameters(c.baud, c.parity, c.dataBits, c.stopBits);
    EXPECT_EQ(download::SettingsText(line), c.text);
    EXPECT_EQ(ParseSettingsText(c.text), line);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Parameters, LineSettingsText, testing::Values(
    SettingsCase{"Defaults", "9600", "NONE", "8", "1", "9600,N,8,1"},
    SettingsCase{"EvenWord", "19200", "Even", "7", "2", "19200,E,7,2"},
    SettingsCase{"LowerCaseOdd", "115200", "odd", "8", "1", "115200,O,8,1"},
    SettingsCase{"EmptyParityIsNone", "4800", "", "8", "1", "4800,N,8,1"},
    SettingsCase{"BadNumbersFallBack", "fast", "N", "x", "0", "9600,N,8,1"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(LineSettingsText, RefusesWhatIsNotFourFields) {
    for (const char* text : {"", "9600", "9600,N,8", "9600,N,8,1,1", "9600,X,8,1", "0,N,8,1"})
        EXPECT_FALSE(ParseSettingsText(text)) << text;
}

TEST(Download, WithoutBinSaysNotCompiledAndTouchesNoPort) {
    DownloadRun run;
    EXPECT_EQ(run.go(), DownloadOutcome::NotCompiled);
    EXPECT_EQ(run.view.statuses,
              std::vector<std::string>{"'door' Has Not Been Successfully Compiled!"});
    EXPECT_EQ(run.port.opens, 0);
    EXPECT_EQ(run.port.closes, 0);
}

TEST(Download, SendsTheFileInOrderWithExactProgress) {
    DownloadRun run;
    const auto bytes = Pattern(1000);
    run.folder.writeBin(bytes);
    run.port.perWrite = 100; // the port takes less than it is given
    EXPECT_EQ(run.go(), DownloadOutcome::Complete);
    EXPECT_EQ(run.port.openedDevice, "/dev/ttyUSB0");
    EXPECT_EQ(SettingsText(run.port.openedLine), "19200,E,7,2");
    EXPECT_EQ(run.port.received, bytes);
    EXPECT_EQ(run.view.maximum, 1010u);
    ASSERT_EQ(run.view.progress.size(), 10u);
    EXPECT_EQ(run.view.progress.front(), 100u);
    EXPECT_EQ(run.view.progress.back(), 1000u);
    EXPECT_EQ(run.view.statuses,
              (std::vector<std::string>{"Download in Process", "DOWNLOAD COMPLETE"}));
    EXPECT_FALSE(run.port.open);
    EXPECT_FALSE(run.view.busy);
}

// How a transfer ends: the bytes the port took, the last status, the port closed.
struct EndCase {
    const char* name;
    std::size_t fileSize;
    std::size_t perWrite;
    bool refuseOpen;
    std::optional<std::size_t> failAfter;
    std::optional<std::size_t> cancelAfter;
    bool slowClock; // a second passes at every reading: the watchdog's minute is up after 60
    DownloadOutcome outcome;
    std::size_t received;
    const char* status;
};

class DownloadEnds : public testing::TestWithParam<EndCase> {};

TEST_P(DownloadEnds, WithThePortClosedAndTheViewIdle) {
    const EndCase& c = GetParam();
    DownloadRun run;
    run.folder.writeBin(Pattern(c.fileSize));
    run.port.perWrite = c.perWrite;
    run.port.refuseOpen = c.refuseOpen;
    run.port.failAfter = c.failAfter;
    run.port.onWrite = [&](std::size_t sent) { run.cancel = run.cancel || sent == c.cancelAfter; };
    const SteppingClock slow;
    EXPECT_EQ(run.go(c.slowClock ? &slow : nullptr), c.outcome);
    EXPECT_EQ(run.port.received.size(), c.received);
    EXPECT_EQ(run.view.statuses.back(), c.status);
    EXPECT_FALSE(run.port.open);
    EXPECT_FALSE(run.view.busy);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Download, DownloadEnds, testing::Values(
    EndCase{"ZeroLengthFile", 0, 100, false, {}, {}, false, DownloadOutcome::Complete, 0, "DOWNLOAD COMPLETE"},
    EndCase{"PortCannotOpen", 10, 100, true, {}, {}, false, DownloadOutcome::PortFailure, 0, "Communications Port Failure!"},
    EndCase{"PortErrorMidFile", 2000, 100, false, 500, {}, false, DownloadOutcome::PortFailure, 500, "Communications Port Failure!"},
    // One reading for the start, then one per write: the watchdog covers the whole file, not each write.
    EndCase{"SlowLineTimesOut", 5000, 10, false, {}, {}, true, DownloadOutcome::Timeout, 590, "Communications Download Timeout Failure!"},
    // Cancel is seen between writes.
    EndCase{"Cancelled", 5000, 100, false, {}, 300, false, DownloadOutcome::Cancelled, 400, "Download in Process"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::download
