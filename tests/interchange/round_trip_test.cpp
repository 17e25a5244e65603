// Each netlist of the example written as a drawing and read back joins the
// same cavities; the WireViz text keeps to WireViz's documented syntax.
#include "compare/connections.h"
#include "core/netlist.h"
#include "core/project.h"
#include "file/program_file.h"
#include "interchange/drawing_export.h"
#include "interchange/from_to_reader.h"
#include "interchange/netlist_fill.h"
#include "interchange/wireviz_reader.h"
#include "support/test_program.h"

#include <gtest/gtest.h>
#include <set>
#include <yaml-cpp/yaml.h>

namespace zolt::interchange {
namespace {

const std::string kExample = std::string(ZOLT_TEST_DATA_DIR) + "/../../examples/harness.zlf";

// The cavities that join something, each with those it joins.
std::map<std::string, std::set<std::string>> joined(const CNetList& netlist) {
    const compare::Connections connections = compare::ConnectionsOf(netlist);
    std::map<std::string, std::set<std::string>> partners;
    for (std::size_t c = 0; c < connections.cavities.size(); ++c)
        if (auto joins = connections.Partners(static_cast<int>(c)); !joins.empty())
            partners.emplace(connections.cavities[c], std::move(joins));
    return partners;
}

// What WireViz's syntax page allows: its sections; connectors with their pins
// (or simple); cables whose colours are IEC codes, one colour and label a
// wire; connection sets alternating connectors and cables, naming pins the
// connector has and wires the cable has.
void ExpectWireVizSyntax(const std::string& text) {
    const YAML::Node root = YAML::Load(text);
    const std::set<std::string> codes{"BK", "WH", "GY", "PK", "RD", "OG", "YE",
                                      "OL", "GN", "TQ", "LB", "BU", "VT", "BN",
                                      "BG", "IV", "SL", "CU", "SN", "SR", "GD"};
    const std::set<std::string> sections{"connectors", "cables", "connections"};
    for (const auto& section : root)
        EXPECT_TRUE(sections.count(section.first.Scalar())) << section.first.Scalar();
    std::map<std::string, std::set<std::string>> pins;
    std::set<std::string> simple;
    for (const auto& c : root["connectors"]) {
        const YAML::Node& a = c.second;
        if (a["style"]) {
            EXPECT_EQ(a["style"].Scalar(), "simple");
            simple.insert(c.first.Scalar());
            continue;
        }
        for (const auto& pin : a["pins"])
            pins[c.first.Scalar()].insert(pin.Scalar());
    }
    std::map<std::string, int> wires;
    for (const auto& c : root["cables"]) {
        const YAML::Node& a = c.second;
        const int count = a["wirecount"].as<int>();
        EXPECT_EQ(a["colors"].size(), static_cast<std::size_t>(count));
        EXPECT_EQ(a["wirelabels"].size(), static_cast<std::size_t>(count));
        for (const auto& colour : a["colors"]) {
            const std::string code = colour.Scalar();
            for (std::size_t i = 0; i < code.size(); i += 2)
                EXPECT_TRUE(codes.count(code.substr(i, 2))) << code;
        }
        wires[c.first.Scalar()] = count;
    }
    for (const auto& set : root["connections"]) {
        ASSERT_TRUE(set.IsSequence());
        bool cableNext =
            !set[0].IsMap() || !wires.count(set[0].begin()->first.Scalar()) ? false : true;
        for (const auto& item : set) {
            if (item.IsScalar()) {
                EXPECT_FALSE(cableNext);
                EXPECT_TRUE(simple.count(item.Scalar())) << item.Scalar();
            } else {
                const std::string name = item.begin()->first.Scalar();
                const std::string ref = item.begin()->second.Scalar();
                if (cableNext) {
                    ASSERT_TRUE(wires.count(name)) << name;
                    EXPECT_GE(std::stoi(ref), 1);
                    EXPECT_LE(std::stoi(ref), wires[name]);
                } else {
                    ASSERT_TRUE(pins.count(name)) << name;
                    EXPECT_TRUE(pins[name].count(ref)) << name << "-" << ref;
                }
            }
            cableNext = !cableNext;
        }
    }
}

struct Road {
    const char* name;
    std::string (*write)(const Drawing&, std::vector<std::string>&);
    DrawingRead (*read)(std::string_view, const DrawingOptions&);
};

class RoundTripTest : public ::testing::TestWithParam<Road> {};

TEST_P(RoundTripTest, EveryNetlistOfTheExampleJoinsTheSameCavities) {
    const auto loaded = file::LoadProgramFile(kExample, ZOLT_BIN_DIR);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    int netlists = 0;
    for (std::size_t i = 1; i <= loaded.project->NetlistCollection.Count(); ++i) {
        const CNetList& netlist = **loaded.project->NetlistCollection.Item(i);
        const Drawing drawing = DrawingOfNetlist(netlist, *loaded.project->MainNetlist);
        if (drawing.wires.empty())
            continue;
        ++netlists;
        std::vector<std::string> notes;
        const std::string text = GetParam().write(drawing, notes);
        if (GetParam().read == ReadWireViz)
            ExpectWireVizSyntax(text);
        const DrawingRead read = GetParam().read(text, {});
        ASSERT_TRUE(read.ok()) << read.error;
        test::TestProgram copy;
        CNetList& main = *copy.state.project().MainNetlist;
        ASSERT_EQ(FillNetlist(copy.state, main, read.drawing), "") << netlist.NetlistName;
        EXPECT_EQ(joined(main), joined(netlist)) << netlist.NetlistName;
    }
    EXPECT_EQ(netlists, 3);
}

INSTANTIATE_TEST_SUITE_P(Drawings, RoundTripTest,
                         ::testing::Values(Road{"WireViz", WireVizText, ReadWireViz},
                                           Road{"FromTo", FromToText, ReadFromToList}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace zolt::interchange
