#include "file/file_bytes.h"
#include "file/program_file.h"
#include "program_builders.h"
#include "support/golden_file.h"
#include "tables/message_table.h"

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

// FillProject's program written (tests/data/file/every_table.grv), read back and
// written again (every_table_read.grv: the sequence's descriptions filled in). By
// hand, what the bytes cannot show: the reader's own cells and the netlists' columns.
TEST(ProgramFile, ReadingRestoresTheCellsOfEveryTable) {
    ScratchFolder dir;
    Session first;
    FillProject(first);
    ASSERT_EQ(file::WriteProgramFile(first.state, dir.file("p.grv")), Answer::Yes);
    ExpectGolden(bytesOf(dir.file("p.grv")), "file/every_table.grv");
    // The saved array itself was changed by the save.
    EXPECT_EQ(first.grid(table::Wire).At(1, 2), Value(std::int16_t{0}));
    Session s;
    ASSERT_EQ(file::ReadProgramFile(s.state, dir.file("p.grv")), Answer::Yes);
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("q.grv")), Answer::Yes);
    ExpectGolden(bytesOf(dir.file("q.grv")), "file/every_table_read.grv");

    EXPECT_EQ(s.state.project().FindNetlist("MANUAL NETLISTS")->NetlistType, 1);
    EXPECT_TRUE(s.frame.TabBarVisible());
    EXPECT_EQ(s.state.project().ActiveNetlist, s.state.project().MainNetlist);
    // "(none)" comes back as 0; the frame's index lands in the Netlist column.
    const Grid& wires = s.grid(table::Wire, "HARNESS");
    EXPECT_EQ(wires.Text(1, 2) + wires.Text(2, 1), "00");
    EXPECT_EQ(wires.At(1, 4), Value(std::int32_t{1}));
    EXPECT_EQ(s.grid(table::Pin, "HARNESS").At(2, 4), Value(std::int32_t{1}));
    EXPECT_EQ(s.grid(table::Groups, "HARNESS").At(1, 5), Value(std::int32_t{1}));
    const auto* messages = s.state.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    ASSERT_EQ(messages->PLabelData().Rows(), 20);
    EXPECT_EQ(messages->PLabelData().Text(2, 1), "PART NO");
    // The header's needs-compile flag is read back.
    s.state.project().NeedsCompile = true;
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("r.grv")), Answer::Yes);
    Session t;
    ASSERT_EQ(file::ReadProgramFile(t.state, dir.file("r.grv")), Answer::Yes);
    EXPECT_TRUE(t.state.project().NeedsCompile);
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
    s.state.params().SetVal(param::Threshold, Value(2.0)); // equal to its default
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
