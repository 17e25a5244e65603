#include "batch_script.h"
#include "cli/batch_session.h"
#include "cli/program_files.h"
#include "core/headless/memory_settings_store.h"
#include "core/netlist.h"
#include "core/program_state.h"
#include "core/table.h"
#include "file/program_file.h"
#include "support/file_contents.h"
#include "support/scratch_folder.h"

#include <filesystem>
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
    const std::string out =
        run("open " + dir.file("bad.zlf") + "\nopen " + dir.file("p.txt") + "\n");
    EXPECT_NE(out.find("BOX \"Abort File Read\" \"Error reading file at start\""),
              std::string::npos)
        << out;
    EXPECT_NE(out.find("BOX \"Abort File Open\" \"Invalid file extention - .txt\""),
              std::string::npos)
        << out;
    // A kind the desktop opens opens here too: a legacy archive goes the import road.
    std::ofstream(dir.file("old.zos"), std::ios::binary) << "xx";
    const std::string archive = run("open " + dir.file("old.zos") + "\n");
    EXPECT_NE(archive.find("BOX \"Abort Import Operation\""), std::string::npos) << archive;
    int code = 0;
    const std::string save = run("new\nsave\n", &code);
    EXPECT_EQ(code, 2);
    EXPECT_NE(save.find("no file yet"), std::string::npos) << save;
}

TEST(FileCommands, SavingAFamilyAsAPlainProgramAsksFirst) {
    test::ScratchFolder dir;
    const std::string family = "new\nsaveas " + dir.file("f.grv") + "\n";
    int code = 0;
    const std::string refused = run(family + "saveas " + dir.file("x.zlf") + "\n", &code);
    EXPECT_EQ(code, 2);
    EXPECT_NE(refused.find("BOX \"GRV Data Will Be Lost - Continue Save?\""), std::string::npos)
        << refused;
    EXPECT_FALSE(std::filesystem::exists(dir.file("x.zlf")));
    run(family + "answer ok\nsaveas " + dir.file("x.zlf") + "\n", &code);
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(std::filesystem::exists(dir.file("x.zlf")));
}

TEST(FileCommands, OpeningAnOldFamilyBacksItUpAndSavesItAsGrv) {
    test::ScratchFolder dir;
    {
        std::ostringstream out;
        BatchSession old(out);
        std::istringstream in("new\n");
        std::ostringstream err;
        ASSERT_EQ(old.Run(in, err), 0);
        Table& steps = *old.state().project().MainNetlist->GetTable(table::Sequence);
        const char* rows[][2] = {{"MBEGIN", "1"}, {"TEST", "MACRO1"}, {"MEND", ""}};
        for (int row = 1; row <= 3; ++row)
            steps.AddRecord_v1(row, {Value(static_cast<std::int16_t>(row)), Value(rows[row - 1][0]),
                                     Value(rows[row - 1][1]), Value(""), Value(""),
                                     Value(std::int32_t{row}), Value(std::int32_t{0})});
        ASSERT_EQ(file::WriteProgramFile(old.state(), dir.file("old.zlf")), Answer::Yes);
    }
    const std::string original = test::ReadFile(dir.file("old.zlf"));
    const std::string out =
        run("param set BackupFilesDirectory \"" + dir.file("Backup") + "\"\nopen " +
            dir.file("old.zlf") + "\nsave\nopen " + dir.file("old.grv") + "\nrows Sequence\n");
    EXPECT_EQ(test::ReadFile(dir.file("Backup/old.zlf")), original);
    EXPECT_EQ(test::ReadFile(dir.file("old.zlf")), original);
    EXPECT_NE(out.find("ROW 1 \"1\" \"PBEGIN\" \"1\""), std::string::npos) << out;
    EXPECT_NE(out.find("ROW 2 \"2\" \"TEST\" \"MAIN\""), std::string::npos) << out;
    EXPECT_NE(out.find("ROW 3 \"3\" \"PEND\""), std::string::npos) << out;
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
