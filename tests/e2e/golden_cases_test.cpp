// Runs every script of tests/e2e/cases through zolt-cli and compares what it
// prints with the .out file beside it (and its exit status with .exit, 0 when absent).
#include "cli_runner.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path kCases = fs::path(ZOLT_TEST_DATA_DIR).parent_path() / "e2e" / "cases";

class GoldenCase : public testing::TestWithParam<std::string> {};

TEST_P(GoldenCase, PrintsWhatTheOutFileSays) {
    const fs::path script = kCases / (GetParam() + ".zcmd");
    const fs::path expected = kCases / (GetParam() + ".out");
    const fs::path exitFile = kCases / (GetParam() + ".exit");
    ASSERT_TRUE(fs::exists(expected)) << expected;
    const zolt::test::CliRun run =
        zolt::test::RunBatch(script.parent_path(), script.filename().string());
    EXPECT_EQ(run.out, zolt::test::ReadFile(expected));
    const int wanted = fs::exists(exitFile) ? std::stoi(zolt::test::ReadFile(exitFile)) : 0;
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
