// The download over a real pseudo-terminal pair, against zolt-analyzer where a
// receiver is needed.

#include "analyzer/analyzer_images.h"
#include "compile/program_image.h"
#include "core/ports/clock.h"
#include "download/posix_serial_port.h"
#include "download_session.h"
#include "support/file_contents.h"
#include "support/shell_command.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <unistd.h>
#include <utility>

namespace zolt::download {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using test::BinFolder;
using test::Pattern;
using test::RecordingView;

compile::ProgramImage SmallProgram() {
    return test::DoorProgram({{"CONTINUITY", "MAIN"}, {"END", ""}});
}

// zolt-analyzer's pty mode: the device to send to, then its report at the end.
class Analyzer {
public:
    explicit Analyzer(const std::string& arguments) {
        pipe_ = popen(("'" ZOLT_BIN_DIR "/zolt-analyzer' pty " + arguments).c_str(), "r");
        std::array<char, 256> line{};
        if (pipe_ && fgets(line.data(), line.size(), pipe_))
            device_ = std::string(line.data());
        if (!device_.empty() && device_.back() == '\n')
            device_.pop_back();
    }
    ~Analyzer() {
        if (pipe_)
            pclose(pipe_);
    }
    Analyzer(const Analyzer&) = delete;
    Analyzer& operator=(const Analyzer&) = delete;

    const std::string& device() const { return device_; }
    // Waits for the receiver to see the line go idle.
    test::CliRun finish() {
        return pipe_ ? test::FinishPipe(std::exchange(pipe_, nullptr)) : test::CliRun{};
    }

private:
    FILE* pipe_ = nullptr;
    std::string device_;
};

struct PtyDownload {
    BinFolder folder;
    PosixSerialPort port;
    RecordingView view;
    SystemClock clock;
    std::atomic<bool> cancel{false};

    DownloadOutcome go(const std::string& device) {
        return RunDownload({folder.program(), "door", device, {115200, 'N', 8, 1}}, port, view,
                           clock, cancel);
    }
};

TEST(PtyDownload, AnalyzerReceivesTheImageByteForByte) {
    PtyDownload run;
    const auto image = compile::WriteImage(SmallProgram());
    run.folder.writeBin(image);
    const std::string saved = run.folder.bin() + ".received";
    Analyzer analyzer("--idle-ms 300 --save '" + saved + "'");
    ASSERT_FALSE(analyzer.device().empty());

    EXPECT_EQ(run.go(analyzer.device()), DownloadOutcome::Complete);
    const auto report = analyzer.finish();
    EXPECT_EQ(report.status, 0) << report.out;
    EXPECT_EQ(test::ReadFile(saved), std::string(image.begin(), image.end()));
    // The checksum the header holds, in the hex the compile log prints.
    char crc[9];
    std::snprintf(crc, sizeof crc, "%02X%02X%02X%02X", image[15], image[14], image[13], image[12]);
    for (const std::string& line : {"ProgramId: TEST"s, "(CRC-32 " + std::string(crc) + ")",
                                    "  MAIN: 4 nets"s, "  CONTINUITY MAIN"s})
        EXPECT_NE(report.out.find(line), std::string::npos) << line << "\n" << report.out;
    EXPECT_FALSE(run.port.IsOpen());
}

TEST(PtyDownload, PeerClosingMidFileIsAPortFailure) {
    PtyDownload run;
    test::PtyPeer peer(test::Peer::HangsUpAfter8K);
    run.folder.writeBin(Pattern(4u << 20));
    EXPECT_EQ(run.go(peer.device()), DownloadOutcome::PortFailure);
    EXPECT_EQ(run.view.statuses.back(), "Communications Port Failure!");
    EXPECT_FALSE(run.port.IsOpen());
}

TEST(AnalyzerReceive, ChecksWhatArrivesOnANamedDevice) {
    std::string error;
    const auto pair = OpenPseudoTerminal(error);
    ASSERT_TRUE(pair) << error;
    auto image = compile::WriteImage(SmallProgram());
    image.back() ^= 0xFF;
    PosixSerialPort sender(pair->master);
    // Queued before the analyzer opens the device; a raw line keeps it whole.
    ASSERT_EQ(sender.Write(image, 1s).written, image.size());
    const auto report = test::RunCommand("'" ZOLT_BIN_DIR "/zolt-analyzer' receive --port " +
                                         pair->slaveName + " --baud 115200 --idle-ms 200 --json");
    ::close(pair->slave);
    EXPECT_EQ(report.status, 1) << report.out;
    EXPECT_NE(report.out.find("\"bytes\": " + std::to_string(image.size())), std::string::npos)
        << report.out;
    EXPECT_NE(report.out.find("\"valid\": false"), std::string::npos) << report.out;

    EXPECT_EQ(
        test::RunCommand("'" ZOLT_BIN_DIR "/zolt-analyzer' receive --port /dev/zolt-no-such-tty")
            .status,
        2);
    EXPECT_EQ(test::RunCommand("'" ZOLT_BIN_DIR "/zolt-analyzer' receive --baud 0").status, 2);
}

TEST(CliDownload, ExitsZeroOnlyWhenTheDownloadCompletes) {
    BinFolder folder;
    const std::string cli = "'" ZOLT_BIN_DIR "/zolt-cli' download '" + folder.program() + "'";
    folder.writeBin(compile::WriteImage(SmallProgram()));
    const auto noPort = test::RunCommand(cli + " --port /dev/zolt-no-such-tty");
    EXPECT_EQ(noPort.status, 1);
    EXPECT_NE(noPort.out.find("Communications Port Failure!"), std::string::npos);
    EXPECT_NE(noPort.out.find("cannot open /dev/zolt-no-such-tty: No such file"), std::string::npos)
        << noPort.out;

    Analyzer analyzer("--idle-ms 300");
    const auto sent = test::RunCommand(cli + " --port " + analyzer.device() + " --baud 115200");
    EXPECT_EQ(sent.status, 0) << sent.out;
    EXPECT_NE(sent.out.find("at 115200,N,8,1"), std::string::npos) << sent.out;
    EXPECT_NE(sent.out.find("DOWNLOAD COMPLETE"), std::string::npos) << sent.out;
    EXPECT_EQ(analyzer.finish().status, 0);

    EXPECT_EQ(test::RunCommand(cli + " --port /dev/null").status, 1) << "no serial line";
    EXPECT_EQ(test::RunCommand(cli).status, 2);
    EXPECT_EQ(test::RunCommand(cli + " --port /dev/null --baud fast").status, 2);
}

} // namespace
} // namespace zolt::download
