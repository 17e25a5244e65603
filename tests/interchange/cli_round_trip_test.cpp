// zolt-cli's import and export on the example: the harness exported as a
// WireViz drawing, imported and compiled gives the image the same nets.
#include "e2e/cli_runner.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <yaml-cpp/yaml.h>

namespace zolt::test {
namespace {

const std::filesystem::path kExample =
    std::filesystem::path(ZOLT_TEST_DATA_DIR) / ".." / ".." / "examples" / "harness.zlf";

// The nets of a netlist of `zolt-cli image`'s JSON, sorted.
std::vector<std::vector<int>> imageNets(const std::string& json, const std::string& netlist) {
    // The image JSON is YAML as well.
    const YAML::Node image = YAML::Load(json);
    std::vector<std::vector<int>> nets;
    for (const auto& n : image["netlists"])
        if (n["name"].Scalar() == netlist)
            for (const auto& net : n["nets"])
                nets.push_back(net.as<std::vector<int>>());
    std::sort(nets.begin(), nets.end());
    return nets;
}

TEST(CliRoundTrip, TheExportedHarnessCompilesToTheSameNets) {
    ScratchFolder folder;
    const auto& at = folder.path();
    std::filesystem::copy_file(kExample, at / "harness.zlf");

    const CliRun exported = RunCli(at, "export harness.zlf --wireviz main.yml 2>&1");
    ASSERT_EQ(exported.status, 0) << exported.out;
    // The diode is told, not lost in silence.
    EXPECT_NE(exported.out.find("NOTE DIODE 1 between wires W8 and W9"), std::string::npos);

    const CliRun imported = RunCli(at, "import main.yml main.zlf 2>&1");
    ASSERT_EQ(imported.status, 0) << imported.out;
    // The fixture is the test points' own: taken over from the example.
    std::ofstream(at / "fixture.zcmd") << "open main.zlf\nanswer ok\ncopy-file Fixture harness.zlf "
                                          "MAIN\nsave\n";
    const CliRun fixture = RunBatch(at, "fixture.zcmd");
    ASSERT_EQ(fixture.status, 0) << fixture.out;

    for (const char* program : {"harness.zlf", "main.zlf"}) {
        const CliRun compiled = RunCli(at, std::string("compile ") + program + " 2>&1");
        ASSERT_NE(compiled.out.find("Errors: 0"), std::string::npos) << compiled.out;
    }
    const auto before = imageNets(RunCli(at, "image harness.bin").out, "MAIN");
    const auto after = imageNets(RunCli(at, "image main.bin").out, "MAIN");
    ASSERT_FALSE(before.empty());
    EXPECT_EQ(after, before);
}

// A drawing opens wherever a program does, read with the prefixes of the
// settings file given (a hand-written list, as an editor leaves it).
TEST(CliRoundTrip, DiffAndVerifyReadADrawingWithTheSettingsPrefixes) {
    ScratchFolder folder;
    const auto& at = folder.path();
    std::ofstream(at / "k.net") << "(export (components (comp (ref K1)) (comp (ref K2)))\n"
                                   "(nets (net (code 1) (name /A) (node (ref K1) (pin 1))"
                                   " (node (ref K2) (pin 1)))\n"
                                   "(net (code 2) (name /B) (node (ref K1) (pin 2))"
                                   " (node (ref K2) (pin 2)))))\n";
    std::ofstream(at / "k.ini") << "[Drawings]\nConnectorPrefixes=K,J\n";
    std::ofstream(at / "plain.ini") << "[Drawings]\n";
    const std::string k = "--settings '" + (at / "k.ini").string() + "' ";
    const CliRun imported = RunCli(at, k + "import k.net k.zlf 2>&1");
    ASSERT_EQ(imported.status, 0) << imported.out;

    const CliRun verified = RunCli(at, k + "verify k.zlf --against k.net 2>&1");
    EXPECT_EQ(verified.status, 0) << verified.out;
    const CliRun plain =
        RunCli(at, "--settings '" + (at / "plain.ini").string() + "' verify k.zlf --against k.net");
    EXPECT_EQ(plain.status, 2) << plain.out;

    const CliRun same = RunCli(at, k + "diff k.net k.zlf 2>&1");
    EXPECT_EQ(same.status, 0) << same.out;
    EXPECT_EQ(same.out, "");
}

struct Misuse {
    const char* name;
    const char* arguments;
    int status;
    const char* message;
};

class CliMisuseTest : public ::testing::TestWithParam<Misuse> {};

TEST_P(CliMisuseTest, SaysWhatIsWrong) {
    ScratchFolder folder;
    std::filesystem::copy_file(kExample, folder.path() / "harness.zlf");
    std::ofstream(folder.path() / "bad.net") << "(export (components (comp (ref J1)))";
    const CliRun run = RunCli(folder.path(), std::string(GetParam().arguments) + " 2>&1");
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_NE(run.out.find(GetParam().message), std::string::npos) << run.out;
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "out.zlf"));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CliMisuseTest,
    ::testing::Values(
        Misuse{"UnbalancedNetlist", "import bad.net out.zlf", 1,
               "BOX \"Import Drawing\" \"bad.net, line 1: the '(' here is never closed\""},
        Misuse{"NoSuchNetlist", "export harness.zlf --netlist REAR --fromto out.csv", 2,
               "harness.zlf: no netlist REAR"},
        Misuse{"BothKinds", "export harness.zlf --wireviz a.yml --fromto b.csv", 2,
               "usage: zolt-cli export"},
        Misuse{"VerifyBrokenDrawing", "verify harness.zlf --against bad.net", 2,
               "bad.net: line 1: the '(' here is never closed"}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::test
