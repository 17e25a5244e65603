#include "batch_script.h"
#include "core/table_kinds.h"

#include <gtest/gtest.h>
#include <sstream>

namespace zolt::cli {
namespace {

using test::RunScript;
using test::ScriptRun;

std::string Parameters(const std::string& script) {
    std::ostringstream out;
    std::ostringstream err;
    BatchSession session(out);
    std::istringstream in(script);
    EXPECT_EQ(session.Run(in, err), 0) << err.str();
    const Grid& g = session.state().project().MainNetlist->GetTable(table::Sequence)->gridarray();
    std::string text;
    for (int r = 1; r <= g.Rows(); ++r)
        text += g.Text(r, 0) + ":" + g.Text(r, 1) + " " + g.Text(r, 2) + ";";
    return text;
}

TEST(SequenceCommands, RowsAreTypedFromTheCommandColumnAndFollowTheirBranches) {
    EXPECT_EQ(Parameters("new\n"
                         "row add Sequence got 3\n" // completes to GOTO
                         "row add Sequence CONTINUITY\n"
                         "row add Sequence NOP\n"
                         "row add Sequence FLASH 1x2\n" // digits only
                         "row insert Sequence 3 BER 1\n"
                         "answer ok\n"
                         "row delete Sequence 1\n"),
              "1:CONTINUITY MAIN;2:BER 1;3:NOP ;4:FLASH 12;");
    EXPECT_EQ(Parameters("new\nrow add Sequence GOTO 2\nrow add Sequence NOP\n"
                         "cell Sequence 2 1 DBNZS 1\n"),
              "1:GOTO 2;2:DBNZS 1;");
}

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
