#include "batch_script.h"
#include "support/file_contents.h"
#include "support/scratch_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::cli {
namespace {

using test::RunScript;

const std::string kHarness = "new\n"
                             "row add Connector J1 3\n"
                             "row add Wire W1\n"
                             "row add Wire W2\n";

TEST(TableCommandsTest, CellInsertDeleteAndKeys) {
    const std::string out = RunScript(kHarness + "row add Pin J1 1 W1\n"
                                                 "cell Pin 1 2 W9\n"
                                                 "key Pin 1 F5 W2\n"
                                                 "key Connector 1 F6\n"
                                                 "row insert Wire 1 W0\n"
                                                 "answer cancel\n"
                                                 "row delete Pin 1\n"
                                                 "row delete Pin 1 2\n"
                                                 "clear Switches\n")
                                .printed();
    const std::string expected =
        "CODE 0\nCODE 0\nCODE 0\nCODE 0\n"
        "BOX \"ZOLT Error - 70\" \"Wire Does Not Exist!\" -> OK\n"
        "PROMPT \"Add New Wire\" \"Wire\" -> CANCEL\n"
        "CODE 70\n"
        "CODE 0\n"
        "NO KEY\n"
        "CODE 0\n"
        "BOX \"ZOLT 6.0\" \"Delete Pin Record?\" -> CANCEL\nROWS 2\n"
        "BOX \"ZOLT 6.0\" \"Delete Pin Records?\" -> OK\nROWS 0\n"
        "BOX \"ZOLT 6.0\" \"Clear switches table not permitted\" -> OK\nROWS 0\n";
    EXPECT_EQ(out, expected);
}

TEST(TableCommandsTest, CopyPasteStopsAtFirstFailingRow) {
    const std::string out = RunScript(kHarness + "row add Pin J1 1 W1\n"
                                                 "row add Pin J1 2 W2\n"
                                                 "copy Pin 1 2\n"
                                                 "paste Connector\n"
                                                 "paste Pin\n"
                                                 "cut Pin 3\n")
                                .printed();
    const std::string expected =
        "CODE 0\nCODE 0\nCODE 0\nCODE 0\nCODE 0\n"
        "CLIPBOARD \"$CopyData~6~6~J1~1~W1~J1~2~W2\"\n"
        "BOX \"Paste Aborted\" \"Invalid Data type for table selected\" -> OK\n"
        "PASTED 0\nROWS 1\n"
        "BOX \"ZOLT Error - 114\" \"Connector/Pin/Wire Exists!\" -> OK\n"
        "PASTED 0\nSTOPPED ROW 3 COLUMN 2\nCODE 114\nROWS 3\n"
        "CLIPBOARD \"$CopyData~6~3~J1~1~W1\"\nROWS 2\n";
    EXPECT_EQ(out, expected);
}

TEST(TableCommandsTest, CsvRoundTripAndImportStops) {
    const test::ScratchFolder folder;
    const std::string path = folder.file("pins.csv");
    std::ofstream(path, std::ios::binary)
        << "J1,1,W1\r\n\"J1\",\"2\",W2\nJ1,3,W1\nJ1,\"3,\"\"x\",W2\n";
    const std::string out = RunScript(kHarness + "row add Wire W3\nimport-csv Pin " + path +
                                      "\nexport-csv Pin " + path + "\n")
                                .printed();
    // The failing row (a fourth pin on a three-pin connector) stays in the table.
    const std::string message =
        "\"This Pin Exceeds the Maximum Number of Pins defined for this Connector !\"";
    // clang-format off
    EXPECT_EQ(out, "CODE 0\nCODE 0\nCODE 0\nCODE 0\nBOX \"ZOLT Error - 20\" " + message + " -> OK\n"
                   "IMPORTED 3\nSTOPPED LINE 4 ROW 4\nCODE 20\nMESSAGE " + message + "\nEXPORTED 4\n");
    // clang-format on
    EXPECT_EQ(test::ReadFile(path), "J1,1,W1\r\nJ1,2,W2\r\nJ1,3,W1\r\nJ1,\"3,\"\"x\",W2\r\n");
}

TEST(TableCommandsTest, BadArgumentsStopTheScript) {
    const test::ScriptRun run = RunScript("new\nrow add Nothing X\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.printed().find("unknown table 'Nothing'"), std::string::npos);
}

// The code table is the manual netlist's: its blocks can be named in the
// sequence, and without that netlist there is no code table to type into.
TEST(TableCommandsTest, CodeRowsBelongToTheManualNetlist) {
    EXPECT_EQ(RunScript("new\nrow add Code BLK1 NET\n").status, 2);
    const test::ScriptRun run = RunScript("new\nsettings file ManualNet 1\nnetlist activate MAIN\n"
                                          "row add Code BLK1 NET\nrow add Sequence AUTO BLK1\n");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "CODE 0\nCODE 0\n");
}

} // namespace
} // namespace zolt::cli
