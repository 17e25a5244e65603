// A drawing goes into a program through the tables' checks: a refused row
// stops the import with its box, and nothing half-written stays behind.
#include "core/netlist.h"
#include "core/ports/clock.h"
#include "interchange/drawing_import.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"
#include "tables/color_table.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

class DrawingImportTest : public ::testing::Test {
protected:
    // In a folder of the test's own: tests run side by side.
    std::string write(const std::string& name, const std::string& text) {
        const auto path = scratch_.path() / ("zolt-drawing-" + name);
        std::ofstream(path, std::ios::binary) << text;
        return path.string();
    }
    int rows(const char* netlist, TableId table) const {
        const CNetList* n = program_.state.project().FindNetlist(netlist);
        return n ? n->GetTable(table)->gridarray().Rows() : -1;
    }
    int colours() const {
        return program_.state.project().MainNetlist->GetTable(table::Color)->gridarray().Rows();
    }

    test::TestProgram program_;
    SystemClock clock_;
    import::ImportContext context_{clock_, ZOLT_BIN_DIR, "door.zlf"};
    test::ScratchFolder scratch_;
};

const char* const kGoodList = "From,Pin,To,Pin,Wire,Colour\n"
                              "J1,1,J2,1,W1,GRN/TRQ\n"
                              "J1,2,J2,2,W2,RED\n";

TEST_F(DrawingImportTest, ANewProgramHoldsTheDrawingInMain) {
    const auto outcome =
        ImportDrawingProgram(program_.state, write("good.csv", kGoodList), context_);
    ASSERT_EQ(outcome.result, Answer::Yes) << ::testing::PrintToString(program_.boxTexts());
    EXPECT_TRUE(outcome.document.ends_with("good.zlf"));
    EXPECT_EQ(rows("MAIN", table::Connector), 2);
    EXPECT_EQ(rows("MAIN", table::Wire), 2);
    EXPECT_EQ(rows("MAIN", table::Pin), 4);
    // A colour the table lacks is added, as answering yes to its question adds it.
    const auto* colourTable =
        program_.state.project().MainNetlist->TableAs<CColorTable>(table::Color);
    EXPECT_NE(colourTable->GetColorID("TRQ"), 0);
}

struct Refusal {
    const char* name;
    const char* list;
    const char* box;
};

class RefusedRowTest : public DrawingImportTest, public ::testing::WithParamInterface<Refusal> {};

// The box names the file, the line, the table and column, the cell and the table's own message.
TEST_P(RefusedRowTest, StopsTheImportWithTheRowsMessage) {
    const auto outcome =
        ImportDrawingProgram(program_.state, write("bad.csv", GetParam().list), context_);
    EXPECT_EQ(outcome.result, Answer::No);
    ASSERT_FALSE(program_.ui.ShownBoxes().empty());
    EXPECT_EQ(program_.ui.ShownBoxes().back().caption, kImportCaption);
    EXPECT_EQ(program_.ui.ShownBoxes().back().text, GetParam().box);
    EXPECT_EQ(rows("MAIN", table::Wire), 0);
    EXPECT_EQ(rows("MAIN", table::Connector), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedRowTest,
    ::testing::Values(Refusal{
        "WireTwice", "J1,1,J2,1,W1\nJ1,2,J2,2,W1\n",
        "zolt-drawing-bad.csv, line 2: Wires, Wire \"W1\": Value already Exists! Enter a "
        "unique "
        "value."}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(DrawingImportTest, ARefusedNetlistLeavesTheProgramAndItsHistoryAsTheyWere) {
    const int coloursBefore = colours();
    EXPECT_EQ(ImportDrawingAsNetlist(program_.state,
                                     write("bad.csv", "J1,1,J2,1,W1,NEW\nJ1,2,J2,2,W1\n"), "DOOR"),
              Answer::No);
    EXPECT_EQ(program_.state.project().FindNetlist("DOOR"), nullptr);
    EXPECT_EQ(colours(), coloursBefore);
    EXPECT_FALSE(program_.state.history().CanUndo());
}

TEST_F(DrawingImportTest, AnImportedNetlistIsOneStepToUndo) {
    program_.state.history().Reset();
    ASSERT_EQ(ImportDrawingAsNetlist(program_.state, write("good.csv", kGoodList), "DOOR"),
              Answer::Yes);
    EXPECT_EQ(rows("DOOR", table::Pin), 4);
    program_.state.history().Record();
    EXPECT_EQ(program_.state.history().UndoText(), "Undo Import Drawing (DOOR)");
    ASSERT_TRUE(program_.state.history().Undo());
    EXPECT_EQ(program_.state.project().FindNetlist("DOOR"), nullptr);
}

} // namespace
} // namespace zolt::interchange
