#include "file/data_directory.h"
#include "program_session.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

namespace fs = std::filesystem;

struct Layout {
    const char* name;
    const char* executable;            // folder of the executable, under the root
    std::vector<const char*> withData; // folders holding ZOLT.DEV
    const char* expected;
};

class DataDirectory : public ::testing::TestWithParam<Layout> {};

TEST_P(DataDirectory, IsTheNearestFolderHoldingTheData) {
    const Layout& layout = GetParam();
    const ScratchFolder root;
    fs::create_directories(root.path() / layout.executable);
    for (const char* folder : layout.withData) {
        fs::create_directories(root.path() / folder);
        std::ofstream(root.path() / folder / file::kDataMarker) << "x";
    }
    const std::string executable = (root.path() / layout.executable).string();
    EXPECT_EQ(fs::path(file::DataDirectoryOf(executable)), root.path() / layout.expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Layouts, DataDirectory, ::testing::Values(
    Layout{"BuildTree", "build/bin", {"build/bin"}, "build/bin"},
    Layout{"Installed", "usr/bin", {"usr/share/zolt"}, "usr/share/zolt"},
    Layout{"PortableCopyWinsOverInstalled", "usr/bin", {"usr/bin", "usr/share/zolt"}, "usr/bin"},
    Layout{"MacBundle", "ZOLT.app/Contents/MacOS", {"ZOLT.app/Contents/Resources"}, "ZOLT.app/Contents/Resources"},
    Layout{"NoneFallsBackBesideTheExecutable", "opt/bin", {}, "opt/bin"},
    Layout{"TrailingSeparator", "usr/bin/", {"usr/share/zolt"}, "usr/share/zolt"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::test
