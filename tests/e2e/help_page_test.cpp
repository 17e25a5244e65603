// The shipped help page of the sequence commands is the one zolt-cli makes.
#include "cli_runner.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using zolt::test::ReadFile;
using zolt::test::RunCommand;

const fs::path kPage = zolt::test::kRepository / "data" / "help" / "sequence-commands.html";

std::string cli(const std::string& arguments) {
    const auto run = RunCommand("'" ZOLT_BIN_DIR "/zolt-cli' " + arguments);
    EXPECT_EQ(run.status, 0) << run.out;
    return run.out;
}

TEST(HelpPage, TheShippedCommandPageIsTheOneZoltCliMakes) {
    EXPECT_EQ(ReadFile(kPage), cli("commands --html"))
        << "make it anew: zolt-cli commands --html > data/help/sequence-commands.html";
}

} // namespace
