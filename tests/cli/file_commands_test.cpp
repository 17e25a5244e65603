#include "batch_script.h"
#include "cli/program_files.h"
#include "core/headless/memory_settings_store.h"
#include "support/scratch_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace zolt::cli {
namespace {

std::string run(const std::string& script, int* code = nullptr) {
    const test::ScriptRun result = test::RunScript(script);
    if (code)
        *code = result.status;
    return result.printed();
}

TEST(FileCommands, FailuresShowTheirBoxes) {
    test::ScratchFolder dir;
    std::ofstream(dir.file("bad.zlf"), std::ios::binary) << "xx";
    const std::string out = run("open " + dir.file("bad.zlf") + "\n");
    EXPECT_NE(out.find("BOX \"Abort File Read\" \"Error reading file at start\""),
              std::string::npos)
        << out;
    int code = 0;
    const std::string save = run("new\nsave\n", &code);
    EXPECT_EQ(code, 2);
    EXPECT_NE(save.find("no file yet"), std::string::npos) << save;
}

// What the question decides is DocumentLifecycle.SavingAGrvProgramAsZlfWarnsOfLostData's.
TEST(FileCommands, SavingAFamilyAsAPlainProgramAsksFirst) {
    test::ScratchFolder dir;
    int code = 0;
    const std::string out =
        run("new\nsaveas " + dir.file("f.grv") + "\nsaveas " + dir.file("x.zlf") + "\n", &code);
    EXPECT_NE(out.find("BOX \"GRV Data Will Be Lost - Continue Save?\""), std::string::npos) << out;
    EXPECT_EQ(code, 2);
}

TEST(FileCommands, DumpAndConvertReportThroughTheirExitCode) {
    MemorySettingsStore settings;
    test::ScratchFolder dir;
    run("new\nnetlist add N1\nsaveas " + dir.file("a.zlf") + "\n");
    std::ostringstream out, err;
    EXPECT_EQ(
        ConvertProgramFile(dir.file("a.zlf"), dir.file("b.grv"), ZOLT_BIN_DIR, settings, out, err),
        0);
    std::ostringstream json, none;
    EXPECT_EQ(DumpProgramFile(dir.file("b.grv"), ZOLT_BIN_DIR, settings, json, none), 0);
    EXPECT_NE(json.str().find("\"title\": \"ZOLT\""), std::string::npos);
    EXPECT_NE(json.str().find("[\"1\", \"N1\"]"), std::string::npos);
    std::ostringstream nothing, box;
    EXPECT_EQ(DumpProgramFile(dir.file("missing.zlf"), ZOLT_BIN_DIR, settings, nothing, box), 1);
    EXPECT_EQ(nothing.str(), "");
    EXPECT_NE(box.str().find("Abort File Read"), std::string::npos);
}

} // namespace
} // namespace zolt::cli
