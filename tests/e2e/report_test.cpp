// zolt-cli report over the bundled example: its options, its text and its PDF.
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

// The header, the rows and the summaries are the report builder's; here the
// options reach it and the pages come out.
TEST_F(ReportCommand, TextAndPdfPrintTheTablesInTheDialogsOrder) {
    const auto run = report("--tables Pins,Wires,Connectors,Pins --summary group --text");
    ASSERT_EQ(run.status, 0) << run.out;
    std::vector<std::string> headings;
    for (std::size_t at = 0; (at = run.out.find("(Build 6.0.0)\n", at)) != std::string::npos;) {
        at += 14;
        headings.push_back(run.out.substr(at, run.out.find('\n', at) - at));
    }
    EXPECT_EQ(headings, (std::vector<std::string>{"Connectors", "Wires", "Pins", "Wire Summary"}));
    EXPECT_NE(run.out.find("\nConnector\tPin\tWire\tTest Point\nJ1\t1\tW1\t0-000\n"),
              std::string::npos);
    EXPECT_FALSE(fs::exists(folder_ / "harness.bin"));

    if (RunCommand("command -v pdfinfo").status != 0)
        GTEST_SKIP() << "pdfinfo is not installed (scripts/setup.sh installs it)";
    ASSERT_EQ(report("--tables Connectors,Pins --pdf out.pdf").status, 0);
    const auto info = RunCommand("pdfinfo '" + (folder_ / "out.pdf").string() + "'");
    EXPECT_TRUE(std::regex_search(info.out, std::regex("Pages:\\s+2\n"))) << info.out;
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
