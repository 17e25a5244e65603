#include "file/path_names.h"
#include "file/program_file.h"
#include "file/program_format.h"
#include "program_builders.h"
#include "program_session.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

// An import-only kind, as the importers register one.
struct ReadOnlyFormat final : file::ProgramFormat {
    std::string NameFilter() const override { return "Old Files (*.old)|*.old"; }
    std::string OpenGroup() const override { return "ZOLT, ZOLT-GRV Files"; }
    int OpenRank() const override { return 20; }
    bool SupportsFile(const std::string& path) const override {
        return file::UpperExtensionOf(path) == "OLD";
    }
    file::OpenOutcome Read(ProgramState&, const std::string& path) const override {
        return {Answer::Yes, path + ".zlf"};
    }
};

TEST(ProgramFormats, OpenFilterGroupsTheKindsByRank) {
    file::ProgramFormats formats;
    file::RegisterProgramFileFormats(formats, {});
    EXPECT_EQ(formats.OpenFilter(),
              "ZOLT, ZOLT-GRV Files (*.zlf;*.grv)|*.zlf;*.grv|ZOLT Templates (*.zlt)|*.zlt");
    formats.Register(std::make_unique<ReadOnlyFormat>());
    EXPECT_EQ(formats.OpenFilter(), "ZOLT, ZOLT-GRV Files (*.zlf;*.old;*.grv)|*.zlf;*.old;*.grv|"
                                    "ZOLT Templates (*.zlt)|*.zlt");
}

TEST(ProgramFormats, FindsByExtensionInAnyCase) {
    file::ProgramFormats formats;
    file::RegisterProgramFileFormats(formats, {});
    formats.Register(std::make_unique<ReadOnlyFormat>());
    EXPECT_EQ(formats.Find("/a/b.ZLF")->NameFilter(), "ZOLT Files (*.zlf)|*.zlf");
    EXPECT_EQ(formats.Find("b.Grv")->NameFilter(), "ZOLT-GRV Files (*.grv)|*.grv");
    EXPECT_FALSE(formats.Find("b.old")->CanWrite());
    EXPECT_EQ(formats.Find("b.zip"), nullptr);
    EXPECT_EQ(formats.Find("zlf"), nullptr);
}

TEST(ProgramFormats, ParsingAsksNothingAndWritesNoFile) {
    FileBuilder f;
    f.frame(150, 1, 0).frame(130, 1, 1);
    f.out.Long(1);
    f.out.Integer(1);
    for (const char* text : {"MBEGIN", "MACRO1", "", ""})
        f.out.String(text);
    f.frame(140, 1, 0).frame(999, 1, 1);
    f.out.Raw("IMAGE");
    TempDir dir;
    const std::string path = dir.file("old.zlf");

    Session parsed;
    file::ReadFacts facts;
    ASSERT_EQ(file::ParseProgramBytes(parsed.state, f.bytes(), path, facts), Answer::Yes);
    EXPECT_TRUE(parsed.ui.ShownBoxes().empty());
    EXPECT_FALSE(std::filesystem::exists(dir.file("old.bin")));
    EXPECT_TRUE(facts.oldAssemblyData);
    EXPECT_EQ(facts.image, "IMAGE");

    parsed.ui.Queue(Answer::Ok);
    ASSERT_EQ(file::ApplyReadFacts(parsed.state, path, facts), Answer::Yes);
    EXPECT_EQ(parsed.ui.ShownBoxes().at(0).caption, "Old Version Detected...");
    EXPECT_TRUE(parsed.state.document().ConvertToGRV);
    EXPECT_TRUE(std::filesystem::exists(dir.file("old.bin")));
}

} // namespace
} // namespace zolt::test
