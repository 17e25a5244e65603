// Runs every script of tests/e2e/cases through zolt-cli and compares what it
// prints with the .out file beside it (and its exit status with .exit, 0 when absent).
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const fs::path kCases = fs::path(ZOLT_TEST_DATA_DIR).parent_path() / "e2e" / "cases";

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

struct CliRun {
    std::string out;
    int status = -1;
};

CliRun runCli(const fs::path& script) {
    // A fixed home keeps the default directories in the output the same everywhere.
    const std::string command = "cd '" + script.parent_path().string() +
                                "' && HOME=/zolt-test-home '" ZOLT_BIN_DIR "/zolt-cli' batch '" +
                                script.filename().string() + "' 2>&1";
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

class GoldenCase : public testing::TestWithParam<std::string> {};

TEST_P(GoldenCase, PrintsWhatTheOutFileSays) {
    const fs::path script = kCases / (GetParam() + ".zcmd");
    const fs::path expected = kCases / (GetParam() + ".out");
    const fs::path exitFile = kCases / (GetParam() + ".exit");
    ASSERT_TRUE(fs::exists(expected)) << expected;
    const CliRun run = runCli(script);
    EXPECT_EQ(run.out, readFile(expected));
    const int wanted = fs::exists(exitFile) ? std::stoi(readFile(exitFile)) : 0;
    EXPECT_EQ(run.status, wanted);
}

std::vector<std::string> caseNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kCases))
        if (entry.path().extension() == ".zcmd")
            names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Cli, GoldenCase, testing::ValuesIn(caseNames()),
                         [](const testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             for (char& c : name)
                                 if (!std::isalnum(static_cast<unsigned char>(c)))
                                     c = '_';
                             return name;
                         });

} // namespace
