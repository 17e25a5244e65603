// The example's MAIN against its KiCad netlist: the diode is checked by kind
// and by the nets of its sides, as fitted, reversed, or moved.
#include "compare/drawing_check.h"
#include "core/project.h"
#include "data_files.h"
#include "file/program_file.h"
#include "interchange/drawing_connections.h"
#include "interchange/kicad_reader.h"

#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

const std::string kExample = std::string(ZOLT_TEST_DATA_DIR) + "/../../examples/harness.zlf";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

struct PartCase {
    const char* name;
    std::string netlist;
    std::vector<std::string> differences;
};

const std::string kDoor = test::ReadDataFile("door_main.net");
const std::string kAnode =
    "\n      (node (ref \"D1\") (pin \"2\") (pinfunction \"A\") (pintype \"passive\"))";

class DrawingPartsTest : public ::testing::TestWithParam<PartCase> {};

TEST_P(DrawingPartsTest, ChecksTheComponentsByKindAndSides) {
    const auto loaded = file::LoadProgramFile(kExample, ZOLT_BIN_DIR);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    const DrawingRead read = ReadKicadNetlist(GetParam().netlist, {});
    ASSERT_TRUE(read.ok()) << read.error;
    const auto main = loaded.project->MainNetlist;
    std::vector<std::string> found;
    for (const auto& d :
         compare::CheckAgainstDrawing(*main, *main, FromToListOf(read.drawing, true)))
        found.push_back(d.text);
    EXPECT_EQ(found, GetParam().differences);
}

INSTANTIATE_TEST_SUITE_P(
    Diode, DrawingPartsTest,
    ::testing::Values(
        PartCase{"AsFitted", kDoor, {}},
        PartCase{"Reversed",
                 replaced(replaced(kDoor, "(pinfunction \"A\")", "(pinfunction \"X\")"),
                          "(pinfunction \"K\")", "(pinfunction \"A\")"),
                 {"DIODE D1 reversed: side 1 on J1-6 here, on J2-6 in the drawing"}},
        PartCase{
            "Moved",
            replaced(replaced(kDoor, kAnode, ""), "(net (code \"7\") (name \"/LAMP\")",
                     "(net (code \"7\") (name \"/LAMP\")" + kAnode),
            {"missing DIODE D1 between J1-8 and J2-6", "extra DIODE 1 between J1-6 and J2-6"}}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::interchange
