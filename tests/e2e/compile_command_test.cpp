// `zolt-cli compile` and `zolt-cli image` on a scratch copy of the example, and
// `compile` in a batch script.
#include "cli_runner.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using zolt::test::CliRun;
using zolt::test::ReadFile;
using zolt::test::RunCli;

using zolt::test::kExample;

class CompileCommand : public testing::Test {
protected:
    void SetUp() override { fs::copy_file(kExample, folder_ / "harness.zlf"); }
    zolt::test::ScratchFolder scratch_;
    const fs::path& folder_ = scratch_.path();
};

constexpr const char* kResults = "Compiling: DOOR_RH\nCompiling: DOOR_LH\nCompiling: MAIN\n\n"
                                 "Warnings: Turned Off\nErrors: 0\n";

TEST_F(CompileCommand, ExampleCompilesCleanTracesAndReadsBackItsImage) {
    const CliRun run = RunCli(folder_, "compile harness.zlf");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, kResults);
    EXPECT_TRUE(fs::exists(folder_ / "harness.dgn"));
    const CliRun dump = RunCli(folder_, "dump harness.zlf");
    EXPECT_EQ(dump.out.find("\"compiledDate\": 0,"), std::string::npos);
    EXPECT_NE(dump.out.find("\"needsCompile\": false"), std::string::npos);

    const CliRun image = RunCli(folder_, "image harness.bin");
    EXPECT_EQ(image.status, 0);
    EXPECT_EQ(image.out.rfind("{\n  \"version\": 2,\n  \"header\": {\"programId\": \"harness\"", 0),
              0u)
        << image.out;
    EXPECT_NE(image.out.find("[3, 16]"), std::string::npos); // the crossed lock motor pair

    const CliRun trace = RunCli(folder_, "compile harness.zlf --trace");
    EXPECT_EQ(trace.out.rfind("ProgramName = \"harness\"\n", 0), 0u) << trace.out;
    EXPECT_TRUE(trace.out.ends_with(kResults));

    std::string bytes = ReadFile(folder_ / "harness.bin");
    bytes[bytes.size() / 2] ^= 1;
    std::ofstream(folder_ / "bad.bin", std::ios::binary) << bytes;
    const CliRun bad = RunCli(folder_, "image bad.bin");
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.out.rfind("ERROR: 'bad.bin' is no compiled program: ", 0), 0u) << bad.out;
}

// After an edit the image is older than its program: download asks for --yes, and
// the compile of the edit, which has an error, exits one.
TEST_F(CompileCommand, AnEditAfterTheCompileAsksForYesAndItsErrorExitsOne) {
    ASSERT_EQ(RunCli(folder_, "compile harness.zlf").status, 0);
    std::ofstream(folder_ / "edit.zcmd") << "open harness.zlf\nrow add Connector J9 1\n"
                                            "row add Wire W99\nrow add Pin J9 1 W99\nsave\n";
    ASSERT_EQ(RunCli(folder_, "batch edit.zcmd").status, 0);
    const CliRun refused = RunCli(folder_, "download harness.zlf --port /dev/zolt-no-such-tty");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out.find("Communications Port Failure!"), std::string::npos);
    const CliRun confirmed =
        RunCli(folder_, "download harness.zlf --yes --port /dev/zolt-no-such-tty");
    EXPECT_NE(confirmed.out.find("Compiling Warning: Data has been changed since last compile."),
              std::string::npos)
        << confirmed.out;
    EXPECT_NE(confirmed.out.find("Communications Port Failure!"), std::string::npos);

    const CliRun run = RunCli(folder_, "compile harness.zlf");
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.out.ends_with("\nErrors: 1\n")) << run.out;
}

} // namespace
