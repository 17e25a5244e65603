// Runs examples/family.zcmd, holds the program it writes to the committed
// examples/family.grv byte for byte, and runs the README's test compile on it.
//
// After a deliberate change, refresh the file from the repository root with
//   build/release/bin/zolt-cli batch examples/family.zcmd
#include "cli_runner.h"

#include <gtest/gtest.h>

namespace {

using zolt::test::ReadFile;
using zolt::test::RunCli;

TEST(FamilyExample, WritesTheCommittedProgramFileAndTheReadmesTestCompileRuns) {
    const zolt::test::ScratchFolder scratch;
    const zolt::test::CliRun script = zolt::test::RunExample(scratch.path(), "family.zcmd");
    ASSERT_EQ(script.status, 0) << script.out;
    EXPECT_EQ(ReadFile(scratch.path() / "examples" / "family.grv"),
              ReadFile(zolt::test::kRepository / "examples" / "family.grv"))
        << "examples/family.grv differs from what examples/family.zcmd writes";

    const zolt::test::CliRun compile = RunCli(
        scratch.path(), "grv-compile examples/family.grv --features Base,LeftHand,Lamp -o LH.zlf");
    ASSERT_EQ(compile.status, 0) << compile.out;
    const zolt::test::CliRun dump = RunCli(scratch.path(), "dump LH.zlf");
    for (const char* row : {R"(["3", "CONTINUITY", "DOOR_LH")", R"(["9", "CONTINUITY", "LAMP")",
                            R"(["17", "END")", R"("featureCodes": [])"})
        EXPECT_NE(dump.out.find(row), std::string::npos) << row << "\n" << dump.out;
    EXPECT_EQ(dump.out.find(R"(["18")"), std::string::npos);
}

} // namespace
