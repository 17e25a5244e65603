// The three drawing readers on what they must refuse: each bad file gives a
// message naming its trouble (and line), never a crash, a hang or a huge drawing.
#include "interchange/from_to_reader.h"
#include "interchange/kicad_reader.h"
#include "interchange/wireviz_reader.h"

#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

struct BadDrawing {
    const char* name;
    DrawingRead (*read)(std::string_view, const DrawingOptions&);
    std::string text;
    const char* message; // a part of the error
};

std::string repeated(const std::string& part, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

// One wide connection set named again and again through its alias: small to
// write, millions of wire ends when expanded.
std::string aliasBomb() {
    std::string text = "connectors:\n  X1: {pincount: 4096}\n  X2: {pincount: 4096}\n"
                       "cables:\n  W1: {wirecount: 4096}\n"
                       "set: &s [X1: [1-4096], W1: [1-4096], X2: [1-4096]]\nconnections: [*s";
    return text + repeated(", *s", 1000) + "]\n";
}

std::string binaryJunk() {
    std::string text;
    for (int i = 0; i < 4096; ++i)
        text += static_cast<char>((i * 7919) % 256);
    return text;
}

const std::string kConnector = "(comp (ref J1) (libsource (lib L) (part P)))";

class BadDrawingTest : public ::testing::TestWithParam<BadDrawing> {};

TEST_P(BadDrawingTest, IsRefusedWithItsReason) {
    const BadDrawing& bad = GetParam();
    const DrawingRead read = bad.read(bad.text, {});
    ASSERT_FALSE(read.ok());
    EXPECT_NE(read.error.find(bad.message), std::string::npos) << read.error;
}

const std::string kOtherPart = "(export (components " + kConnector +
                               " (comp (ref U1)))\n(nets (net (code 1)\n"
                               "(node (ref J1) (pin 1)) (node (ref U1) (pin 3)))))";
const std::string kBadResistance =
    "(export (components " + kConnector +
    "\n(comp (ref R1) (value abc))) (nets (net (code 1) (node (ref J1) (pin 1))"
    " (node (ref R1) (pin 1))) (net (code 2) (node (ref R1) (pin 2)))))";
const std::string kUnknownPin = "connectors:\n  X1: {pinlabels: [GND, VCC]}\ncables:\n  W1: "
                                "{wirecount: 1}\nconnections:\n  - [X1: [SIG], W1: 1]\n";
const std::string kThreeColours = "connectors:\n  X1: {pincount: 1}\ncables:\n  W1:\n    "
                                  "colors: [GNYEBU]\nconnections:\n  - [X1: 1, W1: 1]\n";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Readers, BadDrawingTest, ::testing::Values(
    BadDrawing{"KicadUnbalanced", ReadKicadNetlist, "(export\n (components\n" + kConnector, "line 2: the '(' here is never closed"},
    BadDrawing{"KicadCloseTooMany", ReadKicadNetlist, "(export (nets)))", "after the closing"},
    BadDrawing{"KicadDeep", ReadKicadNetlist, repeated("(", 100000), "nested deeper than 64"},
    BadDrawing{"KicadJunk", ReadKicadNetlist, binaryJunk(), "no s-expression"},
    BadDrawing{"KicadOpenQuote", ReadKicadNetlist, "(export (design (source \"a.sch)))", "never closed"},
    BadDrawing{"KicadOtherPart", ReadKicadNetlist, kOtherPart, "line 3: U1 is neither a connector nor a diode, resistor or capacitor"},
    BadDrawing{"KicadBadResistance", ReadKicadNetlist, kBadResistance, "line 2: R1's value \"abc\" is no resistance"},
    BadDrawing{"WireVizDeep", ReadWireViz, repeated("[", 100000), "not YAML"},
    BadDrawing{"WireVizAliasBomb", ReadWireViz, aliasBomb(), "more than"},
    BadDrawing{"WireVizJunk", ReadWireViz, binaryJunk(), ""},
    BadDrawing{"WireVizEmpty", ReadWireViz, "# nothing yet\n", "no WireViz harness"},
    BadDrawing{"WireVizAliasOfItself", ReadWireViz, "connections: &c [*c]\n", "line 1: a designator must be a plain value"},
    BadDrawing{"WireVizUnknownDesignator", ReadWireViz, "connectors:\n  X1: {pincount: 2}\nconnections:\n  - [X1: 1, W9: 1]\n", "line 4: W9 is neither a connector nor a cable"},
    BadDrawing{"WireVizUnknownPin", ReadWireViz, kUnknownPin, "X1 has no pin \"SIG\""},
    BadDrawing{"WireVizThreeColours", ReadWireViz, kThreeColours, "line 4: colour \"GNYEBU\" of W1-1 is no IEC 60757 code"},
    BadDrawing{"WireVizArrow", ReadWireViz, "connectors:\n  X1: {pincount: 1}\n  X2: {pincount: 1}\nconnections:\n  - [X1: 1, \"-->\", X2: 1]\n", "arrows join mated connectors"},
    BadDrawing{"WireVizHugeRange", ReadWireViz, "connectors:\n  X1: {pincount: 2}\nconnections:\n  - [X1: [1-999999]]\n", "longer than"},
    BadDrawing{"FromToMissingPin", ReadFromToList, "From,Pin,To,Pin\nJ1,1,J2,1\n\nJ1,2,J2\n", "line 4: a connection needs from connector, from pin, to connector and to pin"},
    BadDrawing{"FromToOpenQuote", ReadFromToList, "J1,1,\"J2\n", "a quote is left open"},
    BadDrawing{"FromToEmpty", ReadFromToList, "From,Pin,To,Pin\n", "holds no connection"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::interchange
