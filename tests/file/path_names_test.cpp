#include "file/path_names.h"
#include "program_session.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

using namespace zolt::file;

TEST(PathNames, SplitPathsIntoTheirParts) {
    struct Case {
        std::string path, directory, name, stripped, extension, program;
    };
    // Sixteen characters, not bytes: no half of a character is left.
    const std::string sixteen = "\u00c4\u00d6\u00dc\u00e4\u00f6\u00fc\u00df\u00e9\u00e8\u00ea\u00e0"
                                "\u00e2\u00ee\u00f4\u00fb\u00e7";
    const std::string seventeen = sixteen + "\u00f1";
    // clang-format off
    const Case cases[] = {
        {"/home/ann/Loom A.zlf", "/home/ann", "Loom A.zlf", "/home/ann/Loom A", "zlf", "Loom"},
        {"/x.grv", "/", "x.grv", "/x", "grv", "x"},
        {"plain", "", "plain", "plain", "", "plain"},
        {"/dir.v2/noext", "/dir.v2", "noext", "/dir.v2/noext", "", "noext"},
        {"/a/ABCDEFGHIJKLMNOPQRST.zlt", "/a", "ABCDEFGHIJKLMNOPQRST.zlt", "/a/ABCDEFGHIJKLMNOPQRST", "zlt", "ABCDEFGHIJKLMNOP"},
        {"/a/b.c.d", "/a", "b.c.d", "/a/b.c", "d", "b.c"},
        {"/a/" + seventeen + ".zlf", "/a", seventeen + ".zlf", "/a/" + seventeen, "zlf", sixteen},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path);
        EXPECT_EQ(DirectoryOf(c.path), c.directory);
        EXPECT_EQ(FileNameOf(c.path), c.name);
        EXPECT_EQ(StripExtension(c.path), c.stripped);
        EXPECT_EQ(ExtensionOf(c.path), c.extension);
        EXPECT_EQ(ProgramName(c.path), c.program);
    }
}

TEST(PathNames, TellNewAndTemplateFiles) {
    const std::pair<const char*, bool> cases[] = {
        {"/t/Harness.zlt", true},  {"/t/Harness.ZLT", true}, {"/t/x.~pt", true},
        {"/t/new.zlf", true},      {"/t/New.grv", true},     {"/t/Newer.zlf", false},
        {"/t/Harness.zlf", false}, {"/t/zlt", false},
    };
    for (const auto& [path, expected] : cases)
        EXPECT_EQ(IsNewOrTemplate(path), expected) << path;
}

TEST(PathNames, RefuseInvalidNames) {
    // clang-format off
    const std::pair<std::string, bool> cases[] = {
        {"/a/good name.zlf", false}, {"/a/bad?.zlf", true}, {"/a/bad*.zlf", true},
        {"/a/bad\"q.zlf", true}, {"/a/b<c.zlf", true}, {"/a/b|c.zlf", true}, {"/a/b:c.zlf", true},
        {"/a/" + std::string(215, 'x') + ".zlf", false}, {"/a/" + std::string(216, 'x') + ".zlf", true}};
    // clang-format on
    for (const auto& [path, expected] : cases)
        EXPECT_EQ(IsInvalidFileName(path), expected) << path;
}

TEST(PathNames, LongFilenameFollowsTheFileSystem) {
    ScratchFolder dir;
    std::filesystem::create_directories(dir.path() / "Sub");
    std::ofstream(dir.path() / "Sub" / "Prog.zlf") << "x";
    const std::string root = dir.path().string();
    EXPECT_EQ(GetLongFilename(root + "/Sub/Prog.zlf"), root + "/Sub/Prog.zlf");
    EXPECT_EQ(GetLongFilename(root + "//Sub/./Prog.zlf"), root + "/Sub/./Prog.zlf");
    EXPECT_EQ(GetLongFilename(root + "/Sub/Missing.zlf"), "");
    EXPECT_EQ(GetLongFilename(root + "/Nope/Prog.zlf"), "");
    EXPECT_EQ(GetLongFilename(""), "");
}

} // namespace
} // namespace zolt::test
