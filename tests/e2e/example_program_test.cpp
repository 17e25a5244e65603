// Runs the bundled example script, as the run-example command does, in a
// scratch copy of the examples folder, and holds the program file it writes to
// the committed examples/harness.zlf byte for byte: a change of the writer or of
// a table rule that alters the example shows up here.
//
// After a deliberate change, refresh the file from the repository root with
//   build/release/bin/zolt-cli batch examples/harness.zcmd
#include "cli_runner.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

using zolt::test::kRepository;
const fs::path kScript = fs::path("examples") / "harness.zcmd";
const fs::path kProgram = fs::path("examples") / "harness.zlf";

struct ScriptRun {
    std::string transcript;
    int status = -1;
    std::string program;
};

// The script names its output relative to the repository root, so it runs from
// a scratch root holding only examples/harness.zcmd: nothing left beside the
// committed file (a .bin, a lock) can reach the result. The home is fixed, as
// in the golden cases, so that no user's folders can get in.
ScriptRun runExample(const fs::path& root) {
    fs::create_directories(root / "examples");
    fs::copy_file(kRepository / kScript, root / kScript);
    const zolt::test::CliRun cli = zolt::test::RunBatch(root, kScript.string());
    ScriptRun run{cli.out, cli.status, {}};
    run.program = zolt::test::ReadFile(root / kProgram);
    return run;
}

class ExampleProgram : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_FALSE(scratch_.path().empty()) << "no scratch folder";
        run_ = runExample(scratch_.path());
    }

    zolt::test::ScratchFolder scratch_;
    ScriptRun run_;
};

TEST_F(ExampleProgram, WritesTheCommittedProgramFileByteForByte) {
    const std::string committed = zolt::test::ReadFile(kRepository / kProgram);
    ASSERT_FALSE(committed.empty()) << "missing " << (kRepository / kProgram);
    ASSERT_FALSE(run_.program.empty()) << "the script wrote no program file";
    EXPECT_EQ(run_.status, 0) << run_.transcript;
    EXPECT_TRUE(run_.program == committed)
        << "examples/harness.zlf differs from what examples/harness.zcmd writes";
}

} // namespace

namespace {

// The blank template shipped in data/ is what a new project writes: New on a
// fresh install starts from the same rows as `new` in a script.
TEST(BlankTemplate, IsWhatANewProjectWrites) {
    zolt::test::ScratchFolder scratch;
    ASSERT_FALSE(scratch.path().empty()) << "no scratch folder";
    {
        std::ofstream script(scratch.path() / "blank.zcmd");
        script << "new\nsaveas Blank.zlt\n";
    }
    const zolt::test::CliRun cli = zolt::test::RunBatch(scratch.path(), "blank.zcmd");
    ASSERT_EQ(cli.status, 0) << cli.out;
    const std::string committed = zolt::test::ReadFile(kRepository / "data" / "Blank.zlt");
    ASSERT_FALSE(committed.empty()) << "missing data/Blank.zlt";
    EXPECT_TRUE(zolt::test::ReadFile(scratch.path() / "Blank.zlt") == committed)
        << "data/Blank.zlt differs from what 'new' writes: write it again with zolt-cli";
}

} // namespace
