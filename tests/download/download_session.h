#pragma once

#include "download/download.h"
#include "e2e/cli_runner.h"

#include <cstdint>
#include <fstream>
#include <string>
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

} // namespace zolt::test
