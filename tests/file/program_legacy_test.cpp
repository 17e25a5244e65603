#include "file/program_file.h"
#include "file/record_layouts.h"
#include "fixture/fixture_table.h"
#include "program_builders.h"

#include <gtest/gtest.h>

namespace zolt::test {
namespace {

TEST(ProgramFileLegacy, VersionOneWiresGroupsAndColorsAreReadAndWrittenAsVersionTwo) {
    FileBuilder f;
    f.frame(150, 1, 0).frame(30, 1, 2).put(5, "W1", "RED/WHT", 6, "W2", "---");
    f.frame(70, 1, 1).put(7, "G1", "J1", "3", "BLK/---");
    f.frame(40, 1, 2).put(1, std::int16_t{1}, "RED/WHT", 2, std::int16_t{2}, "RED");
    f.frame(140, 1, 0).end();

    Session s;
    ASSERT_EQ(file::ReadProgramBytes(s.state, f.bytes(), "old.zlf"), Answer::Yes);
    const Grid& wires = s.grid(table::Wire);
    EXPECT_EQ(wires.Text(1, 1), "RED");
    EXPECT_EQ(wires.Text(1, 2), "WHT");
    EXPECT_EQ(wires.At(1, 3), Value(std::int32_t{5}));
    EXPECT_EQ(wires.Text(2, 1), "(none)");
    EXPECT_EQ(wires.Text(2, 2), "");
    const Grid& groups = s.grid(table::Groups);
    EXPECT_EQ(groups.Text(1, 2), "3");
    EXPECT_EQ(groups.Text(1, 3), "BLK");
    EXPECT_EQ(groups.Text(1, 4), "(none)");
    // Each color text of the old records becomes one color, once.
    const Grid& colors = s.grid(table::Color);
    ASSERT_EQ(colors.Rows(), 2);
    EXPECT_EQ(colors.Text(1, 1), "RED");
    EXPECT_EQ(colors.Text(2, 1), "WHT");
    EXPECT_EQ(colors.Text(2, 0), "2");

    const std::string again = file::ProgramFileBytes(s.state, "old.zlf").value();
    file::ByteReader in(again);
    file::ReadHeader(in);
    file::ReadFrame(in);
    const file::Frame wireFrame = file::ReadFrame(in);
    EXPECT_EQ(wireFrame.RecordType, 30);
    EXPECT_EQ(wireFrame.RecordVersion, 2);
}

TEST(ProgramFileLegacy, OldNetlistInformationAsksToConvert) {
    for (const Answer answer : {Answer::Ok, Answer::Cancel}) {
        FileBuilder f("1");
        f.frame(150, 1, 0).frame(215, 1, 1, file::kProjectWideIndex).put("N1", "Loom", "ST2");
        f.frame(140, 1, 0).end();
        Session s;
        s.ui.Queue(answer);
        ASSERT_EQ(file::ReadProgramBytes(s.state, f.bytes(), "old.grv"), Answer::Yes);
        const CNetlistInfo* info = s.state.project().Assembly.NetlistInfoList.Item("N1");
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->Station, "ST2");
        EXPECT_EQ(info->Pattern, 0);
        EXPECT_TRUE(s.state.IsDirty());
        ASSERT_EQ(s.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(s.ui.ShownBoxes()[0].caption, "Old Version Detected...");
        EXPECT_EQ(s.state.document().ConvertToGRV, answer == Answer::Ok);
    }
}

TEST(ProgramFileLegacy, MacroPatternStepsBecomePatternCommands) {
    struct Case {
        const char* path;
        bool asks;
    };
    for (const Case c : {Case{"old.zlf", true}, Case{"old.zlt", true}, Case{"old.grv", false}}) {
        SCOPED_TRACE(c.path);
        FileBuilder f;
        f.frame(150, 1, 0).frame(130, 1, 3);
        const char* steps[][2] = {{"mbegin ", "MACRO1"}, {"CONT", "X"}, {"MEND", ""}};
        for (int i = 0; i < 3; ++i)
            f.put(i + 1, static_cast<std::int16_t>(i + 1), steps[i][0], steps[i][1], "", "");
        f.frame(140, 1, 0).end();
        Session s;
        s.ui.Queue(Answer::Ok);
        ASSERT_EQ(file::ReadProgramBytes(s.state, f.bytes(), c.path), Answer::Yes);
        const Grid& seq = s.grid(table::Sequence);
        EXPECT_EQ(seq.Text(1, 1), "PBEGIN");
        EXPECT_EQ(seq.Text(1, 2), "MAIN");
        EXPECT_EQ(seq.Text(2, 1), "CONT");
        EXPECT_EQ(seq.Text(3, 1), "PEND");
        EXPECT_TRUE(s.state.IsDirty());
        EXPECT_EQ(s.ui.ShownBoxes().size(), c.asks ? 1u : 0u);
        EXPECT_EQ(s.state.document().ConvertToGRV, c.asks);
    }
}

TEST(ProgramFileLegacy, AFixtureMainRecordStoresNoRow) {
    FileBuilder f;
    f.frame(150, 1, 0).frame(10, 1, 2).put(0, " MAIN ", "", "", 1, "0-001", "J1", "1");
    f.frame(140, 1, 0).end();
    Session s;
    ASSERT_EQ(file::ReadProgramBytes(s.state, f.bytes(), "x.zlf"), Answer::Yes);
    const Grid& fixture = s.grid(table::Fixture);
    ASSERT_EQ(fixture.Rows(), 1);
    EXPECT_EQ(fixture.Text(1, 0), "0-001");
    EXPECT_TRUE(s.state.project().MainNetlist->TableAs<CFixtureTable>(table::Fixture)->gridMain());
}

TEST(ProgramFileLegacy, ALinkedFixtureIsWrittenAsOneMainRecord) {
    Session s;
    AddNetlist(s.state, "N1");
    auto* fixture = s.state.project().FindNetlist("N1")->TableAs<CFixtureTable>(table::Fixture);
    fixture->setGridMain(true);
    s.addRow(table::Fixture, {"0-001", "J1", "1"}, "N1");
    const std::string bytes = file::ProgramFileBytes(s.state, "x.zlf").value();
    FileBuilder expected;
    expected.frame(150, 1, 1).put(std::int16_t{1}, std::int16_t{0}, "N1");
    expected.frame(10, 1, 1, 1).put(0, "MAIN", "", "").frame(140, 1, 0).end();
    EXPECT_EQ(bytes, expected.bytes());
    Session back;
    ASSERT_EQ(file::ReadProgramBytes(back.state, bytes, "x.zlf"), Answer::Yes);
    EXPECT_TRUE(
        back.state.project().FindNetlist("N1")->TableAs<CFixtureTable>(table::Fixture)->gridMain());
    EXPECT_EQ(back.grid(table::Fixture, "N1").Rows(), 0);
}

TEST(ProgramFileLegacy, AClassicVersionTextComparesAsText) {
    // "10" sorts before "2": such a file holds the old netlist information form.
    FileBuilder f("10");
    f.frame(150, 1, 0).frame(215, 1, 1, file::kProjectWideIndex).put("N1", "", "");
    f.frame(140, 1, 0).end();
    Session s;
    ASSERT_EQ(file::ReadProgramBytes(s.state, f.bytes(), "x.grv"), Answer::Yes);
    EXPECT_EQ(s.state.project().Assembly.NetlistInfoList.Count(), 1u);
}

} // namespace
} // namespace zolt::test
