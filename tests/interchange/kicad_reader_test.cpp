// The KiCad netlist of the example's MAIN: connectors, wires by net, splices
// for nets of three ends, the diode with its anode on side 1.
#include "data_files.h"
#include "interchange/kicad_reader.h"

#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

TEST(KicadReader, ReadsTheDoorNetlist) {
    const DrawingRead read = ReadKicadNetlist(test::ReadDataFile("door_main.net"), {});
    ASSERT_TRUE(read.ok()) << read.error;
    const Drawing& d = read.drawing;
    ASSERT_EQ(d.connectors.size(), 3u);
    EXPECT_EQ(d.connectors[0].name, "J1");
    EXPECT_EQ(d.connectors[0].pins, 12); // its library part's, not the pins in use
    EXPECT_EQ(d.connectors[2].pins, 4);

    ASSERT_EQ(d.splices.size(), 2u);
    EXPECT_EQ(d.splices[0].wires, (std::vector<std::string>{"GND-1", "GND-2", "GND-3"}));

    ASSERT_EQ(d.components.size(), 1u);
    const DrawingComponent& diode = d.components[0];
    EXPECT_EQ(diode.kind, "DIODE");
    EXPECT_EQ(diode.number, 1);
    EXPECT_EQ(diode.wire1, "N4"); // the anode's net, named by its code
    EXPECT_EQ(diode.wire2, "N5");
}

TEST(KicadReader, ConnectorPrefixesAreTheSettingsOnes) {
    const std::string text = "(export (components (comp (ref K1)) (comp (ref J1)))\n"
                             "(nets (net (code 1) (name /A) (node (ref K1) (pin 1))"
                             " (node (ref J1) (pin 2)))))";
    EXPECT_FALSE(ReadKicadNetlist(text, {}).ok());
    const DrawingRead read = ReadKicadNetlist(text, DrawingOptions{{"K", "J"}});
    ASSERT_TRUE(read.ok()) << read.error;
    EXPECT_EQ(read.drawing.wires.at(0).ends.size(), 2u);
    // Without a library part, the pins its nets use.
    EXPECT_EQ(read.drawing.connectors.at(1).pins, 2);
}

struct Resistance {
    const char* name;
    const char* text;
    std::optional<long long> ohms;
};

class OhmsTest : public ::testing::TestWithParam<Resistance> {};

TEST_P(OhmsTest, ReadsKicadValues) {
    EXPECT_EQ(OhmsOf(GetParam().text), GetParam().ohms);
}

INSTANTIATE_TEST_SUITE_P(Values, OhmsTest,
                         ::testing::Values(Resistance{"Plain", "470", 470},
                                           Resistance{"LetterAsPoint", "4k7", 4700},
                                           Resistance{"PointThenLetter", "1.5k", 1500},
                                           Resistance{"Mega", "2M2", 2200000},
                                           Resistance{"Ohms", "10R", 10},
                                           Resistance{"Unit", "120 Ohm", 120},
                                           Resistance{"Word", "1N4148", std::nullopt},
                                           Resistance{"TwoPoints", "1.2.3", std::nullopt},
                                           Resistance{"PointAndLetter", "1.2k5", std::nullopt},
                                           Resistance{"Empty", "", std::nullopt}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::interchange
