#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>

namespace zolt::test {

inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

struct CliRun {
    std::string out; // standard output and error, as they came
    int status = -1;
};

// Runs `zolt-cli batch SCRIPT` in `folder`. A fixed home keeps the default
// directories, and so the transcripts, the same on every machine.
inline CliRun RunBatch(const std::filesystem::path& folder, const std::string& script) {
    const std::string command = "cd '" + folder.string() +
                                "' && HOME=/zolt-test-home '" ZOLT_BIN_DIR "/zolt-cli' batch '" +
                                script + "' 2>&1";
    CliRun run;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return run;
    std::array<char, 4096> buffer{};
    std::size_t n = 0;
    while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        run.out.append(buffer.data(), n);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

} // namespace zolt::test
