#include "file/file_bytes.h"
#include "file/program_file.h"
#include "program_builders.h"
#include "tables/message_table.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

std::string bytesOf(const std::string& path) {
    return file::ReadFileBytes(path, 1 << 26).value_or("<unreadable>");
}

void writeBytes(const std::string& path, const std::string& bytes) {
    ASSERT_TRUE(file::WriteFileBytes(path, bytes));
}

std::string imageBytes() {
    std::string image;
    for (int i = 0; i < 256; ++i)
        image.push_back(static_cast<char>(i));
    return image;
}

TEST(ProgramFile, WritesTheWorkedExampleToTheByte) {
    Session s;
    s.state.project().NeedsCompile = true;
    s.addRow(table::Connector, {"J1", Value(std::int16_t{2}), Value(), Value(), Value(), "",
                                Value(std::int32_t{9}), Value(std::int32_t{0})});
    ScratchFolder dir;
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("example.zlf")), Answer::Yes);
    EXPECT_EQ(bytesOf(dir.file("example.zlf")),
              bytesOf(std::string(ZOLT_TEST_DATA_DIR) + "/file/worked_example.zlf"));
    EXPECT_TRUE(s.ui.Events().empty());
}

TEST(ProgramFile, ReadsTheWorkedExample) {
    Session s;
    ASSERT_EQ(file::ReadProgramFile(s.state,
                                    std::string(ZOLT_TEST_DATA_DIR) + "/file/worked_example.zlf"),
              Answer::Yes);
    const Grid& connectors = s.grid(table::Connector);
    ASSERT_EQ(connectors.Rows(), 1);
    EXPECT_EQ(connectors.Text(1, 0), "J1");
    EXPECT_EQ(connectors.At(1, 1), Value(std::int16_t{2}));
    EXPECT_EQ(connectors.At(1, 6), Value(std::int32_t{1}));
    EXPECT_EQ(s.state.project().NetlistCollection.Count(), 1u);
    EXPECT_TRUE(s.state.project().NeedsCompile);
    EXPECT_FALSE(s.state.IsDirty());
}

// Every block of a large program, written, read back into a new session and
// written again, gives the same bytes; the image travels through `<base>.bin`.
// (The first file is made from rows typed in: the sequence table derives its
// descriptions and typed blanks are trimmed when they are read, so the written
// files are compared from the second on.)
TEST(ProgramFile, EveryBlockRoundTripsByteForByte) {
    for (const std::string ext : {"grv", "zlf", "zlt"}) {
        SCOPED_TRACE(ext);
        ScratchFolder dir;
        Session first;
        FillProject(first, 4000);
        first.state.project().CompiledDate = 46000.5;
        first.state.document().CurrentFile = dir.file("a." + ext);
        writeBytes(dir.file("a.bin"), imageBytes());
        ASSERT_EQ(file::WriteProgramFile(first.state, dir.file("a." + ext)), Answer::Yes);

        std::string previous;
        for (const std::string name : {"a", "b", "c"}) {
            Session next;
            file::ReadFacts facts;
            std::filesystem::remove(dir.file(name + ".bin"));
            ASSERT_EQ(file::ReadProgramFile(next.state, dir.file(name + "." + ext), &facts),
                      Answer::Yes);
            EXPECT_EQ(bytesOf(dir.file(name + ".bin")), imageBytes());
            EXPECT_EQ(facts.imageSize, 256u);
            EXPECT_EQ(next.state.project().CompiledDate, 46000.5);
            if (name == "a") {
                ASSERT_GT(bytesOf(dir.file("a." + ext)).size(), 1'000'000u);
                EXPECT_EQ(next.grid(table::Pin, "HARNESS").Rows(), 4002);
                EXPECT_EQ(next.grid(table::Pin, "HARNESS").Text(9, 2), "W7");
                EXPECT_EQ(next.grid(table::Connector, "HARNESS").Text(2, 5), "A");
                EXPECT_EQ(next.grid(table::Wire, "HARNESS").Text(3, 2), "WH\xC3\x84T");
            }
            next.state.document().CurrentFile = dir.file(name + "." + ext);
            const std::string target = name == "a" ? "b" : name == "b" ? "c" : "d";
            ASSERT_EQ(file::WriteProgramFile(next.state, dir.file(target + "." + ext)),
                      Answer::Yes);
            EXPECT_TRUE(next.ui.ShownBoxes().empty());
            const std::string written = bytesOf(dir.file(target + "." + ext));
            if (name != "a") {
                EXPECT_TRUE(written == previous) << "second and later writes differ";
            }
            previous = written;
        }
    }
}

