// What the file can hold is what a project can hold: counts, refused records,
// and a save that meets the file system.
#include "file/file_bytes.h"
#include "file/program_file.h"
#include "program_builders.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFileLimits, ManyNetlistsAreReadBack) {
    ScratchFolder dir;
    Session s;
    for (int i = 1; i <= 300; ++i)
        AddNetlist(s.state, "N" + std::to_string(i));
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("many.zlf")), Answer::Yes);
    Session t;
    ASSERT_EQ(file::ReadProgramFile(t.state, dir.file("many.zlf")), Answer::Yes);
    EXPECT_EQ(t.state.project().NetlistCollection.Count(), 301u);
    ASSERT_NE(t.state.project().FindNetlist("N300"), nullptr);
    EXPECT_EQ(t.state.project().FindNetlist("N300")->netlistIndex, 300);
    EXPECT_TRUE(t.ui.ShownBoxes().empty());
}

struct RefusedCase {
    const char* name;
    int recordType;
    TableId tableIndex;
    int limit;
    std::string box;
};

class RefusedRecords : public testing::TestWithParam<RefusedCase> {};

// Records past a table's limit are read, not kept, and told in one box.
TEST_P(RefusedRecords, AreNotKeptAndToldOnce) {
    const RefusedCase& c = GetParam();
    const int count = c.limit + 5;
    FileBuilder f;
    f.frame(c.recordType, c.recordType == 40 ? 2 : 1, count);
    for (int i = 1; i <= count; ++i) {
        f.put(i, static_cast<std::int16_t>(i));
        if (c.recordType == 40)
            f.put("C" + std::to_string(i));
        else
            f.put("NOP", "", "", "");
    }
    Session s;
    ASSERT_EQ(file::ReadProgramBytes(s.state, f.end().bytes(), "x.zlf"), Answer::Yes);
    EXPECT_EQ(s.grid(c.tableIndex).Rows(), c.limit);
    EXPECT_EQ(s.boxTexts(), std::vector<std::string>{c.box});
    // What is written back holds the kept rows only.
    const auto bytes = file::ProgramFileBytes(s.state, "x.zlf");
    ASSERT_TRUE(bytes);
    Session t;
    ASSERT_EQ(file::ReadProgramBytes(t.state, *bytes, "x.zlf"), Answer::Yes);
    EXPECT_EQ(t.grid(c.tableIndex).Rows(), c.limit);
    EXPECT_TRUE(t.ui.ShownBoxes().empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(ProgramFileLimits, RefusedRecords, testing::Values(
    RefusedCase{"Colors", 40, table::Color, 128, "Maximum number of colors is 128.\nRecords:129 to 133 not added."},
    RefusedCase{"SequenceLines", 130, table::Sequence, 1024, "Maximum number of commands is 1024.\nRecords:1025 to 1029 not added."}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

// A save writes through a symbolic link to its file and keeps the file's permissions.
TEST(ProgramFileLimits, ASaveKeepsTheLinkAndThePermissions) {
    ScratchFolder dir;
    ASSERT_TRUE(file::WriteFileBytes(dir.file("real.zlf"), "OLD"));
    fs::permissions(dir.file("real.zlf"),
                    fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    fs::create_symlink("real.zlf", dir.file("link.zlf"));
    Session s;
    ASSERT_EQ(file::WriteProgramFile(s.state, dir.file("link.zlf")), Answer::Yes);
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(dir.file("link.zlf"))));
    EXPECT_NE(file::ReadFileBytes(dir.file("real.zlf"), 1 << 20).value_or("OLD"), "OLD");
    EXPECT_EQ(fs::status(dir.file("real.zlf")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()), 2);
}

} // namespace
} // namespace zolt::test
