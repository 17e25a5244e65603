#include "table_fixture.h"
#include "tables/color_table.h"
#include "tables/component_table.h"
#include "tables/connector_table.h"
#include "tables/pin_table.h"
#include "tables/splice_table.h"
#include "tables/wire_table.h"

namespace zolt::testing {
namespace {

// A netlist with connector J1 (3 pins), J0 (0 pins), wires W1..W4 and a resistor kind.
class HarnessTest : public TableTest {
protected:
    HarnessTest() {
        editor(table::Connector).AddRow({"J1", "3"});
        editor(table::Connector).AddRow({"J0", "0"});
        for (const char* w : {"W1", "W2", "W3", "W4"})
            editor(table::Wire).AddRow({w});
        state_.project().DeviceList.Add(CComponent{"RES", "PLUS", "MINUS", {}}, "RES");
        ui_.ClearEvents();
    }
    CPinTable& pins() { return table<CPinTable>(table::Pin); }
    ErrorCode addPin(const std::string& c, const std::string& p, const std::string& w) {
        return editor(table::Pin).AddRow({c, p, w});
    }
};

TEST_F(HarnessTest, PinCodes) {
    EXPECT_EQ(addPin("J1", "1", "W1"), code::None);
    EXPECT_EQ(addPin("J1", "1", "W2"), code::None); // a double
    EXPECT_EQ(ui_.PanelText(3), "Adding Connector/Pin as Double");
    EXPECT_EQ(addPin("J1", "1", "W3"), code::None);
    EXPECT_EQ(ui_.PanelText(3), "Adding Connector/Pin as Multiple");
    EXPECT_EQ(addPin("J1", "2", "W1"), code::None);
    // W1 has two ends now.
    EXPECT_EQ(addPin("J1", "3", "W1"), code::WireUsedTwice);
    EXPECT_EQ(lastBox(), "Wire Can Not Appear More than Twice!");
    EXPECT_EQ(addPin("J1", "3", "W9"), code::NoWire);
    EXPECT_EQ(lastBox(), "Wire Does Not Exist!");
    ui_.ClearEvents();
    // Unknown connector: silent, the detail dialog is cancelled.
    EXPECT_EQ(addPin("J7", "1", "W4"), code::NoConnector);
    EXPECT_TRUE(ui_.ShownBoxes().empty());
    EXPECT_EQ(addPin("J0", "1", "W4"), code::TooManyPins);
    EXPECT_EQ(lastBox(),
              "This Pin Exceeds the Maximum Number of Pins defined for this Connector !");
    EXPECT_EQ(addPin("J1", "1", "W2"), code::PinWireExists);
    // "(none)" may stand on any number of pins, but not on a pin with a wire.
    EXPECT_EQ(addPin("J1", "2", "(none)"), code::PinHasWire);
    EXPECT_EQ(addPin("J1", "3", "(none)"), code::None);
    EXPECT_TRUE(pins().PinIsUnconnected("J1", "3"));
    EXPECT_EQ(addPin("J1", "3", "W4"), code::PinUnconnected);
    EXPECT_EQ(editor(table::Pin).EditCell(1, 2, "(none)"), code::PinHasWire);
}

TEST_F(HarnessTest, WireOnPinAndSpliceTakesNoSecondSplice) {
    ASSERT_EQ(addPin("J1", "1", "W1"), code::None);
    TableEditor splices = editor(table::Splice);
    ASSERT_EQ(splices.AddRow({"1", "W1"}), code::None);
    EXPECT_EQ(splices.AddRow({"2", "W1"}), code::WireUsedTwice);
    EXPECT_EQ(lastBox(), "Wire Can Not Appear More than Twice!");
    EXPECT_EQ(splices.AddRow({"2048", "W2"}), code::AboveMaximum);
    EXPECT_EQ(splices.AddRow({"0", "W2"}), code::BelowMinimum);
    EXPECT_EQ(splices.AddRow({"5", "W8"}), code::NoWire);
    // F5 numbers on, F6 repeats.
    EXPECT_EQ(splices.PressKey(key::F5, 1, {"W2"}), code::None);
    EXPECT_EQ(splices.table().gridarray().Text(2, 0), "2");
    EXPECT_EQ(splices.PressKey(key::F6, 2, {"W3"}), code::None);
    EXPECT_EQ(splices.table().gridarray().Text(3, 0), "2");
}

TEST_F(HarnessTest, ComponentRules) {
    auto& comps = table<CComponentTable>(table::Component);
    TableEditor ed = editor(table::Component);
    EXPECT_EQ(ed.AddRow({"CAPX", "1", "W1", "W2", "10", "1", "1", "0"}), code::NoComponent);
    EXPECT_EQ(lastBox(), "Component Does Not Exist!");
    EXPECT_EQ(ed.AddRow({"res", "1", "W1", "W2", "99999", "1", "1", "0"}), code::None);
    EXPECT_EQ(ed.AddRow({"RES", "2", "W3", "W3", "1", "1", "1", "0"}), code::None);
    // W3 is on both sides of one component: two ends already.
    EXPECT_EQ(addPin("J1", "1", "W3"), code::WireUsedTwice);
    EXPECT_EQ(ed.AddRow({"RES", "3", "W4", "W9", "1", "1", "1", "0"}), code::NoWire);
    EXPECT_TRUE(comps.ComponentExists("res"));
    EXPECT_EQ(comps.SideStatus("res", 3), "MINUS");
    EXPECT_EQ(comps.SideStatus("xx", 2), "Component Not Specified/Does Not Exist");
}

TEST_F(HarnessTest, PinKeys) {
    ASSERT_EQ(addPin("J1", "1", "W1"), code::None);
    TableEditor ed = editor(table::Pin);
    EXPECT_EQ(ed.PressKey(key::F5, 1, {"W2"}), code::None);
    EXPECT_EQ(pins().RowTexts(2), (std::vector<std::string>{"J1", "2", "W2"}));
    EXPECT_EQ(ed.PressKey(key::F6, 2, {"W3"}), code::None);
    EXPECT_EQ(pins().RowTexts(3), (std::vector<std::string>{"J1", "2", "W3"}));
    EXPECT_EQ(ed.PressKey(key::F7, 3, {"W4"}), code::None);
    EXPECT_EQ(pins().RowTexts(4), (std::vector<std::string>{"J1", "1", "W4"}));
}

TEST_F(HarnessTest, WireTableNamesColorsAndDelete) {
    auto& wires = table<CWireTable>(table::Wire);
    TableEditor ed = editor(table::Wire);
    EXPECT_EQ(ed.AddRow({"W1"}), code::Duplicate);
    // An unknown color is offered; yes adds it and the cell holds its number.
    ui_.Queue(Answer::Yes);
    EXPECT_EQ(ed.AddRow({"W5", "red/blk"}), code::None);
    EXPECT_EQ(lastBox(), "Add 'RED/BLK' as a New Color?");
    EXPECT_EQ(lastCaption(), "Color not defined");
    auto& colors = table<CColorTable>(table::Color);
    EXPECT_EQ(colors.GetColorID("RED/BLK"), 1);
    EXPECT_EQ(wires.gridarray().Text(5, 1), "1");
    ui_.Queue(Answer::No);
    EXPECT_EQ(ed.AddRow({"W6", "BLUE"}), code::CellRefused);
    wires.AddRecord_v1(
        7, {Value("W7"), Value("---"), Value(std::int32_t{3}), Value(std::int32_t{0}), Value("2")});
    EXPECT_EQ(wires.RowTexts(7), (std::vector<std::string>{"W7", "(none)", "2"}));

    addPin("J1", "1", "W2");
    editor(table::Splice).AddRow({"1", "W2"});
    ui_.Queue(ScriptedUi::TextAnswer{"Wire and its uses"});
    ASSERT_TRUE(ed.DeleteCurrent(2));
    EXPECT_EQ(pins().gridarray().Text(1, 2), "(none)");
    EXPECT_EQ(table<CSpliceTable>(table::Splice).gridarray().Rows(), 0);
    EXPECT_EQ(wires.gridarray().Text(2, 0), "W3");
}

TEST_F(HarnessTest, ColorTable) {
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

// "(none)", in whatever case the key filter leaves it, is the no-color entry:
// nothing is asked and no color is made of it.
TEST_F(HarnessTest, NoneTypedAsAColorIsNoColor) {
    auto& colors = table<CColorTable>(table::Color);
    int n = 0;
    for (const char* typed : {"(none)", "(NONE)", " (None) "}) {
        ui_.ClearEvents();
        EXPECT_EQ(editor(table::Wire).AddRow({"N" + std::to_string(++n), typed, typed}), code::None)
            << typed;
        EXPECT_TRUE(ui_.ShownBoxes().empty()) << typed;
    }
    EXPECT_EQ(colors.gridarray().Rows(), 0);
    const Grid& wires = table<CWireTable>(table::Wire).gridarray();
    EXPECT_EQ(wires.Text(wires.Rows(), 1), "(none)");
    EXPECT_EQ(wires.Text(wires.Rows(), 2), "(none)");
}

// A full color table takes no 129th color, whichever road it comes by.
TEST_F(HarnessTest, TheColorLimitHoldsOnEveryRoad) {
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
