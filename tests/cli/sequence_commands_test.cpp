#include "batch_script.h"

#include <gtest/gtest.h>

namespace zolt::cli {
namespace {

using test::RunScript;
using test::ScriptRun;

// Words with no cell to go to stop the script instead of landing somewhere.
TEST(SequenceCommands, MisplacedWordsAreRefusedAndNoRowIsAdded) {
    for (const auto& [line, error] : std::vector<std::pair<std::string, std::string>>{
             {"row add Sequence END 55", "END takes no parameter"},
             {"cell Sequence 1 2 5", "NOP takes no parameter"},
             {"row add Sequence MESSAGE 1 hello", "the description is the command's or its "
                                                  "message's; 'hello' cannot be typed into it"}}) {
        const ScriptRun run = RunScript("new\nrow add Sequence NOP\n" + line + "\n");
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "ERROR line 3: " + error + "\n");
        EXPECT_EQ(run.out.find("CODE 0\nCODE"), std::string::npos) << run.out;
    }
}

TEST(SequenceCommands, MissingDataFilesAreAReadErrorNotACrash) {
    const ScriptRun missing = RunScript("new\n", "/nonexistent/zolt");
    EXPECT_EQ(missing.status, 0);
    EXPECT_NE(missing.out.find("BOX \"Abort File Read\" \"Error reading file at End\""),
              std::string::npos)
        << missing.out;
    const ScriptRun present = RunScript("new\n", ZOLT_BIN_DIR);
    EXPECT_EQ(present.out.find("BOX"), std::string::npos) << present.out;
}

} // namespace
} // namespace zolt::cli
