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

} // namespace
} // namespace zolt::cli
