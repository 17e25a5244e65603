// Every example, and every build of the family example, compiles clean and
// passes the harness it designs: a program that fails its own good harness
// would be a wrong example.

#include "analyzer/run.h"
#include "cli/assembly_commands.h"
#include "cli/compiled_image.h"
#include "core/headless/memory_settings_store.h"
#include "e2e/cli_runner.h"

#include <gtest/gtest.h>
#include <sstream>

namespace zolt::analyzer {
namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(ZOLT_TEST_DATA_DIR) / "../../examples";

struct ExampleBuild {
    std::string name;
    std::string file;
    std::vector<std::string> features; // empty: a plain program
};

class Examples : public ::testing::TestWithParam<ExampleBuild> {};

TEST_P(Examples, PassesItsDesignedHarness) {
    const test::ScratchFolder folder;
    const ExampleBuild& build = GetParam();
    MemorySettingsStore settings;
    fs::path program = folder.path() / build.file;
    fs::copy_file(kExamples / build.file, program);
    if (!build.features.empty()) {
        std::ostringstream out, err;
        const fs::path variant = folder.path() / "variant.zlf";
        ASSERT_EQ(cli::GrvCompileProgramFile(program.string(), build.features, variant.string(),
                                             false, ZOLT_BIN_DIR, settings, out, err),
                  0)
            << out.str() << err.str();
        program = variant;
    }
    std::ostringstream err;
    const auto image = cli::CompiledImage(program.string(), ZOLT_BIN_DIR, settings, err);
    ASSERT_TRUE(image) << err.str();
    const PointNames names({&*image});
    const RunResult run = analyzer::Run(*image, DesignedHarness(*image), names, {});
    std::string errors;
    for (const auto& e : run.errors)
        errors += e.text + "\n";
    EXPECT_TRUE(run.Passed()) << run.endText << "\n" << errors;
}

// The family builds a door with either hand or none, with or without the lamp.
INSTANTIATE_TEST_SUITE_P(
    Analyzer, Examples,
    ::testing::Values(
        ExampleBuild{"Harness", "harness.zlf", {}},
        ExampleBuild{"FamilyBase", "family.grv", {"Base"}},
        ExampleBuild{"FamilyLamp", "family.grv", {"Base", "Lamp"}},
        ExampleBuild{"FamilyLeftHand", "family.grv", {"Base", "LeftHand"}},
        ExampleBuild{"FamilyRightHand", "family.grv", {"Base", "RightHand"}},
        ExampleBuild{"FamilyLeftHandLamp", "family.grv", {"Base", "LeftHand", "Lamp"}},
        ExampleBuild{"FamilyRightHandLamp", "family.grv", {"Base", "RightHand", "Lamp"}}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace zolt::analyzer
