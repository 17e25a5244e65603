// The shipped help page of the sequence commands is the one zolt-cli makes.
#include "cli_runner.h"

#include <gtest/gtest.h>

namespace {

TEST(HelpPage, TheShippedCommandPageIsTheOneZoltCliMakes) {
    const auto run = zolt::test::RunCommand("'" ZOLT_BIN_DIR "/zolt-cli' commands --html");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(
        zolt::test::ReadFile(zolt::test::kRepository / "data" / "help" / "sequence-commands.html"),
        run.out)
        << "make it anew: zolt-cli commands --html > data/help/sequence-commands.html";
}

} // namespace
