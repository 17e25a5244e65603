// A WireViz harness with what drawings use: pin labels, ranges, colour codes,
// shields, loops, templates and ferrules that join wires into a splice.
#include "interchange/wireviz_reader.h"

#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

const char* const kHarness = R"(connectors:
  X1:
    pinlabels: [GND, VCC, RX, TX]
  Y:
    pincount: 2
  F:
    style: simple
    type: Ferrule
cables:
  W1:
    colors: [BK, RD, GNYE]
    shield: true
  B1:
    category: bundle
    wirecount: 2
    color_code: IEC
    wirelabels: [SIG_A, ""]
connections:
  -
    - X1: [GND, 2-3]
    - W1: [1-3]
    - Y.Y1: [1, 2, 2]
  -
    - X1: TX
    - B1: 1
    - F.F1
  -
    - Y1: 1
    - B1: 2
    - F.F1
  -
    - W1: s
    - F.
)";

const DrawingWire* wireNamed(const Drawing& drawing, const std::string& name) {
    for (const DrawingWire& wire : drawing.wires)
        if (wire.name == name)
            return &wire;
    return nullptr;
}

std::string endsOf(const DrawingWire* wire) {
    std::string text;
    for (const Cavity& end : wire->ends)
        text += (text.empty() ? "" : " ") + end.connector + "-" + end.pin;
    return text;
}

TEST(WireVizReader, ReadsTheHarnessAsTablesHoldIt) {
    const DrawingRead read = ReadWireViz(kHarness, {});
    ASSERT_TRUE(read.ok()) << read.error;
    const Drawing& d = read.drawing;

    // X1 as named, Y1 from its template Y; neither the template nor the ferrules.
    ASSERT_EQ(d.connectors.size(), 2u);
    EXPECT_EQ(d.connectors[0].name, "X1");
    EXPECT_EQ(d.connectors[0].pins, 4);
    EXPECT_EQ(d.connectors[1].name, "Y1");
    EXPECT_EQ(d.connectors[1].pins, 2);

    // Labels find their pins; a range runs in order; each wire lands on both sides.
    ASSERT_NE(wireNamed(d, "W1-1"), nullptr);
    EXPECT_EQ(endsOf(wireNamed(d, "W1-1")), "X1-1 Y1-1");
    EXPECT_EQ(endsOf(wireNamed(d, "W1-3")), "X1-3 Y1-2");
    EXPECT_EQ(wireNamed(d, "W1-3")->base, "GRN");
    EXPECT_EQ(wireNamed(d, "W1-3")->stripe, "YEL");
    EXPECT_EQ(wireNamed(d, "W1-2")->base, "RED");

    // A label names its wire, the colour code colours it; no label, cable and number.
    ASSERT_NE(wireNamed(d, "SIG_A"), nullptr);
    EXPECT_EQ(endsOf(wireNamed(d, "SIG_A")), "X1-4");
    EXPECT_EQ(wireNamed(d, "SIG_A")->base, "BRN");
    ASSERT_NE(wireNamed(d, "B1-2"), nullptr);
    EXPECT_EQ(wireNamed(d, "B1-2")->base, "RED");

    // Ferrule F1 joins two wires: a splice. The unnamed one holds the shield alone.
    ASSERT_EQ(d.splices.size(), 1u);
    EXPECT_EQ(d.splices[0].wires, (std::vector<std::string>{"SIG_A", "B1-2"}));
    ASSERT_NE(wireNamed(d, "W1-S"), nullptr);
    EXPECT_TRUE(wireNamed(d, "W1-S")->ends.empty());
}

TEST(WireVizReader, LoopsAreWiresBetweenPinsOfOneConnector) {
    const DrawingRead read =
        ReadWireViz("connectors:\n  X1:\n    pincount: 4\n    loops: [[1, 4]]\n", {});
    ASSERT_TRUE(read.ok()) << read.error;
    ASSERT_EQ(read.drawing.wires.size(), 1u);
    EXPECT_EQ(read.drawing.wires[0].name, "X1-L1");
    EXPECT_EQ(endsOf(&read.drawing.wires[0]), "X1-1 X1-4");
    EXPECT_EQ(read.drawing.wires[0].line, 4);
}

} // namespace
} // namespace zolt::interchange
