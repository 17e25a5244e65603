// Runs the bundled example script, as the run-example command does, and holds
// the program file it writes to the committed examples/harness.zlf byte for
// byte: a change of the writer or of a table rule that alters the example
// shows up here.
//
// After a deliberate change, refresh the file from the repository root with
//   build/release/bin/zolt-cli batch examples/harness.zcmd
#include "cli_runner.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

using zolt::test::kRepository;
using zolt::test::ReadFile;

TEST(ExampleProgram, WritesTheCommittedProgramFileByteForByte) {
    const zolt::test::ScratchFolder scratch;
    const zolt::test::CliRun run = zolt::test::RunExample(scratch.path(), "harness.zcmd");
    EXPECT_EQ(run.status, 0) << run.out;
    const std::string committed = ReadFile(kRepository / "examples" / "harness.zlf");
    ASSERT_FALSE(committed.empty()) << "missing examples/harness.zlf";
    EXPECT_TRUE(ReadFile(scratch.path() / "examples" / "harness.zlf") == committed)
        << "examples/harness.zlf differs from what examples/harness.zcmd writes";
}

// The blank template shipped in data/ is what a new project writes: New on a
// fresh install starts from the same rows as `new` in a script.
TEST(BlankTemplate, IsWhatANewProjectWrites) {
    const zolt::test::ScratchFolder scratch;
    std::ofstream(scratch.path() / "blank.zcmd") << "new\nsaveas Blank.zlt\n";
    const zolt::test::CliRun cli = zolt::test::RunBatch(scratch.path(), "blank.zcmd");
    ASSERT_EQ(cli.status, 0) << cli.out;
    const std::string committed = ReadFile(kRepository / "data" / "Blank.zlt");
    ASSERT_FALSE(committed.empty()) << "missing data/Blank.zlt";
    EXPECT_TRUE(ReadFile(scratch.path() / "Blank.zlt") == committed)
        << "data/Blank.zlt differs from what 'new' writes: write it again with zolt-cli";
}

} // namespace
