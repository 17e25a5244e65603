#pragma once

#include "download/download.h"
#include "download/posix_serial_port.h"
#include "e2e/cli_runner.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace zolt::test {

// Records what the download window would show.
class RecordingView final : public download::DownloadView {
public:
    void SetStatus(const std::string& text) override { statuses.push_back(text); }
    void SetProgressMaximum(std::size_t value) override { maximum = value; }
    void SetProgress(std::size_t value) override { progress.push_back(value); }
    void SetBusy(bool value) override { busy = value; }

    std::vector<std::string> statuses;
    std::size_t maximum = 0;
    std::vector<std::size_t> progress;
    bool busy = false;
};

// A program file's folder with, when asked, its `.bin` beside it.
class BinFolder {
public:
    std::string program() const { return (folder_.path() / "door.zlf").string(); }
    std::string bin() const { return (folder_.path() / "door.bin").string(); }
    void writeBin(const std::vector<std::uint8_t>& bytes) const {
        std::ofstream(bin(), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }

private:
    ScratchFolder folder_;
};

inline std::vector<std::uint8_t> Pattern(std::size_t size) {
    std::vector<std::uint8_t> bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    return bytes;
}

enum class Peer { Reads, HangsUpAfter8K, NeverReads };

// The analyzer's end of a pseudo-terminal pair: reads what arrives until told
// to stop, hangs up after 8 KiB, or never reads (a stalled line).
class PtyPeer {
public:
    explicit PtyPeer(Peer peer = Peer::Reads) {
        std::string error;
        const auto pty = download::OpenPseudoTerminal(error);
        if (!pty)
            return;
        slave_ = pty->slave;
        device_ = pty->slaveName;
        master_ = std::make_unique<download::PosixSerialPort>(pty->master);
        const std::size_t hangUpAfter = peer == Peer::HangsUpAfter8K ? 8192 : SIZE_MAX;
        if (peer != Peer::NeverReads)
            reader_ = std::thread([this, hangUpAfter] {
                std::array<std::uint8_t, 512> buffer{};
                while (!stop_ && received() < hangUpAfter) {
                    const auto read = master_->Read(buffer, std::chrono::milliseconds{10});
                    const std::lock_guard lock(mutex_);
                    got_.insert(got_.end(), buffer.begin(), buffer.begin() + read.count);
                    if (hangUpAfter != SIZE_MAX) // slower than the sender
                        std::this_thread::sleep_for(std::chrono::milliseconds{1});
                }
                master_->Close();
            });
    }
    ~PtyPeer() {
        stop_ = true;
        if (reader_.joinable())
            reader_.join();
        if (slave_ >= 0)
            ::close(slave_);
    }
    const std::string& device() const { return device_; }
    std::size_t received() {
        const std::lock_guard lock(mutex_);
        return got_.size();
    }
    std::vector<std::uint8_t> got() {
        const std::lock_guard lock(mutex_);
        return got_;
    }

private:
    int slave_ = -1;
    std::string device_;
    std::unique_ptr<download::PosixSerialPort> master_;
    std::atomic<bool> stop_{false};
    std::mutex mutex_;
    std::vector<std::uint8_t> got_;
    std::thread reader_;
};

} // namespace zolt::test
