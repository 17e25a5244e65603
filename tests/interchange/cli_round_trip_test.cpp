// zolt-cli's export and import wired end to end: the harness exported as a
// WireViz drawing and imported again joins MAIN's cavities as before (every
// netlist's joins, by both kinds of drawing, are RoundTripTest's).
#include "compare/connections.h"
#include "e2e/cli_runner.h"
#include "file/program_file.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

const std::filesystem::path kExample =
    std::filesystem::path(ZOLT_TEST_DATA_DIR) / ".." / ".." / "examples" / "harness.zlf";

// MAIN's nets of two cavities or more, by their cavities' names.
std::set<std::set<std::string>> joinedNets(const std::filesystem::path& program) {
    const auto loaded = file::LoadProgramFile(program.string(), ZOLT_BIN_DIR);
    EXPECT_TRUE(loaded.ok()) << loaded.error;
    std::set<std::set<std::string>> nets;
    if (!loaded.ok())
        return nets;
    const compare::Connections connections = compare::ConnectionsOf(*loaded.project->MainNetlist);
    for (const auto& net : connections.nets) {
        std::set<std::string> names;
        for (const int cavity : net)
            names.insert(connections.cavities[static_cast<std::size_t>(cavity)]);
        if (names.size() > 1)
            nets.insert(names);
    }
    return nets;
}

TEST(CliRoundTrip, TheExportedHarnessImportsToTheSameJoins) {
    ScratchFolder folder;
    const auto& at = folder.path();
    std::filesystem::copy_file(kExample, at / "harness.zlf");
    const CliRun exported = RunCli(at, "export harness.zlf --wireviz main.yml 2>&1");
    ASSERT_EQ(exported.status, 0) << exported.out;
    // The diode is told, not lost in silence.
    EXPECT_NE(exported.out.find("NOTE DIODE 1 between wires W8 and W9"), std::string::npos);
    const CliRun imported = RunCli(at, "import main.yml main.zlf 2>&1");
    ASSERT_EQ(imported.status, 0) << imported.out;
    const auto before = joinedNets(at / "harness.zlf");
    ASSERT_FALSE(before.empty());
    EXPECT_EQ(joinedNets(at / "main.zlf"), before);
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
    const CliRun run = RunCli(folder.path(), std::string(GetParam().arguments) + " 2>&1");
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_NE(run.out.find(GetParam().message), std::string::npos) << run.out;
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "out.zlf"));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CliMisuseTest,
    ::testing::Values(Misuse{"NoSuchNetlist", "export harness.zlf --netlist REAR --fromto out.csv",
                             2, "harness.zlf: no netlist REAR"},
                      Misuse{"BothKinds", "export harness.zlf --wireviz a.yml --fromto b.csv", 2,
                             "usage: zolt-cli export"}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::test
