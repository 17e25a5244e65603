// Runs examples/family.zcmd in a scratch copy of the examples folder, holds the
// program it writes to the committed examples/family.grv byte for byte, and
// runs the README's test compile on it.
//
// After a deliberate change, refresh the file from the repository root with
//   build/release/bin/zolt-cli batch examples/family.zcmd
#include "cli_runner.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

namespace fs = std::filesystem;

using zolt::test::kRepository;
const fs::path kScript = fs::path("examples") / "family.zcmd";
const fs::path kProgram = fs::path("examples") / "family.grv";

class FamilyExample : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_FALSE(scratch_.path().empty()) << "no scratch folder";
        fs::create_directories(scratch_.path() / "examples");
        fs::copy_file(kRepository / kScript, scratch_.path() / kScript);
        script_ = zolt::test::RunBatch(scratch_.path(), kScript.string());
    }

    zolt::test::ScratchFolder scratch_;
    zolt::test::CliRun script_;
};

TEST_F(FamilyExample, WritesTheCommittedProgramFile) {
    ASSERT_EQ(script_.status, 0) << script_.out;
    // The only boxes are the fixture generation's question, once per netlist.
    std::istringstream lines(script_.out);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("BOX", 0) == 0) {
            EXPECT_NE(line.find("Auto Generate the Fixture Table?"), std::string::npos) << line;
        }
    }
    EXPECT_EQ(zolt::test::ReadFile(scratch_.path() / kProgram),
              zolt::test::ReadFile(kRepository / kProgram))
        << "examples/family.grv differs from what examples/family.zcmd writes";
}

TEST_F(FamilyExample, TestCompileOfTheReadme) {
    ASSERT_EQ(script_.status, 0) << script_.out;
    const zolt::test::CliRun compile = zolt::test::RunCli(
        scratch_.path(), "grv-compile examples/family.grv --features Base,LeftHand,Lamp "
                         "-o LH.zlf");
    ASSERT_EQ(compile.status, 0) << compile.out;
    const zolt::test::CliRun dump = zolt::test::RunCli(scratch_.path(), "dump LH.zlf");
    ASSERT_EQ(dump.status, 0) << dump.out;
    for (const char* row :
         {R"(["2", "KMESSAGE", "800", "Doors: Fit left-hand lock pair")",
          R"(["3", "CONTINUITY", "DOOR_LH")", R"(["4", "BER", "16")",
          R"(["9", "CONTINUITY", "LAMP")", R"(["11", "SHORT", "MAIN")",
          R"(["13", "LITE", "DOOR_LH")", R"(["17", "END")", R"("featureCodes": [])"})
        EXPECT_NE(dump.out.find(row), std::string::npos) << row << "\n" << dump.out;
    EXPECT_EQ(dump.out.find(R"(["18")"), std::string::npos);
}

} // namespace
