#include "batch_script.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace zolt::cli {
namespace {

// What a script that must run through printed.
std::string RunScript(const std::string& script) {
    const test::ScriptRun run = test::RunScript(script);
    EXPECT_EQ(run.status, 0) << run.err;
    return run.out;
}

const std::string kPins = "new\n"
                          "row add Connector J1 4\n"
                          "row add Connector J2 4\n"
                          "row add Wire W1\n"
                          "row add Pin J1 1 W1\n"
                          "row add Pin J2 1 W1\n";
const std::string kFiveCodes = "CODE 0\nCODE 0\nCODE 0\nCODE 0\nCODE 0\n";
const std::string kFinished =
    "BOX \"ZOLT 6.0\" \"ZOLT 6.0 has finished searching the table.\" -> OK\n";

TEST(TransferCommandsTest, FindGoesOnFromTheRowFoundAndReplaceTypesEachCell) {
    EXPECT_EQ(RunScript(kPins + "find Pin Wire W1\n"
                                "find Pin Wire W1\n"
                                "find Pin Wire W1\n"
                                "find Pin Connector/Pin J2 1\n"
                                "find Connector All J3\n"
                                "replace Connector J2 J1\n"
                                "replace Pin 1 2\n"
                                "rows Pin\n"),
              kFiveCodes + "FOUND ROW 1 COLUMN 2\nFOUND ROW 2 COLUMN 2\n" + kFinished + "END\n" +
                  "FOUND ROW 2 COLUMN 0\n"
                  "BOX \"ZOLT 6.0\" \"ZOLT 6.0 has finished searching the table. The search item "
                  "was not found.\" -> OK\nEND\n"
                  "BOX \"ZOLT Error - 11\" \"Value already Exists! Enter a unique value.\" -> OK\n"
                  "REPLACED ROW 2 COLUMN 0 CODE 11\n" +
                  kFinished + "REPLACED ROW 1 COLUMN 1 CODE 0\nREPLACED ROW 2 COLUMN 1 CODE 0\n" +
                  kFinished + "ROW 1 \"J1\" \"2\" \"W1\"\nROW 2 \"J2\" \"2\" \"W1\"\nROWS 2\n");
}

const std::string kNotFound = "BOX \"ZOLT 6.0\" \"ZOLT 6.0 has finished searching the table. The "
                              "search item was not found.\" -> OK\n";

TEST(TransferCommandsTest, FindAndReplaceSeeWhatTheWindowShows) {
    // Switches, lamp pins and grid locations are off: their columns are hidden.
    EXPECT_EQ(RunScript("new\nanswer yes yes\nrow add Wire W1 GRN RED\nrow add Connector J1 0\n"
                        "find Wire All RED\n"
                        "find Wire All 1\n"
                        "replace Wire RED GRN\n"
                        "replace Connector 0 5\n"
                        "rows Wire\nrows Connector\n"),
              "BOX \"Color not defined\" \"Add 'GRN' as a New Color?\" -> YES\n"
              "BOX \"Color not defined\" \"Add 'RED' as a New Color?\" -> YES\n"
              "CODE 0\nCODE 0\n"
              "FOUND ROW 1 COLUMN 2\n" +
                  kNotFound + "END\nREPLACED ROW 1 COLUMN 2 CODE 0\n" + kFinished +
                  "REPLACED ROW 1 COLUMN 1 CODE 0\n" + kFinished +
                  "ROW 1 \"W1\" \"1\" \"1\"\nROWS 1\n"
                  "ROW 1 \"J1\" \"5\" \"0\" \"0\" \"0\" \"0\"\nROWS 1\n");
}

TEST(TransferCommandsTest, CopiesFromAnotherTabAndFromAnotherFile) {
    const test::ScratchFolder folder;
    const std::string path = folder.file("pins.zlf");
    const std::string out = RunScript(kPins + "saveas \"" + path +
                                      "\"\n"
                                      "netlist add DOOR\n"
                                      "copy-tab Pin MAIN\n"
                                      "copy-tab Message MAIN\n"
                                      "copy-file Pin \"" +
                                      path + "\" MAIN\n");
    EXPECT_NE(out.find("TABS \"MAIN\"\nCOPIED\nROWS 2\n"
                       "BOX \"Abort Operation\" \"Table selected can not be copied into.\" -> OK\n"
                       "NOT COPIED\nROWS 0\n"
                       "FILE \"SELECT FILE TO IMPORT FROM\" -> \"" +
                       path + "\"\nTABS \"MAIN\"\nCOPIED\nROWS 2\n"),
              std::string::npos)
        << out;
}

} // namespace
} // namespace zolt::cli
