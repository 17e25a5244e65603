// A measure tells how far it got and stops when told to, counting only what it judged.
#include "analyzer/coverage.h"
#include "analyzer_images.h"

#include <gtest/gtest.h>

namespace zolt::analyzer {
namespace {

TEST(CoverageProgress, IsToldEachFaultAndStopsWhenTheUserCancels) {
    const auto image = test::DoorProgram({{"TEST", "MAIN"}, {"END", ""}});
    const PointNames names({&image});
    const Harness harness = DesignedHarness(image);
    const std::vector<FaultClass> all(std::begin(kFaultClasses), std::end(kFaultClasses));
    std::vector<int> told;
    int total = 0;
    const Coverage whole =
        MeasureCoverage(image, harness, names, all, {}, [&](int judged, int faults) {
            told.push_back(judged);
            total = faults;
            return true;
        });
    EXPECT_FALSE(whole.cancelled);
    EXPECT_EQ(total, whole.faults);
    EXPECT_EQ(static_cast<int>(told.size()), whole.faults);
    ASSERT_GT(whole.faults, 3);

    const Coverage stopped =
        MeasureCoverage(image, harness, names, all, {}, [](int judged, int) { return judged < 3; });
    EXPECT_TRUE(stopped.cancelled);
    EXPECT_EQ(stopped.faults, 3);
}

} // namespace
} // namespace zolt::analyzer
