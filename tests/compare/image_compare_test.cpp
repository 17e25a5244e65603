#include "compare/image_compare.h"
#include "compile/program_image.h"
#include "file/file_bytes.h"

#include <gtest/gtest.h>

namespace zolt::compare {
namespace {

compile::ProgramImage ExampleImage() {
    const auto bytes =
        file::ReadFileBytes(std::string(ZOLT_TEST_DATA_DIR) + "/compile/harness.bin", 1 << 20);
    EXPECT_TRUE(bytes.has_value());
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes->data());
    auto read = compile::ReadImage(std::span(data, bytes->size()));
    EXPECT_TRUE(read.image.has_value()) << read.error;
    return *read.image;
}

std::vector<std::string> Lines(const Differences& differences) {
    std::vector<std::string> lines;
    for (const auto& d : differences)
        lines.push_back(ChangeLine(d));
    return lines;
}

TEST(ImageCompare, TellsMovedTestPointInsertedLineAndPinCount) {
    const auto before = ExampleImage();
    EXPECT_TRUE(CompareImages(before, before).empty());

    auto after = before;
    auto& netlist = after.netlists.front();
    ASSERT_GE(netlist.nets.size(), 2u);
    // The last point of the first net goes to the second.
    const auto moved = netlist.nets[0].back();
    netlist.nets[0].pop_back();
    netlist.nets[1].push_back(moved);
    netlist.connectors.front().pins += 2;
    after.sequence.insert(after.sequence.begin() + 1, {"CONTINUITY", "LAMP"});

    const auto lines = Lines(CompareImages(before, after));
    ASSERT_EQ(lines.size(), 3u) << testing::PrintToString(lines);
    EXPECT_NE(lines[0].find(" now joins "), std::string::npos) << lines[0];
    EXPECT_NE(lines[1].find(netlist.connectors.front().name + " now " +
                            std::to_string(netlist.connectors.front().pins) + " pins"),
              std::string::npos)
        << lines[1];
    EXPECT_EQ(lines[2], "sequence: +2 CONTINUITY LAMP");
}

} // namespace
} // namespace zolt::compare