TEST(ProgramFile, ReadingRestoresTheCellsOfEveryTable) {
    ScratchFolder dir;
    Session first;
    FillProject(first);
    ASSERT_EQ(file::WriteProgramFile(first.state, dir.file("p.grv")), Answer::Yes);
    Session s;
    ASSERT_EQ(file::ReadProgramFile(s.state, dir.file("p.grv")), Answer::Yes);

    ASSERT_EQ(s.state.project().NetlistCollection.Count(), 3u);
    EXPECT_EQ(s.state.project().FindNetlist("MANUAL NETLISTS")->NetlistType, 1);
    EXPECT_TRUE(s.frame.TabBarVisible());
    // Wires: "(none)" comes back as 0, sequence and netlist in the hidden columns.
    const Grid& wires = s.grid(table::Wire, "HARNESS");
    EXPECT_EQ(wires.Text(1, 2), "0");
    EXPECT_EQ(wires.Text(2, 1), "0");
    EXPECT_EQ(wires.At(1, 3), Value(std::int32_t{7}));
    EXPECT_EQ(wires.At(1, 4), Value(std::int32_t{1}));
    // The saved array itself was changed by the save.
    EXPECT_EQ(first.grid(table::Wire).At(1, 2), Value(std::int16_t{0}));
    // Pins: the Long lands in Sequence, the frame's index in Netlist.
    const Grid& pins = s.grid(table::Pin, "HARNESS");
    EXPECT_EQ(pins.At(2, 3), Value(std::int32_t{1}));
    EXPECT_EQ(pins.At(2, 4), Value(std::int32_t{1}));
    EXPECT_EQ(s.grid(table::Groups, "HARNESS").Text(1, 4), "0");
    EXPECT_EQ(s.grid(table::Groups, "HARNESS").At(1, 5), Value(std::int32_t{1}));
    const Grid& components = s.grid(table::Component, "HARNESS");
    EXPECT_EQ(components.At(1, 4), Value(std::int16_t{32767}));
    const Grid& params = s.grid(table::TestParameter);
    EXPECT_EQ(params.At(1, 2), Value(-2.25));
    EXPECT_EQ(params.At(1, 3), Value(1e-3));
    EXPECT_EQ(s.grid(table::Sequence).Rows(), 3);
    EXPECT_EQ(s.grid(table::Sequence).Text(2, 1), "CONT");
    EXPECT_EQ(s.grid(table::Message).Text(1, 1), "INSERT H\xC3\x84RNESS");
    EXPECT_EQ(s.grid(table::Code).Text(1, 0), "HARNESS");
    const Grid& colors = s.grid(table::Color);
    EXPECT_EQ(colors.Text(1, 1), "RED");
    EXPECT_EQ(colors.Text(1, 2), "WHT");
    EXPECT_EQ(colors.Text(2, 2), "");
    const auto* messages = s.state.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    ASSERT_EQ(messages->PLabelData().Rows(), 20);
    EXPECT_EQ(messages->PLabelData().Text(1, 1), "");
    EXPECT_EQ(messages->PLabelData().Text(2, 1), "PART NO");
    EXPECT_EQ(messages->PLabel2Data().Text(1, 0), "100");
    EXPECT_EQ(s.state.Params().Text(param::PartNumber), "PN-1");
    EXPECT_EQ(s.state.Params().Number(param::TestVoltage), 12.0);
    EXPECT_EQ(s.state.project().Assembly.FeatureCodeData,
              first.state.project().Assembly.FeatureCodeData);
    const CNetlistInfo* info = s.state.project().Assembly.NetlistInfoList.Item("HARNESS");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->Station, "ST1");
    EXPECT_EQ(info->Pattern, 3);
    EXPECT_TRUE(info->Ordered);
    EXPECT_TRUE(s.state.project().Assembly.NetlistInfoList.Item("MANUAL NETLISTS")->PartOfMain);
    EXPECT_FALSE(s.state.project().Assembly.AssemblyOrderList.Item(2)->Flag);
    EXPECT_EQ(s.state.project().ActiveNetlist, s.state.project().MainNetlist);
}

TEST(ProgramFile, PatternStepsAndAssemblyListsAreKeptOnlyInGrvFiles) {
    ScratchFolder dir;
    Session first;
    FillProject(first);
    ASSERT_EQ(file::WriteProgramFile(first.state, dir.file("p.zlf")), Answer::Yes);
    Session s;
    ASSERT_EQ(file::ReadProgramFile(s.state, dir.file("p.zlf")), Answer::Yes);
    ASSERT_EQ(s.grid(table::Sequence).Rows(), 1);
    EXPECT_EQ(s.grid(table::Sequence).Text(1, 1), "CONT");
    EXPECT_TRUE(s.state.project().Assembly.FeatureCodeData.empty());
    EXPECT_EQ(s.state.project().Assembly.NetlistInfoList.Count(), 0u);
}

TEST(ProgramFile, EmptyTablesAndDefaultParametersLeaveNoRecord) {
    Session s;
    ScratchFolder dir;
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("e.grv")), Answer::Yes);
    // header 23 + netlist frame 12 + parameter frame 12 + end frame 12
    EXPECT_EQ(bytesOf(dir.file("e.grv")).size(), 59u);
    s.state.Params().SetVal(param::Threshold, Value(2.0)); // equal to its default
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("e.grv")), Answer::Yes);
    EXPECT_EQ(bytesOf(dir.file("e.grv")).size(), 59u);
}

TEST(ProgramFile, SaveAsCarriesTheImageOfTheCurrentDocument) {
    ScratchFolder dir;
    Session s;
    s.state.document().CurrentFile = dir.file("old.zlf");
    writeBytes(dir.file("old.bin"), "IMAGE");
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("new.zlf")), Answer::Yes);
    const std::string bytes = bytesOf(dir.file("new.zlf"));
    EXPECT_EQ(bytes.substr(bytes.size() - 17),
              std::string("\xE7\x03\x01\x00\x00\x00\x01\x00\x00\x00\x00\x00", 12) + "IMAGE");
    Session back;
    ASSERT_EQ(file::ReadProgramFile(back.state, dir.file("new.zlf")), Answer::Yes);
    EXPECT_EQ(bytesOf(dir.file("new.bin")), "IMAGE");
}

} // namespace
} // namespace zolt::test
