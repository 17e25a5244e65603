#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace zolt::test {

struct CliRun {
    std::string out; // standard output and error, as they came
    int status = -1;
};

// Reads a pipe to its end and closes it.
inline CliRun FinishPipe(FILE* pipe) {
    CliRun run;
    std::array<char, 4096> buffer{};
    std::size_t n = 0;
    while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        run.out.append(buffer.data(), n);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

// Runs a command line in the shell, standard error with standard output.
inline CliRun RunCommand(const std::string& command) {
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    return pipe ? FinishPipe(pipe) : CliRun{};
}

} // namespace zolt::test
