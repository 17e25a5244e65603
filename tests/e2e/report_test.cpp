// zolt-cli report over the bundled example: the text pages, and a PDF whose
// text poppler reads back.
#include "cli_runner.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace {

namespace fs = std::filesystem;

using zolt::test::kExample;

using zolt::test::RunCommand;

class ReportCommand : public ::testing::Test {
protected:
    void SetUp() override { fs::copy_file(kExample, folder_ / "harness.zlf"); }

    zolt::test::CliRun report(const std::string& args) const {
        return RunCommand("cd '" + folder_.string() +
                          "' && '" ZOLT_BIN_DIR "/zolt-cli' report harness.zlf " + args);
    }
    zolt::test::ScratchFolder scratch_;
    const fs::path& folder_ = scratch_.path();
};

TEST_F(ReportCommand, TextGivesHeaderCaptionsAndOneRowALine) {
    const auto run = report("--tables Pins --summary group --text");
    ASSERT_EQ(run.status, 0) << run.out;
    EXPECT_EQ(run.out.rfind("Thessor ZOLT 6.0\n(Build 6.0.0)\nPins\nharness.zlf\nharness\n", 0), 0u)
        << run.out;
    EXPECT_NE(run.out.find("\nConnector\tPin\tWire\tTest Point\nJ1\t1\tW1\t0-000\n"),
              std::string::npos);
    EXPECT_NE(run.out.find("\nWire Summary\n"), std::string::npos);
    // W3 and W4 share splice 1: one group, next to each other when sorted by group.
    EXPECT_NE(run.out.find(
                  "W3\tBLK\tJ1\t3\t0-002\tSPLICE\t1\t\t3\nW4\tBLK\tJ2\t3\t0-014\tSPLICE\t1\t\t3\n"),
              std::string::npos)
        << run.out;
    EXPECT_FALSE(fs::exists(folder_ / "harness.bin"));
}

TEST_F(ReportCommand, TablesPrintInTheDialogsOrderWhateverTheOrderNamed) {
    const auto run = report("--tables Pins,Wires,Connectors,Pins --text");
    ASSERT_EQ(run.status, 0) << run.out;
    std::vector<std::string> headings;
    for (std::size_t at = 0; (at = run.out.find("(Build 6.0.0)\n", at)) != std::string::npos;) {
        at += 14;
        headings.push_back(run.out.substr(at, run.out.find('\n', at) - at));
    }
    EXPECT_EQ(headings, (std::vector<std::string>{"Connectors", "Wires", "Pins"}));
}

TEST_F(ReportCommand, PdfHoldsTheSameTextOnPagesOfItsOwn) {
    if (RunCommand("command -v pdftotext").status != 0)
        GTEST_SKIP() << "pdftotext is not installed (scripts/setup.sh installs it)";
    const auto run = report("--tables Connectors,Pins --pdf out.pdf");
    ASSERT_EQ(run.status, 0) << run.out;
    const auto info = RunCommand("pdfinfo '" + (folder_ / "out.pdf").string() + "'");
    EXPECT_TRUE(std::regex_search(info.out, std::regex("Pages:\\s+2\n"))) << info.out;
    const auto text = RunCommand("pdftotext -layout '" + (folder_ / "out.pdf").string() + "' -");
    for (const char* expected :
         {"Thessor ZOLT 6.0", "(Build 6.0.0)", "Connectors", "Pins", "harness.zlf",
          "Compiled:", "Printed: ", "Grid Location", "Test Point", "0-023", "Page 1"})
        EXPECT_NE(text.out.find(expected), std::string::npos) << expected << "\n" << text.out;
    EXPECT_EQ(text.out.find("12/30/99"), std::string::npos) << "the example was never compiled";
    EXPECT_EQ(text.out.find("Page 2"), std::string::npos) << "each report numbers its own pages";
}

TEST_F(ReportCommand, PdfPrintsEveryCellWhole) {
    if (RunCommand("command -v pdftotext").status != 0)
        GTEST_SKIP() << "pdftotext is not installed (scripts/setup.sh installs it)";
    ASSERT_EQ(report("--tables Sequence --pdf seq.pdf").status, 0);
    const auto text = RunCommand("pdftotext -layout '" + (folder_ / "seq.pdf").string() + "' -");
    for (const char* whole : {"CONTINUITY", "LOAD DOOR HARNESS AND PRESS START",
                              "DOOR HARNESS FAILED - TAG AND HOLD", "Complete Netlist Scan"})
        EXPECT_NE(text.out.find(whole), std::string::npos) << whole << "\n" << text.out;
    EXPECT_EQ(text.out.find("\xE2\x80\xA6"), std::string::npos) << text.out;
}

struct BadCall {
    const char* name;
    const char* args;
    int status;
    const char* message;
};

class ReportCommandRefuses : public ReportCommand, public ::testing::WithParamInterface<BadCall> {};

TEST_P(ReportCommandRefuses, WithAReason) {
    const auto run = report(GetParam().args);
    EXPECT_EQ(run.status, GetParam().status) << run.out;
    EXPECT_NE(run.out.find(GetParam().message), std::string::npos) << run.out;
}

INSTANTIATE_TEST_SUITE_P(
    Reports, ReportCommandRefuses,
    ::testing::Values(
        BadCall{"UnknownReport", "--tables Pinz --text", 2, "unknown report 'Pinz'"},
        BadCall{"EmptyTable", "--tables Groups --text", 1, "nothing to print for 'Groups'"},
        BadCall{"NoOutput", "--tables Pins", 2, "give either --pdf OUT.pdf or --text"},
        BadCall{"BadSummary", "--summary colour --text", 2, "--summary takes 'wire' or 'group'"},
        BadCall{"UnknownNetlist", "--netlist DOOR --tables Pins --text", 1, "no netlist 'DOOR'"}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
