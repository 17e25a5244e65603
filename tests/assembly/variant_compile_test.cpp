// The Compile command on a family program: which road it takes, and the
// variant pre-compiled on a copy and compiled without touching the family.
#include "assembly/variant_compile.h"
#include "compile/compile_driver.h"
#include "file/program_file.h"
#include "grv_project.h"
#include "support/scratch_folder.h"

#include <filesystem>
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
    const std::vector<std::string> refusal = {
        "Attempting to Compile GRV Data: door family.grv currently contains GRV data. Please run "
        "GRV Test Compile first before compiling further."};
    EXPECT_EQ(p.boxes(),
              GetParam().route == CompileRoute::Refused ? refusal : std::vector<std::string>{});
    EXPECT_EQ(p.state.project().SelectedFeatureCodes, GetParam().selectedAfter);
}

// The ticked codes as they read now: their netlists follow the edits since.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Compile, ChooseRoute, testing::Values(
    RouteCase{"PlainProgram", {}, {}, CompileRoute::AsItStands, {}},
    RouteCase{"FamilyWithoutVariant", {"Base,MAIN"}, {}, CompileRoute::Refused, {}},
    RouteCase{"VariantCodeSinceDeleted", {"Base,MAIN"}, {"Gone,MAIN"}, CompileRoute::Refused, {"Gone,MAIN"}},
    RouteCase{"VariantAsTheCodesReadNow", {"Base,MAIN,DOOR", "Lamp,LAMP"}, {"Base,MAIN"}, CompileRoute::Variant, {"Base,MAIN,DOOR"}}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

Names netlistsOf(const Project& project) {
    Names names;
    project.NetlistCollection.ForEach(
        [&](const std::unique_ptr<CNetList>& netlist) { names.push_back(netlist->NetlistName); });
    return names;
}

std::unique_ptr<VariantProgram> variantOf(test::GrvProject& p, const Names& codes,
                                          test::RecordingProgress& progress) {
    return VariantProgram::Of(p.state.project(), Variant{codes}, p.ui, progress);
}

TEST(VariantCompile, PreCompilesACopy) {
    Family p;
    test::RecordingProgress progress;
    const auto variant = variantOf(p, {"Base,DOOR", "Comfort,SEAT"}, progress);
    ASSERT_TRUE(variant);
    EXPECT_EQ(variant->Request({}).note, "Feature Codes: Base, Comfort");
    // The variant: the block once for DOOR, SEAT combined into MAIN, SPARE left out.
    const Project& program = variant->project();
    EXPECT_EQ(program.MainNetlist->GetTable(table::Sequence)->gridarray().Rows(), 3);
    EXPECT_EQ(program.MainNetlist->GetTable(table::Sequence)->gridarray().Text(1, 2), "DOOR");
    EXPECT_EQ(program.MainNetlist->GetTable(table::Sequence)->gridarray().Text(2, 2), "800");
    EXPECT_EQ(netlistsOf(program), (Names{"MAIN", "DOOR"}));
    EXPECT_EQ(program.MainNetlist->GetTable(table::Wire)->gridarray().Text(1, 0), "S1");
    EXPECT_EQ(variant->Request({}).manualNetlists.size(), 4u);
    EXPECT_TRUE(progress.hidden);
    EXPECT_EQ(netlistsOf(p.state.project()), (Names{"MAIN", "DOOR", "SEAT", "SPARE"}));
}

