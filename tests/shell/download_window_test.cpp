// The download window on the desktop, over a real pseudo-terminal pair through
// the desktop's serial port: a peer that reads, hangs up or stalls.
#include "core/ports/clock.h"
#include "desktop.h"
#include "download/download_session.h"
#include "platform/qt_serial_port.h"
#include "shell/download_window.h"
#include "support/qt_keys.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace zolt::shell {
namespace {

using namespace std::chrono_literals;
using download::DownloadOutcome;

using zolt::test::BinFolder;
using zolt::test::Pattern;
using zolt::test::Peer;
using zolt::test::PtyPeer;

download::DownloadRequest Request(const BinFolder& folder, const std::string& device) {
    return {folder.program(), "door", device, {115200, 'N', 8, 1}};
}

DownloadWindow::PortMaker DesktopPort() {
    return [] { return std::make_unique<QtSerialPort>(); };
}

using test_desktop::RunUntil;

bool Ended(const DownloadWindow& w) {
    return w.outcome().has_value();
}

TEST(DownloadWindow, SendsTheImageThroughAPseudoTerminalAndGoes) {
    zolt::test::QtApp();
    BinFolder program;
    const auto bytes = Pattern(20000);
    program.writeBin(bytes);
    PtyPeer peer;
    ASSERT_FALSE(peer.device().empty());
    const SystemClock clock;
    DownloadWindow w(Request(program, peer.device()), DesktopPort(), clock);
    EXPECT_EQ(w.status().text(), QStringLiteral("Download in Process"));
    EXPECT_EQ(w.detail().text(),
              QStringLiteral("Port %1 at 115200,N,8,1").arg(QString::fromStdString(peer.device())));
    w.show();
    EXPECT_FALSE(w.transferring()); // the window is on the screen before the transfer starts
    ASSERT_TRUE(RunUntil([&] { return Ended(w); }));
    EXPECT_EQ(w.outcome(), DownloadOutcome::Complete);
    EXPECT_EQ(w.status().text(), QStringLiteral("DOWNLOAD COMPLETE"));
    EXPECT_EQ(w.progress().maximum(), 20010);
    EXPECT_EQ(w.progress().value(), 20000);
    EXPECT_FALSE(w.isVisible());
    EXPECT_FALSE(w.cancelButton().isEnabled());
    ASSERT_TRUE(RunUntil([&] { return peer.received() >= bytes.size(); }, 5s));
    EXPECT_EQ(peer.got(), bytes);
}

struct EndCase {
    const char* name;
    std::optional<Peer> peer; // none: a device that does not exist
    std::size_t fileSize;     // 0: no `.bin` at all
    DownloadOutcome outcome;
    const char* status;
    const char* detail; // how the detail line starts; empty: not checked
    bool okEnabled;
};

class DownloadEnds : public testing::TestWithParam<EndCase> {};

TEST_P(DownloadEnds, ShowWhyThroughTheDesktopsPort) {
    zolt::test::QtApp();
    const EndCase& c = GetParam();
    BinFolder program;
    if (c.fileSize > 0)
        program.writeBin(Pattern(c.fileSize));
    std::optional<PtyPeer> peer;
    if (c.peer)
        peer.emplace(*c.peer);
    auto request = Request(program, peer ? peer->device() : "/dev/zolt-no-such-port");
    request.watchdog = 300ms;
    const SystemClock clock;
    DownloadWindow w(request, DesktopPort(), clock);
    w.show();
    ASSERT_TRUE(RunUntil([&] { return Ended(w); }));
    EXPECT_EQ(w.outcome(), c.outcome);
    EXPECT_EQ(w.status().text().toStdString(), c.status);
    EXPECT_TRUE(w.detail().text().startsWith(QString::fromUtf8(c.detail)))
        << w.detail().text().toStdString();
    EXPECT_FALSE(w.transferring());
    EXPECT_TRUE(w.cancelButton().isEnabled());
    EXPECT_EQ(w.okButton().isEnabled(), c.okEnabled);
    if (c.fileSize > 0) {
        EXPECT_LT(w.progress().value(), static_cast<int>(c.fileSize));
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Window, DownloadEnds, testing::Values(
    EndCase{"NotCompiled", std::nullopt, 0, DownloadOutcome::NotCompiled, "'door' Has Not Been Successfully Compiled!", "", true},
    EndCase{"NoSuchDevice", std::nullopt, 100, DownloadOutcome::PortFailure, "Communications Port Failure!", "cannot open /dev/zolt-no-such-port", false},
    EndCase{"PeerHangsUp", Peer::HangsUpAfter8K, 1 << 20, DownloadOutcome::PortFailure, "Communications Port Failure!", "", false},
    EndCase{"LineStalls", Peer::NeverReads, 1 << 20, DownloadOutcome::Timeout, "Communications Download Timeout Failure!", "", false}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

struct Leave {
    const char* name;
    std::function<void(std::unique_ptr<DownloadWindow>&)> leave;
};

class LeavingMidTransfer : public testing::TestWithParam<Leave> {};

TEST_P(LeavingMidTransfer, CancelsAndJoins) {
    zolt::test::QtApp();
    BinFolder program;
    program.writeBin(Pattern(1 << 20));
    PtyPeer peer(Peer::NeverReads);
    const SystemClock clock;
    auto w =
        std::make_unique<DownloadWindow>(Request(program, peer.device()), DesktopPort(), clock);
    w->show();
    ASSERT_TRUE(RunUntil([&] { return w->progress().value() > 64; }));
    EXPECT_TRUE(w->transferring());
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    GetParam().leave(w);
    if (w) {
        EXPECT_FALSE(w->transferring());
        EXPECT_FALSE(w->isVisible());
        EXPECT_EQ(w->outcome(), DownloadOutcome::Cancelled);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Window, LeavingMidTransfer,
    testing::Values(Leave{"CancelButton", [](auto& w) { w->cancelButton().click(); }},
                    Leave{"EscapeKey", [](auto& w) { zolt::test::Key(w.get(), Qt::Key_Escape); }},
                    Leave{"CloseBox", [](auto& w) { w->close(); }},
                    Leave{"WindowDestroyed", [](auto& w) { w.reset(); }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DownloadCommand, ChangedDataWarnsAndCancelSendsNothing) {
    test_desktop::Desktop d;
    BinFolder program;
    program.writeBin(Pattern(10));
    d.window.state().document().CurrentFile = program.program();
    d.window.UpdateControls();
    d.window.state().project().NeedsCompile = true;
    d.ui.Queue(Answer::Cancel);
    d.window.ToolClick(QStringLiteral("ID_Download"));
    ASSERT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(d.ui.ShownBoxes()[0].caption, "Compiling Warning");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace zolt::shell
