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
