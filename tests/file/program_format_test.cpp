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
    EXPECT_TRUE(formats.Find("b.Grv")->IsFamily());
    EXPECT_FALSE(formats.Find("b.zlt")->IsFamily());
    EXPECT_EQ(formats.Find("a.grv/b"), nullptr);
    EXPECT_FALSE(formats.Find("b.old")->CanWrite());
    EXPECT_EQ(formats.Find("b.zip"), nullptr);
    EXPECT_EQ(formats.Find("zlf"), nullptr);
}

TEST(LoadProgram, AsksNothingAndWritesNoFileUntilOpened) {
    FileBuilder f;
    f.frame(150, 1, 0).frame(130, 1, 1).put(1, std::int16_t{1}, "MBEGIN", "MACRO1", "", "");
    f.frame(140, 1, 1).put("Author", std::int16_t{1}, "Ann", std::int16_t{0}).frame(999, 1, 1);
    f.out.Raw("IMAGE");
    ScratchFolder dir;
    const std::string path = dir.file("old.zlf");

    file::LoadedProgram loaded = file::LoadProgram(f.bytes(), path);
    ASSERT_TRUE(loaded.ok());
    EXPECT_FALSE(std::filesystem::exists(dir.file("old.bin")));
    EXPECT_TRUE(loaded.facts.oldAssemblyData);
    EXPECT_TRUE(loaded.facts.converted);
    EXPECT_EQ(loaded.facts.image, "IMAGE");
    // The project is whole on its own: its file settings and rows travel with it.
    EXPECT_EQ(loaded.project->FileParameters.Item("author")->Val.text(), "Ann");

    Session opened;
    opened.ui.Queue(Answer::Ok);
    ASSERT_EQ(file::OpenLoadedProgram(opened.state, std::move(loaded), path), Answer::Yes);
    EXPECT_EQ(opened.ui.ShownBoxes().at(0).caption, "Old Version Detected...");
    EXPECT_TRUE(opened.state.document().ConvertToGRV);
    EXPECT_TRUE(opened.state.IsDirty());
    EXPECT_EQ(opened.state.params().Text(param::Author), "Ann");
    EXPECT_TRUE(std::filesystem::exists(dir.file("old.bin")));
    // The adopted tables are the open program's: an edit reaches its history.
    opened.state.history().Reset();
    opened.grid(table::Sequence).Set(1, 3, Value("X"));
    EXPECT_TRUE(opened.state.history().Record());
}

} // namespace
} // namespace zolt::test
