#include "assembly/netlist_combining.h"
#include "grv_project.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using Names = std::vector<std::string>;

struct Combining : test::GrvProject {
    Combining() {
        for (const char* n : {"DOOR", "SEAT", "HAND"}) {
            addNetlist(n);
            addPin(n, "(none)");
            addPin(n, std::string(n) + "-1");
        }
        AddNetlist(state, "MANUAL NETLISTS");
        state.project()
            .FindNetlist("MANUAL NETLISTS")
            ->GetTable(table::Code)
            ->AddRecord_v1(1, {Value("HAND"), Value("CONT"), Value(""), Value("")});
    }
    void addPin(const std::string& netlist, const std::string& connector) {
        Table* pins = state.project().FindNetlist(netlist)->GetTable(table::Pin);
        pins->AddRecord_v1(
            pins->gridarray().Rows() + 1,
            {Value(connector), Value("1"), Value("W1"), Value(std::int32_t{0}),
             Value(std::int32_t{state.project().FindNetlist(netlist)->netlistIndex})});
    }
    Names mainPins() {
        return test::ColumnTexts(state.project().MainNetlist->GetTable(table::Pin)->gridarray(), 0);
    }
    static CNetlistInfo info(const std::string& name, bool partOfMain) {
        return CNetlistInfo{name, "", "S", 1, true, partOfMain};
    }
    test::RecordingProgress progress;
};

TEST(CombineNetlists, PartOfMainNetlistsAppendInAssemblyOrder) {
    Combining p;
    p.setSequence("PBEGIN 1; PEND; PBEGIN 2; PEND");
    const std::vector<CNetlistInfo> ordered{
        Combining::info("SEAT", true), Combining::info("MAIN", true), Combining::info("HAND", true),
        Combining::info("DOOR", true)};
    ASSERT_TRUE(CombineNetlists(p.state, ordered, p.progress));
    // "(none)" pins stay out; the manual netlist has no tables to give.
    EXPECT_EQ(p.mainPins(), (Names{"SEAT-1", "DOOR-1"}));
    const Grid& pins = p.state.project().MainNetlist->GetTable(table::Pin)->gridarray();
    EXPECT_EQ(pins.Text(1, 4), "0"); // the rows now belong to MAIN
    EXPECT_EQ(p.state.project().FindNetlist("SEAT")->GetTable(table::Pin)->gridarray().Rows(), 2);
    EXPECT_EQ(p.progress.captions.back(), "Combining Splice Tables ... DOOR");
}

// Only a part-of-MAIN netlist in a first block, of pattern 1, joins MAIN.
TEST(CombineNetlists, OtherNetlistsAndBlocksStayOut) {
    Combining p;
    p.setSequence("PBEGIN 1; PEND");
    ASSERT_TRUE(CombineNetlists(p.state, {Combining::info("DOOR", false)}, p.progress));
    EXPECT_TRUE(p.mainPins().empty());
    p.setSequence("PBEGIN 2; PEND; PBEGIN 1; PEND");
    ASSERT_TRUE(CombineNetlists(p.state, {Combining::info("DOOR", true)}, p.progress));
    EXPECT_TRUE(p.mainPins().empty());
    p.setSequence("BEEP");
    ASSERT_TRUE(CombineNetlists(p.state, {Combining::info("DOOR", true)}, p.progress));
    EXPECT_TRUE(p.mainPins().empty());
}

// clang-format off
struct PatternCase { const char* name; const char* parameter; bool valid; const char* shown; };
// clang-format on

class PatternNumber : public ::testing::TestWithParam<PatternCase> {};

TEST_P(PatternNumber, CheckedBeforeAnyTable) {
    Combining p;
    p.setSequence(std::string("BEEP; PBEGIN 1; PEND; PBEGIN ") + GetParam().parameter);
    EXPECT_EQ(CombineNetlists(p.state, {Combining::info("DOOR", true)}, p.progress),
              GetParam().valid);
    if (GetParam().valid) {
        EXPECT_TRUE(p.ui.ShownBoxes().empty());
        return;
    }
    EXPECT_TRUE(p.mainPins().empty());
    EXPECT_EQ(p.boxTexts(), (Names{std::string("Invalid Pattern number: ") + GetParam().shown +
                                   "\nLine Number: 4\nSequence Command: PBEGIN\nParameter: " +
                                   GetParam().parameter}));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(CombineNetlists, PatternNumber, ::testing::Values(
    PatternCase{"Empty", "", false, "0"},
    PatternCase{"Zero", "0", false, "0"},
    PatternCase{"Over50", "51", false, "51"},
    PatternCase{"Fifty", "50", true, ""}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(ManualNetlists, NamedByTheCodeTableOfTheManualNetlist) {
    Combining p;
    EXPECT_TRUE(IsManualNetlist(p.state, "HAND"));
    EXPECT_FALSE(IsManualNetlist(p.state, "hand"));
    EXPECT_TRUE(HasManualNetlists(p.state));
    test::GrvProject plain;
    EXPECT_FALSE(IsManualNetlist(plain.state, "HAND"));
    EXPECT_FALSE(HasManualNetlists(plain.state));
}

} // namespace
} // namespace zolt