TEST(VariantCompile, FailedPreCompileLeavesTheFamilyAsItWas) {
    Family p;
    p.setSequence("PBEGIN 1; TEST PATTERN");
    const auto before = p.mainTables();
    test::RecordingProgress progress;
    EXPECT_FALSE(variantOf(p, {"Base,DOOR", "Comfort,SEAT"}, progress));
    EXPECT_EQ(p.mainTables(), before);
    EXPECT_EQ(netlistsOf(p.state.project()), (Names{"MAIN", "DOOR", "SEAT", "SPARE"}));
    ASSERT_EQ(p.boxTexts(),
              (Names{"All 'PBEGIN' sequence commands do not have a matching 'PEND' command."}));
    // Headless, the same refusal comes back with the result.
    const compile::CompileResult refused =
        CompileVariant(p.state.project(), Variant{{"Base,DOOR", "Comfort,SEAT"}}, {}, progress);
    EXPECT_EQ(refused.end, compile::CompileEnd::Aborted);
    ASSERT_TRUE(refused.box);
    EXPECT_EQ(refused.box->text, p.ui.ShownBoxes()[0].text);
}

TEST(VariantCompile, WithoutPatternBlocksEveryNetlistStays) {
    Family p;
    p.setSequence("TEST SPARE; END");
    test::RecordingProgress progress;
    const auto variant = variantOf(p, {"Base,DOOR"}, progress);
    ASSERT_TRUE(variant);
    EXPECT_EQ(netlistsOf(variant->project()), (Names{"MAIN", "DOOR", "SEAT", "SPARE"}));
    EXPECT_EQ(variant->project().MainNetlist->GetTable(table::Sequence)->gridarray().Text(1, 2),
              "SPARE");
}

// The user's compile of a variant: a failed one leaves the family byte for byte
// as it was, a finished one changes only the compile's own facts, and the Edit
// menu shows no step for either.
TEST(VariantCompile, CompileLeavesTheFamilyAndItsHistoryAlone) {
    Family p;
    p.setSequence("PBEGIN 1; TEST PATTERN; PEND; END");
    p.state.params().SetVal(param::SeqBuild, Value(std::int32_t{1}));
    for (const char* wire : {"D2", "D1"})
        test::AppendRow(*p.state.project().FindNetlist("DOOR"), table::Wire,
                        {Value(wire), Value(), Value()});
    // A component of no known device: MAIN, compiled last, fails the run.
    test::AppendRow(*p.state.project().MainNetlist, table::Component, {Value("WIDGET")});
    p.state.project().SelectedFeatureCodes = {"Base,DOOR"};
    p.state.project().NeedsCompile = true;
    const test::ScratchFolder scratch;
    const std::string folder = scratch.path().string();
    p.state.document().CurrentFile = folder + "/family.grv";
    p.state.document().FileOpen = true;
    p.state.history().Reset();
    p.state.SetDirty(false);
    // The family as its file would hold it, without the image the compile made.
    const auto bytes = [&p, &folder] {
        std::filesystem::remove(folder + "/family.bin");
        return file::ProgramFileBytes(p.state, folder + "/family.grv");
    };
    const SystemClock clock;
    auto compileVariant = [&] {
        test::RecordingProgress progress;
        const auto variant = variantOf(p, p.state.project().SelectedFeatureCodes, progress);
        compile::CompileDriver driver(p.state, clock);
        const compile::CompileEnd end =
            driver.Run(variant->project(), variant->Request(driver.Request()));
        EXPECT_FALSE(driver.Result().wireOrders.empty());
        return end;
    };

    const auto before = bytes();
    ASSERT_TRUE(before);
    EXPECT_EQ(compileVariant(), compile::CompileEnd::Failed);
    EXPECT_EQ(bytes(), before);
    EXPECT_FALSE(p.state.IsDirty());
    EXPECT_FALSE(p.state.history().Record());

    Table& components = *p.state.project().MainNetlist->GetTable(table::Component);
    components.ReDimGrid(0, components.gridColumns());
    p.state.history().Record();
    const auto edited = bytes();
    EXPECT_EQ(compileVariant(), compile::CompileEnd::Finished);
    EXPECT_FALSE(p.state.history().Record());
    EXPECT_TRUE(p.state.IsDirty());
    EXPECT_FALSE(p.state.project().NeedsCompile);
    p.state.project().NeedsCompile = true;
    p.state.project().CompiledDate = 0.0;
    EXPECT_EQ(bytes(), edited);
}

} // namespace
} // namespace zolt
