#include "assembly/grv_checks.h"
#include "grv_project.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

struct CheckCase {
    const char* name;
    bool featureCodes;
    bool orderComplete; // false: no order at all
    bool openInfo;      // an entry not yet ordered
    int score;
    const char* message; // nullptr: passes silently
};

class GrvDataCheck : public ::testing::TestWithParam<CheckCase> {};

TEST_P(GrvDataCheck, SumAndMessage) {
    const CheckCase& c = GetParam();
    test::GrvProject p;
    p.addNetlist("DOOR");
    if (c.featureCodes)
        p.state.project().Assembly.FeatureCodeData.push_back("Base,DOOR");
    if (c.orderComplete)
        p.state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{"DOOR", true}, "DOOR");
    if (c.openInfo)
        p.state.project().Assembly.NetlistInfoList.Add(
            CNetlistInfo{"DOOR", "", "", 0, false, false}, "DOOR");
    EXPECT_EQ(ScoreGRVData(p.state), c.score);
    EXPECT_EQ(CheckGRVData(p.state), c.message == nullptr);
    if (c.message) {
        ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(p.ui.ShownBoxes()[0].text, c.message);
        EXPECT_EQ(p.ui.ShownBoxes()[0].icon, Icon::Warning);
    } else {
        EXPECT_TRUE(p.ui.ShownBoxes().empty());
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Grv, GrvDataCheck, ::testing::Values(
    CheckCase{"Complete", true, true, false, 0, nullptr},
    CheckCase{"InfoOpen", true, true, true, 1, "The order of assembly is not complete."},
    CheckCase{"NoOrder", true, false, false, 2, "The order of assembly is not complete."},
    CheckCase{"NoOrderInfoOpen", true, false, true, 3, "All GRV data not present"},
    CheckCase{"NoFeatureCodes", false, true, false, 5, "Feature Code data not present"},
    CheckCase{"OnlyOrder", false, true, true, 6, "All GRV data not present"},
    CheckCase{"NoCodesNoOrder", false, false, false, 7, "All GRV data not present"},
    // All three missing passes without a word.
    CheckCase{"AllMissing", false, false, true, 8, nullptr}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(GrvDataCheck, AnUnsettledPlaceInTheOrderCountsAsMissing) {
    test::GrvProject p;
    p.state.project().Assembly.FeatureCodeData.push_back("Base");
    p.state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{"MAIN", true}, "MAIN");
    p.state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{"DOOR", false}, "DOOR");
    EXPECT_EQ(CheckAssemblyOrder(p.state), 2);
}

} // namespace
} // namespace zolt
