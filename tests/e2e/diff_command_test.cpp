// `zolt-cli diff` and `zolt-cli verify` on copies of the example: their exit
// codes and what they print, standard error included. What differs is the
// compare tests'; here the commands reach it.
#include "cli_runner.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using zolt::test::CliRun;
using zolt::test::RunCli;

TEST(DiffCommand, SameDifferentAndUnreadableExitZeroOneAndTwo) {
    const zolt::test::ScratchFolder scratch;
    const std::filesystem::path& folder = scratch.path();
    std::filesystem::copy_file(zolt::test::kExample, folder / "harness.zlf");
    ASSERT_EQ(RunCli(folder, "convert harness.zlf copy.zlt").status, 0);
    const CliRun same = RunCli(folder, "diff harness.zlf copy.zlt --json");
    EXPECT_EQ(same.status, 0);
    EXPECT_EQ(same.out, "{\"same\": true, \"differences\": []}\n");

    const std::string bytes = zolt::test::ReadFile(folder / "harness.zlf");
    std::ofstream(folder / "cut.zlf", std::ios::binary) << bytes.substr(0, bytes.size() / 2);
    const CliRun damaged = RunCli(folder, "diff harness.zlf cut.zlf");
    EXPECT_EQ(damaged.status, 2);
    EXPECT_EQ(damaged.out.rfind("cut.zlf: ", 0), 0u) << damaged.out;

    std::ofstream(folder / "door.csv", std::ios::binary)
        << "From Connector,From Pin,To Connector,To Pin,Wire,Colour\n"
           "J1,1,J2,1\nJ1,2,J2,2\nJ1,3,J2,3\nJ1,3,P3,4\nJ1,7,J2,7\nJ1,7,P3,3\n"
           "J1,8,P3,1\nJ1,9,P3,2\nJ1,10,J2,8\nJ1,4,J2,4,W6,BLU\r\nJ1,5,J2,6,W7,BLU/WHT\n";
    const CliRun verify = RunCli(folder, "verify harness.zlf --netlist DOOR_LH --against door.csv");
    EXPECT_EQ(verify.status, 1);
    EXPECT_EQ(verify.out, "DOOR_LH: missing J1-5 to J2-6\nDOOR_LH: extra J1-5 to J2-5\n");
    std::ofstream(folder / "bad.csv", std::ios::binary) << "J1,4,\"J2\n";
    const CliRun bad = RunCli(folder, "verify harness.zlf --against bad.csv");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.out, "bad.csv: a quote is left open\n");
}

} // namespace
