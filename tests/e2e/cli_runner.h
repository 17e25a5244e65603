#pragma once

#include "support/shell_command.h"

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

// Runs `zolt-cli batch SCRIPT` in `folder`. A fixed home keeps the default
// directories, and so the transcripts, the same on every machine.
inline CliRun RunBatch(const std::filesystem::path& folder, const std::string& script) {
    return RunCommand("cd '" + folder.string() +
                      "' && HOME=/zolt-test-home '" ZOLT_BIN_DIR "/zolt-cli' batch '" + script +
                      "'");
}

} // namespace zolt::test
