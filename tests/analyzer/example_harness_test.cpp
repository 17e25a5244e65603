// The example, run on the harness it designs, passes: a program that fails its
// own good harness would be a wrong example.

#include "analyzer/run.h"
#include "cli/compiled_image.h"
#include "e2e/cli_runner.h"

#include <gtest/gtest.h>
#include <sstream>

namespace zolt::analyzer {
namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(ZOLT_TEST_DATA_DIR) / "../../examples";

void ExpectPasses(const std::string& program, const std::string& what) {
    std::ostringstream err;
    const auto image = cli::CompiledImage(program, ZOLT_BIN_DIR, err);
    ASSERT_TRUE(image) << what << ": " << err.str();
    const PointNames names({&*image});
    const RunResult run = Run(*image, DesignedHarness(*image), names, {});
    std::string errors;
    for (const auto& e : run.errors)
        errors += e.text + "\n";
    EXPECT_TRUE(run.Passed()) << what << ": " << run.endText << "\n" << errors;
}

TEST(Examples, HarnessPassesItsDesignedHarness) {
    const test::ScratchFolder folder;
    fs::copy_file(kExamples / "harness.zlf", folder.path() / "harness.zlf");
    ExpectPasses((folder.path() / "harness.zlf").string(), "harness.zlf");
}

} // namespace
} // namespace zolt::analyzer
