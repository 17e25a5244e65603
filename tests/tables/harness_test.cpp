#include "table_fixture.h"
#include "tables/color_table.h"
#include "tables/wire_table.h"

namespace zolt::testing {
namespace {

// Pins, splices, components and the wire table's rules are the golden case harness_rules'.
class ColorTableTest : public TableTest {};

TEST_F(ColorTableTest, ColorTable) {
    auto& colors = table<CColorTable>(table::Color);
    EXPECT_EQ(colors.AddNewColor("RED"), 1);
    EXPECT_EQ(colors.AddNewColor(" GRN / YEL "), 2);
    EXPECT_EQ(colors.AddNewColor("BLK"), 3);
    EXPECT_EQ(colors.GetColors(2), "GRN/YEL");
    editor(table::Color).DeleteLines({2});
    EXPECT_EQ(colors.GetNextColorID(), 2);
    EXPECT_EQ(FormatColor("", "BLK"), "");
    EXPECT_EQ(FormatColor("RED", " "), "RED");
    EXPECT_EQ(colors.GetDisplayColor(0), "(none)");
    EXPECT_TRUE(colors.IsColorText("BLK"));
    EXPECT_FALSE(colors.IsColorText("(none)"));
    colors.AddSpecialRecord("BLK", "WHT/RED");
    EXPECT_EQ(colors.GetColorID("WHT/RED"), 2);
    EXPECT_EQ(editor(table::Color).AddRow({"9", "RED"}), code::Duplicate);
    // Colors typed or added take the active netlist's index.
    AddNetlist(state_, "SIDE");
    state_.project().ActiveNetlist = state_.project().FindNetlist("SIDE");
    ASSERT_NE(state_.project().ActiveNetlist->netlistIndex, 0);
    ASSERT_EQ(editor(table::Color).AddRow({"9", "PNK"}), code::None);
    EXPECT_EQ(colors.gridarray().Text(colors.gridarray().Rows(), 3),
              std::to_string(state_.project().ActiveNetlist->netlistIndex));
    editor(table::Color).DeleteLines({colors.gridarray().Rows()});

    std::string text = "w";
    int matched = 0, found = 0;
    colors.FindClosest(text, matched, found);
    EXPECT_EQ(text, "WHT/RED");
    EXPECT_EQ(matched, 1);
    ColorCell cell{"BL", 2, 0};
    bool back = false, slash = false;
    colors.ProcessKeyPress(cell, back, slash);
    EXPECT_EQ(cell.text, "BLK");
    EXPECT_EQ(cell.selStart, 2);
    EXPECT_EQ(cell.selLength, 1);
    cell.text = "WHT";
    cell.selStart = 3;
    slash = true;
    colors.ProcessKeyPress(cell, back, slash);
    EXPECT_EQ(cell.text, "WHT/RED");
    EXPECT_EQ(cell.selStart, 4);
}

// A full color table takes no 129th color, whichever road it comes by.
TEST_F(ColorTableTest, TheColorLimitHoldsOnEveryRoad) {
    auto& colors = table<CColorTable>(table::Color);
    for (int i = 1; i <= CColorTable::kMaxColors; ++i)
        ASSERT_EQ(colors.AddNewColor("C" + std::to_string(i)), i);
    const std::string full = "Maximum number of colors is 128.";
    ui_.ClearEvents();
    // Typed on a wire: refused before the question, so no Yes can add one.
    EXPECT_EQ(editor(table::Wire).AddRow({"W9", "PURPLE"}), code::CellRefused);
    EXPECT_EQ(ui_.ShownBoxes().size(), 1u);
    EXPECT_EQ(lastBox(), full);
    EXPECT_EQ(colors.AddNewColor("ORANGE"), 0);
    EXPECT_FALSE(colors.AddSpecialRecord("C1", "TEAL"));
    // Pasted lines stop at the limit.
    editor(table::Color).Paste("$CopyData~4~2~500~NEW", std::nullopt);
    EXPECT_EQ(colors.gridarray().Rows(), CColorTable::kMaxColors);
    EXPECT_EQ(colors.GetColorID("NEW"), 0);
    EXPECT_EQ(lastBox(), full);
    // Typed into the color table itself, or read from a file.
    EXPECT_EQ(editor(table::Color).AddRow({"900", "LAST"}), code::CellRefused);
    EXPECT_EQ(lastBox(), full);
    EXPECT_FALSE(colors.AddColorRecord(129, {Value(std::int32_t{5}), Value("X")}));
    EXPECT_EQ(lastBox(), full + "\nRecord:129 not added.");
    EXPECT_TRUE(colors.AddColorRecord(128, {Value(std::int32_t{5}), Value("X")}));
}

} // namespace
} // namespace zolt::testing
