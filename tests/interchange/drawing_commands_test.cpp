// File > Import Drawing and File > Export Drawing, answered through the
// scripted Ui as a user at the desktop would answer them.
#include "cli/program_files.h"
#include "core/netlist.h"
#include "core/program_state.h"
#include "interchange/drawing_commands.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

using TextAnswer = ScriptedUi::TextAnswer;

const std::string kExample = std::string(ZOLT_TEST_DATA_DIR) + "/../../examples/harness.zlf";

class DrawingCommandsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(cli::OpenProgram(program_.state, kExample, ZOLT_BIN_DIR), Answer::Yes);
        program_.ui.ClearEvents();
    }

    test::TestProgram program_;
    test::ScratchFolder scratch_;
    const std::filesystem::path& folder_ = scratch_.path();
};

TEST_F(DrawingCommandsTest, ImportTheDrawingAsANamedNetlist) {
    const auto path = (folder_ / "rear.csv").string();
    std::ofstream(path) << "J9,1,J8,1,R1,BLK\nJ9,2,J8,2,R2\n";
    program_.ui.Queue(TextAnswer{path});
    program_.ui.Queue(TextAnswer{"rear door"});
    ASSERT_EQ(ImportDrawingCommand(program_.state), Answer::Yes);
    const CNetList* netlist = program_.state.project().FindNetlist("REARDOOR");
    ASSERT_NE(netlist, nullptr);
    EXPECT_EQ(netlist->GetTable(table::Pin)->gridarray().Rows(), 4);
}

struct ExportCase {
    const char* name;
    const char* file;
    const char* firstLine; // of the file written; empty when none is
    const char* box;       // the last box's text starts so
};

class ExportCommandTest : public DrawingCommandsTest,
                          public ::testing::WithParamInterface<ExportCase> {};

TEST_P(ExportCommandTest, WritesTheKindTheNameTells) {
    const auto path = folder_ / GetParam().file;
    program_.ui.Queue(TextAnswer{"DOOR_LH"});
    program_.ui.Queue(TextAnswer{path.string()});
    const Answer result = ExportDrawingCommand(program_.state);
    EXPECT_EQ(result, *GetParam().firstLine ? Answer::Yes : Answer::No);
    std::ifstream in(path);
    std::string first;
    std::getline(in, first);
    EXPECT_EQ(first.substr(0, first.find('\r')), GetParam().firstLine);
    ASSERT_FALSE(program_.ui.ShownBoxes().empty());
    EXPECT_TRUE(program_.ui.ShownBoxes().back().text.starts_with(GetParam().box))
        << program_.ui.ShownBoxes().back().text;
}

// DOOR_LH holds a diode, which neither kind of drawing holds: the box says so.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Kinds, ExportCommandTest, ::testing::Values(
    ExportCase{"WireViz", "lh.yml", "connectors:", "Written without what the drawing cannot hold:\nDIODE 1 between wires W8 and W9 is not written: the WireViz export writes no parts"},
    ExportCase{"FromTo", "lh.csv", "From Connector,From Pin,To Connector,To Pin,Wire,Colour", "Written without what the drawing cannot hold:\nDIODE 1 between wires W8 and W9 is not written: the list has no parts"},
    ExportCase{"OtherKind", "lh.txt", "", "Name the file .yml for WireViz or .csv for a from/to list."}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::interchange
