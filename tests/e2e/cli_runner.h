#pragma once

#include "support/shell_command.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace zolt::test {

inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// Runs `zolt-cli ARGUMENTS` (already quoted for the shell) in `folder`. A fixed
// home keeps the default directories, and so the transcripts, the same on
// every machine; a settings folder that cannot exist keeps the user's settings
// out and lets no run leave any behind (`--settings FILE` keeps them on purpose).
inline CliRun RunCli(const std::filesystem::path& folder, const std::string& arguments) {
    return RunCommand(
        "cd '" + folder.string() +
        "' && HOME=/zolt-test-home XDG_CONFIG_HOME=/dev/null/zolt-settings '" ZOLT_BIN_DIR
        "/zolt-cli' " +
        arguments);
}

// Runs `zolt-cli batch SCRIPT` in `folder`.
inline CliRun RunBatch(const std::filesystem::path& folder, const std::string& script) {
    return RunCli(folder, "batch '" + script + "'");
}

// A fresh folder under the system's temporary one, removed with its contents.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "zolt-example-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr)
            path_ = pattern;
    }
    ~ScratchFolder() {
        std::error_code ec;
        if (!path_.empty())
            std::filesystem::remove_all(path_, ec);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace zolt::test
