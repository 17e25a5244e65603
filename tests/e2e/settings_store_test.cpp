// A ZOLT setting made in one run of zolt-cli is the next run's, whichever
// command reads it. The probe is the backup folder: every command that opens a
// program takes a legacy archive by importing it, and the import moves the
// archive into BackupFilesDirectory/DOS.
#include "cli_runner.h"
#include "import/zos_builder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using zolt::test::CliRun;
using zolt::test::RunCli;

struct SettingsCase {
    std::string name;
    std::string command; // run on DOOR.zos
};

class SettingsStore : public testing::TestWithParam<SettingsCase> {};

TEST_P(SettingsStore, ASettingOfOneRunIsUsedByTheNext) {
    const zolt::test::ScratchFolder scratch;
    const fs::path& folder = scratch.path();
    ASSERT_FALSE(folder.empty());
    fs::create_directories(folder / "kept");
    zolt::test::writeArchive((folder / "DOOR.zos").string(), zolt::test::dataMembers("DOOR"));
    std::ofstream(folder / "open.zcmd") << "open DOOR.zos\n";
    // The dialog takes OK only with every folder there.
    const std::string here = '"' + folder.string() + "\" ";
    std::ofstream(folder / "settings.zcmd")
        << "settings zolt BackupFilesDirectory \"" << (folder / "kept").string() << "\" "
        << "ProgramsDirectory " << here << "TemplatesDirectory " << here << "EJFDirectory " << here
        << "PIDDirectory " << here << '\n';
    const std::string store = "--settings '" + (folder / "zolt.ini").string() + "' ";
    const CliRun set = RunCli(folder, store + "batch settings.zcmd");
    ASSERT_EQ(set.status, 0) << set.out;

    const CliRun run = RunCli(folder, store + GetParam().command);
    EXPECT_TRUE(fs::exists(folder / "kept" / "DOS" / "DOOR.zos")) << run.out;
    EXPECT_FALSE(fs::exists(folder / "DOOR.zos")) << run.out;
}

INSTANTIATE_TEST_SUITE_P(
    Cli, SettingsStore,
    testing::Values(SettingsCase{"Batch", "batch open.zcmd"}, SettingsCase{"Dump", "dump DOOR.zos"},
                    SettingsCase{"Convert", "convert DOOR.zos DOOR.grv"},
                    SettingsCase{"Report", "report DOOR.zos --tables Pins --text"},
                    SettingsCase{"GrvCompile", "grv-compile DOOR.zos --features Base -o V.zlf"},
                    SettingsCase{"Compile", "compile DOOR.zos"},
                    SettingsCase{"Coverage", "coverage DOOR.zos"},
                    SettingsCase{"ImportZos", "import-zos DOOR.zos"},
                    SettingsCase{"Export", "export DOOR.zos --fromto door.csv"},
                    SettingsCase{"Verify", "verify DOOR.zos --against door.csv"},
                    SettingsCase{"Diff", "diff DOOR.zos DOOR.zlf"}),
    [](const auto& info) { return info.param.name; });

} // namespace
