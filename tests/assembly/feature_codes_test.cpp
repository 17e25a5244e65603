#include "assembly/feature_codes.h"
#include "core/table_kinds.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using Lines = std::vector<std::string>;

TEST(FeatureCodes, LinesRoundTripAndABareNameHasNoNetlists) {
    const Lines lines{"Base,MAIN,DOOR", "Sunroof", "Tow,HITCH"};
    FeatureCodes codes = FeatureCodes::FromLines(lines);
    EXPECT_EQ(codes.ToLines(), lines);
    EXPECT_TRUE(codes.Item("Sunroof")->Netlists.empty());
    EXPECT_TRUE(ChosenNetlistsOf({"Sunroof"}).empty());
}

TEST(FeatureCodes, RenamedCodeMovesToTheEnd) {
    FeatureCodes codes = FeatureCodes::FromLines({"A,N1", "B", "C,N2,N3"});
    test::TestProgram program;
    EXPECT_EQ(EditFeatureCodeName(codes, "A", "Alpha", program.ui), NameEdit::Renamed);
    EXPECT_EQ(codes.ToLines(), (Lines{"B", "C,N2,N3", "Alpha,N1"}));
}

TEST(FeatureCodes, NameEditsRefuseEmptyKeepUnchangedAndStopDuplicates) {
    FeatureCodes codes = FeatureCodes::FromLines({"A", "B"});
    test::TestProgram program;
    EXPECT_EQ(EditFeatureCodeName(codes, "A", "", program.ui), NameEdit::Refused);
    EXPECT_EQ(EditFeatureCodeName(codes, "A", "A", program.ui), NameEdit::Unchanged);
    EXPECT_TRUE(program.ui.ShownBoxes().empty());
    EXPECT_EQ(EditFeatureCodeName(codes, "A", "B", program.ui), NameEdit::Violation);
    EXPECT_EQ(program.boxes(), (Lines{"Feature Code Naming Violation: Each Feature Code must "
                                      "have a unique name."}));
    // A comma would end the name early in the stored line.
    EXPECT_EQ(EditFeatureCodeName(codes, "A", "Tow,Hitch", program.ui), NameEdit::Violation);
    EXPECT_EQ(program.ui.ShownBoxes().back().text, "A Feature Code name cannot hold a comma.");
    // Names compare with case.
    EXPECT_EQ(EditFeatureCodeName(codes, "A", "b", program.ui), NameEdit::Renamed);
    EXPECT_EQ(codes.ToLines(), (Lines{"B", "b"}));
}

// clang-format off
struct DefaultNameCase { const char* name; Lines existing; std::string expected; };
// clang-format on

class DefaultName : public ::testing::TestWithParam<DefaultNameCase> {};

TEST_P(DefaultName, OnePassOverTheRows) {
    EXPECT_EQ(FeatureCodes::FromLines(GetParam().existing).DefaultName(), GetParam().expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(FeatureCodes, DefaultName, ::testing::Values(
    DefaultNameCase{"Empty", {}, "FeatureCode1"},
    DefaultNameCase{"CountPlusOne", {"X", "Y"}, "FeatureCode3"},
    DefaultNameCase{"RaisedByAMatch", {"FeatureCode3", "Y"}, "FeatureCode4"},
    // The earlier row equal to the raised number is not seen again.
    DefaultNameCase{"OnePassOnly", {"FeatureCode5", "FeatureCode4", "Z"}, "FeatureCode5"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(FeatureCodes, SharedNetlistIsChosenOnce) {
    EXPECT_EQ(ChosenNetlistsOf({"A,DOOR,SEAT", "B,SEAT,ROOF"}), (Lines{"DOOR", "SEAT", "ROOF"}));
}

TEST(FeatureCodes, SelectionKeepsTickOrderAndMatchesNamesExactly) {
    const Lines data{"A,N1", "B,N2", "C"};
    EXPECT_EQ(SelectFeatureCodeLines(data, {"C", "A", "a"}), (Lines{"C", "A,N1"}));
}

TEST(FeatureCodes, ImportTicksKnownNamesAndSkipsTheRest) {
    const Lines names{"Base", "Tow", "Roof"};
    EXPECT_EQ(ImportFeatureCodeList("Tow, Nothing,\"Base\"\nroof\n", names),
              (Lines{"Tow", "Base"}));
    EXPECT_TRUE(ImportFeatureCodeList("x,y,z", names).empty());
}

TEST(FeatureCodes, CandidatesLeaveOutTheManualNetlistButListItsCodeRows) {
    test::TestProgram program;
    program.addNetlist("DOOR");
    AddNetlist(program.state, "MANUAL NETLISTS");
    Table* codes = program.state.project().FindNetlist("MANUAL NETLISTS")->GetTable(table::Code);
    int row = 0;
    for (const char* name : {"HAND1", "HAND1", "HAND2", "HAND1"})
        codes->AddRecord_v1(++row, {Value(name), Value("CONT"), Value(""), Value("")});
    EXPECT_EQ(CandidateNetlists(program.state), (Lines{"MAIN", "DOOR", "HAND1", "HAND2", "HAND1"}));
}

} // namespace
} // namespace zolt
