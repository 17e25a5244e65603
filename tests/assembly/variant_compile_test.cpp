// The Compile command on a family program: which road it takes, and the
// variant pre-compiled for one compile and put back afterwards.
#include "assembly/variant_compile.h"
#include "grv_project.h"

#include <gtest/gtest.h>
#include <map>

namespace zolt {
namespace {

using Names = std::vector<std::string>;

struct Family : test::GrvProject {
    Family() {
        place("DOOR", "Doors", 1, "Fit door");
        place("SEAT", "Seats", 2, "Fit seat", true);
        place("SPARE", "Doors", 1, "Fit spare");
        state.project().Assembly.FeatureCodeData = {"Base,DOOR", "Comfort,SEAT", "Spare,SPARE"};
        setSequence("PBEGIN 1; TEST PATTERN; KMESSAGE 1; PEND; END");
        addMessage(1, "Next |S");
        test::AppendRow(*state.project().FindNetlist("SEAT"), table::Wire,
                        {Value("S1"), Value(), Value()});
    }
    test::RecordingProgress progress;
    // Each table of MAIN by name, its cells as text.
    std::map<std::string, std::vector<std::string>> mainTables() const {
        std::map<std::string, std::vector<std::string>> tables;
        for (const TableId id : kAllTables) {
            const Grid& grid = state.project().MainNetlist->GetTable(id)->gridarray();
            auto& cells = tables[std::to_string(ToInt(id))];
            for (int r = 1; r <= grid.Rows(); ++r)
                for (int c = 0; c < grid.Columns(); ++c)
                    cells.push_back(grid.At(r, c).text());
        }
        return tables;
    }
};

// clang-format off
struct RouteCase { const char* name; Names featureCodes; Names selected; CompileRoute route; Names selectedAfter; };
// clang-format on

class ChooseRoute : public testing::TestWithParam<RouteCase> {};

TEST_P(ChooseRoute, FollowsTheAssemblyDataAndTheChosenVariant) {
    test::GrvProject p;
    p.state.document().CurrentFile = "/tmp/door family.grv";
    p.state.project().Assembly.FeatureCodeData = GetParam().featureCodes;
    p.state.project().SelectedFeatureCodes = GetParam().selected;
    EXPECT_EQ(ChooseCompileRoute(p.state), GetParam().route);
    if (GetParam().route == CompileRoute::Refused) {
        ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Attempting to Compile GRV Data");
        EXPECT_EQ(p.ui.ShownBoxes()[0].text,
                  "door family.grv currently contains GRV data. Please run GRV Test Compile "
                  "first before compiling further.");
    } else {
        EXPECT_TRUE(p.ui.ShownBoxes().empty());
    }
    EXPECT_EQ(p.state.project().SelectedFeatureCodes, GetParam().selectedAfter);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Compile, ChooseRoute, testing::Values(
    RouteCase{"PlainProgram", {}, {}, CompileRoute::AsItStands, {}},
    RouteCase{"FamilyWithoutVariant", {"Base,MAIN"}, {}, CompileRoute::Refused, {}},
    RouteCase{"VariantCodeSinceDeleted", {"Base,MAIN"}, {"Gone,MAIN"}, CompileRoute::Refused, {"Gone,MAIN"}},
    // The ticked codes as they read now: their netlists follow the edits since.
    RouteCase{"VariantAsTheCodesReadNow", {"Base,MAIN,DOOR", "Lamp,LAMP"}, {"Base,MAIN"}, CompileRoute::Variant, {"Base,MAIN,DOOR"}}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

Names netlistsOf(const ProgramState& state) {
    Names names;
    state.project().NetlistCollection.ForEach(
        [&](const std::unique_ptr<CNetList>& netlist) { names.push_back(netlist->NetlistName); });
    return names;
}

std::string sequenceText(const ProgramState& state, int row, int column) {
    return state.project().MainNetlist->GetTable(table::Sequence)->gridarray().Text(row, column);
}

TEST(VariantCompile, PreCompilesACopyAndLeavesTheFamilyAlone) {
    Family p;
    p.state.document().FileOpen = true;
    p.state.History().Reset();
    p.state.project().SelectedFeatureCodes = {"Base,DOOR", "Comfort,SEAT"};
    p.state.SetDirty(false);
    const auto before = p.mainTables();
    VariantCompile variant(p.state, p.progress);
    ASSERT_TRUE(variant.Prepare());
    EXPECT_EQ(variant.Description(), "Feature Codes: Base, Comfort");
    // The variant: the block once for DOOR, SEAT combined into MAIN, SPARE left out.
    const ProgramState& program = variant.Program();
    EXPECT_EQ(program.project().MainNetlist->GetTable(table::Sequence)->gridarray().Rows(), 3);
    EXPECT_EQ(sequenceText(program, 1, 2), "DOOR");
    EXPECT_EQ(sequenceText(program, 2, 2), "800");
    EXPECT_EQ(netlistsOf(program), (Names{"MAIN", "DOOR"}));
    EXPECT_EQ(program.project().MainNetlist->GetTable(table::Wire)->gridarray().Text(1, 0), "S1");
    EXPECT_EQ(variant.Netlists().size(), 4u);
    EXPECT_TRUE(p.progress.hidden);

    variant.KeepCompileResults(); // nothing compiled: nothing to keep
    EXPECT_EQ(p.mainTables(), before);
    EXPECT_EQ(netlistsOf(p.state), (Names{"MAIN", "DOOR", "SEAT", "SPARE"}));
    EXPECT_FALSE(p.state.IsDirty());
    EXPECT_FALSE(p.state.History().Record()); // no undo step
}

TEST(VariantCompile, FailedPreCompileLeavesTheFamilyAsItWas) {
    Family p;
    p.state.project().SelectedFeatureCodes = {"Base,DOOR", "Comfort,SEAT"};
    p.setSequence("PBEGIN 1; TEST PATTERN");
    const auto before = p.mainTables();
    VariantCompile variant(p.state, p.progress);
    EXPECT_FALSE(variant.Prepare());
    EXPECT_EQ(p.mainTables(), before);
    EXPECT_EQ(netlistsOf(p.state), (Names{"MAIN", "DOOR", "SEAT", "SPARE"}));
    EXPECT_EQ(p.boxTexts(),
              (Names{"All 'PBEGIN' sequence commands do not have a matching 'PEND' command."}));
}

TEST(VariantCompile, WithoutPatternBlocksEveryNetlistStays) {
    Family p;
    p.state.project().SelectedFeatureCodes = {"Base,DOOR"};
    p.setSequence("TEST SPARE; END");
    VariantCompile variant(p.state, p.progress);
    ASSERT_TRUE(variant.Prepare());
    EXPECT_EQ(netlistsOf(variant.Program()), (Names{"MAIN", "DOOR", "SEAT", "SPARE"}));
    EXPECT_EQ(sequenceText(variant.Program(), 1, 2), "SPARE");
}

} // namespace
} // namespace zolt
