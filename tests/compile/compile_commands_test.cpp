// The warning of the Download command and the Edit Labels command.
#include "compile/compile_commands.h"
#include "compile_project.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

TEST(CompileCommand, DownloadWarnsWhenTheDataChangedSinceTheCompile) {
    CompileProject p;
    EXPECT_TRUE(compile::MayDownload(p.state));
    EXPECT_TRUE(p.ui.ShownBoxes().empty());
    p.state.project().NeedsCompile = true;
    EXPECT_TRUE(compile::MayDownload(p.state));
    p.ui.Queue(Answer::Cancel);
    EXPECT_FALSE(compile::MayDownload(p.state));
    ASSERT_EQ(p.ui.ShownBoxes().size(), 2u);
    EXPECT_EQ(p.ui.ShownBoxes()[0].caption, "Compiling Warning");
    EXPECT_EQ(
        p.ui.ShownBoxes()[0].text,
        "Data has been changed since last compile. Previous Compiled Data will be Downloaded.");
}

struct LabelCase {
    const char* name;
    bool set;
    bool exists;
    bool starts;
    const char* caption; // empty: no box
};

class CreateLabels : public testing::TestWithParam<LabelCase> {};

TEST_P(CreateLabels, StartsTheApplicationOrSaysWhyNot) {
    CompileProject p;
    const std::string program = (p.folder / "lk").string();
    if (GetParam().exists)
        std::ofstream(program) << "#!/bin/sh\n";
    if (GetParam().set)
        p.settings.Write(compile::kLabelSettingsSection, compile::kLabelApplicationKey, program);
    std::vector<std::string> started;
    compile::CreateLabels(p.ui, p.settings,
                          [&](const std::string& path, const std::vector<std::string>& args) {
                              started.push_back(path + " " + args.at(0));
                              return GetParam().starts;
                          });
    if (std::string(GetParam().caption).empty()) {
        EXPECT_TRUE(p.ui.ShownBoxes().empty());
    } else {
        ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(p.ui.ShownBoxes()[0].caption, GetParam().caption);
    }
    EXPECT_EQ(started.size(), GetParam().set && GetParam().exists ? 1u : 0u);
    if (!started.empty()) {
        EXPECT_EQ(started[0], program + " /LBL");
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Labels, CreateLabels, testing::Values(
    LabelCase{"NotSet", false, false, false, "Create Labels"},
    LabelCase{"NotFound", true, false, false, "Labelark Software Not Found"},
    LabelCase{"CannotStart", true, true, false, "Unable To Access Labelark Software"},
    LabelCase{"Starts", true, true, true, ""}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::test
