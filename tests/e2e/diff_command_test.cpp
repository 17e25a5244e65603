// `zolt-cli diff` and `zolt-cli verify` on copies of the example: their exit
// codes, and a program that only went through a save in another kind. The
// runs' output holds standard error too.
#include "cli_runner.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using zolt::test::CliRun;
using zolt::test::ReadFile;
using zolt::test::RunCli;
using zolt::test::ScratchFolder;

using zolt::test::kExample;

class DiffCommand : public testing::Test {
protected:
    void SetUp() override { fs::copy_file(kExample, folder_.path() / "harness.zlf"); }
    void write(const std::string& name, const std::string& text) {
        std::ofstream(folder_.path() / name, std::ios::binary) << text;
    }
    ScratchFolder folder_;
};

TEST_F(DiffCommand, ConvertedAndReloadedShowsNothing) {
    ASSERT_EQ(RunCli(folder_.path(), "convert harness.zlf copy.zlt").status, 0);
    ASSERT_EQ(RunCli(folder_.path(), "convert copy.zlt again.zlf").status, 0);
    const CliRun run = RunCli(folder_.path(), "diff harness.zlf again.zlf");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    const CliRun json = RunCli(folder_.path(), "diff harness.zlf copy.zlt --json");
    EXPECT_EQ(json.status, 0);
    EXPECT_EQ(json.out, "{\"same\": true, \"differences\": []}\n");
}

TEST_F(DiffCommand, DamagedFileGivesTheReadersMessageAndExitTwo) {
    const std::string bytes = ReadFile(folder_.path() / "harness.zlf");
    write("cut.zlf", bytes.substr(0, bytes.size() / 2));
    const CliRun run = RunCli(folder_.path(), "diff harness.zlf cut.zlf");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out.rfind("cut.zlf: ", 0), 0u) << run.out;
    EXPECT_EQ(RunCli(folder_.path(), "diff harness.zlf absent.zlf").status, 2);
}

TEST_F(DiffCommand, VerifyListsWhatTheDrawingDiffersIn) {
    write("door.csv", "From Connector,From Pin,To Connector,To Pin,Wire,Colour\n"
                      "J1,1,J2,1\nJ1,2,J2,2\nJ1,3,J2,3\nJ1,3,P3,4\nJ1,7,J2,7\nJ1,7,P3,3\n"
                      "J1,8,P3,1\nJ1,9,P3,2\nJ1,10,J2,8\n"
                      "J1,4,J2,4,W6,BLU\r\nJ1,5,J2,6,W7,BLU/WHT\n");
    const CliRun run =
        RunCli(folder_.path(), "verify harness.zlf --netlist DOOR_LH --against door.csv");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "DOOR_LH: missing J1-5 to J2-6\nDOOR_LH: extra J1-5 to J2-5\n");

    write("bad.csv", "J1,4,\"J2\n");
    const CliRun bad = RunCli(folder_.path(), "verify harness.zlf --against bad.csv");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.out, "bad.csv: a quote is left open\n");
}

} // namespace
