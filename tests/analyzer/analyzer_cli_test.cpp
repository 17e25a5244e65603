// zolt-analyzer run and zolt-cli coverage as the engineer calls them: exit codes,
// the clear message on bad input, and nothing written beside the files.

#include "analyzer_images.h"
#include "cli/analyzer_commands.h"
#include "core/headless/memory_settings_store.h"
#include "e2e/cli_runner.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace zolt::cli {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

std::vector<std::string> Listing(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

class AnalyzerCli : public ::testing::Test {
protected:
    void SetUp() override {
        const auto image = test::DoorProgram(
            {{"TEST", "MAIN"}, {"BER", "4"}, {"END", ""}, {"MESSAGE", "3"}, {"END", ""}});
        Write("door.bin", compile::WriteImage(image));
    }

    void Write(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        std::ofstream(folder_.path() / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }

    std::string Path(const std::string& name) const { return (folder_.path() / name).string(); }

    Outcome RunAnalyzer(std::vector<std::string> args) const {
        std::ostringstream out, err;
        MemorySettingsStore settings;
        const int status = AnalyzerRunCommand(args, ZOLT_BIN_DIR, settings, out, err);
        return {status, out.str(), err.str()};
    }

    test::ScratchFolder folder_;
};

TEST_F(AnalyzerCli, PassesTheDesignedHarnessAndFailsAFault) {
    const auto good = RunAnalyzer({Path("door.bin")});
    EXPECT_EQ(good.status, 0) << good.out << good.err;
    EXPECT_NE(good.out.find("Ended on line 3: END\n"), std::string::npos) << good.out;
    const auto bad = RunAnalyzer({Path("door.bin"), "--fault", "open:J2-2", "--json"});
    EXPECT_EQ(bad.status, 1);
    EXPECT_NE(bad.out.find("{\"line\": 1, \"kind\": \"open\", \"text\": \"OPEN J1-2 TO J2-2\"}"),
              std::string::npos)
        << bad.out;
    EXPECT_NE(bad.out.find("\"timesRun\": [1, 1, 0, 1, 1]"), std::string::npos) << bad.out;
}

struct BadInput {
    std::string name;
    std::vector<std::string> args; // "@" stands for the folder
    std::string error;
};

class AnalyzerBadInput : public AnalyzerCli, public ::testing::WithParamInterface<BadInput> {};

TEST_P(AnalyzerBadInput, ClearMessageExitTwoNothingWritten) {
    auto damaged = compile::WriteImage(test::DoorProgram({}));
    damaged[30] ^= 0xFF;
    Write("damaged.bin", damaged);
    std::ofstream(folder_.path() / "notes.zlf") << "not a program";
    const auto before = Listing(folder_.path());
    std::vector<std::string> args;
    for (const auto& arg : GetParam().args)
        args.push_back(arg.starts_with("@") ? Path(arg.substr(1)) : arg);
    const auto outcome = RunAnalyzer(args);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    std::string error = GetParam().error;
    if (const auto at = error.find('@'); at != std::string::npos)
        error.replace(at, 1, folder_.path().string() + "/");
    EXPECT_NE(outcome.err.find(error), std::string::npos) << outcome.err;
    EXPECT_EQ(Listing(folder_.path()), before);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, AnalyzerBadInput, ::testing::Values(
    BadInput{"DamagedImage", {"@damaged.bin"}, "ERROR: '@damaged.bin' is no compiled program: "},
    BadInput{"MissingImage", {"@none.bin"}, "ERROR: cannot read '@none.bin'"},
    BadInput{"UnreadableHarness", {"@door.bin", "--harness", "@notes.zlf"}, "ERROR: cannot open '@notes.zlf'"},
    BadInput{"UnknownOption", {"@door.bin", "--fast"}, "ERROR: unknown option '--fast'"}),
    [](const auto& info) { return info.param.name; });
// clang-format on

TEST(CoverageCli, ExampleProgramIsCompiledAsideAndItsFolderLeftAlone) {
    MemorySettingsStore settings;
    const test::ScratchFolder folder;
    fs::copy_file(fs::path(ZOLT_TEST_DATA_DIR) / "../../examples/harness.zlf",
                  folder.path() / "harness.zlf");
    const auto before = Listing(folder.path());
    std::ostringstream out, err;
    const int status = CoverageCommand(
        {(folder.path() / "harness.zlf").string(), "--classes", "open,component", "--json"},
        ZOLT_BIN_DIR, settings, {}, out, err);
    EXPECT_EQ(status, 0) << err.str();
    EXPECT_NE(out.str().find("{\"class\": \"component\", \"faults\": 2,"), std::string::npos)
        << out.str();
    EXPECT_EQ(Listing(folder.path()), before);
    std::ostringstream out2, err2;
    EXPECT_EQ(CoverageCommand({"x.zlf", "--classes", "open,bent"}, ZOLT_BIN_DIR, settings, {}, out2,
                              err2),
              2);
    EXPECT_EQ(err2.str(),
              "ERROR: unknown fault class 'bent' (open, short, soft, swap, component, switch)\n");
}

TEST_F(AnalyzerCli, CoveragePdfGetsTheTableAndTheUndetectedFaults) {
    MemorySettingsStore settings;
    Write("scan.bin", compile::WriteImage(test::DoorProgram({{"CONTINUITY", "MAIN"}})));
    std::vector<reports::Report> printed;
    std::string printedTo;
    const PdfWriter writer = [&](const std::vector<reports::Report>& made, const std::string& path,
                                 std::string&) {
        printed = made;
        printedTo = path;
        return true;
    };
    const std::string bin = Path("scan.bin");
    std::ostringstream out, err;
    EXPECT_EQ(CoverageCommand({bin, "--classes", "component", "--pdf", "cov.pdf"}, ZOLT_BIN_DIR,
                              settings, writer, out, err),
              0)
        << err.str();
    EXPECT_EQ(printedTo, "cov.pdf");
    EXPECT_EQ(out.str(), "");
    ASSERT_EQ(printed.size(), 2u);
    EXPECT_EQ(printed[0].header.heading, "Fault Coverage");
    EXPECT_EQ(printed[0].rows,
              (std::vector<std::vector<std::string>>{{"component", "2", "0", "2", "0.0%"},
                                                     {"all", "2", "0", "2", "0.0%"}}));
    EXPECT_EQ(printed[1].rows.front(),
              (std::vector<std::string>{"component", "missing:D1",
                                        "MAIN is scanned, but not for components"}));

    const PdfWriter failing = [](const std::vector<reports::Report>&, const std::string&,
                                 std::string& error) {
        error = "disk full";
        return false;
    };
    std::ostringstream out2, err2;
    EXPECT_EQ(
        CoverageCommand({bin, "--pdf", "cov.pdf"}, ZOLT_BIN_DIR, settings, failing, out2, err2), 1);
    EXPECT_EQ(err2.str(), "ERROR: cannot write 'cov.pdf': disk full\n");
    std::ostringstream out3, err3;
    EXPECT_EQ(CoverageCommand({bin, "--pdf", "cov.pdf"}, ZOLT_BIN_DIR, settings, {}, out3, err3),
              2);
}

} // namespace
} // namespace zolt::cli
