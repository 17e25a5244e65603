#include "sequence/data_files.h"
#include "sequence/parse_fields.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt {
namespace {

using TestProject = test::TestProgram;

TEST(ParseFields, SplitsTrimsAndStops) {
    // clang-format off
    const struct { const char* line; bool comma; int count; std::vector<std::string> fields; } cases[] = {
        {"DIODE,ANODE,CATHODE,Diode", true, 4, {"DIODE", "ANODE", "CATHODE", "Diode"}},
        {"  A ,  B  ,C  ", true, 3, {"A", "B", "C"}},
        {"A,,C", true, 3, {"A", "", "C"}},
        {",A", true, 2, {"", "A"}},
        {"A,", true, 1, {"A"}},
        {"A,,", true, 1, {"A"}},
        {"", true, 0, {}},
        {"    ", true, 0, {}},
        {"LEAD 1,LEAD 2", true, 2, {"LEAD 1", "LEAD 2"}},
        {"LEAD 1,LEAD 2", false, 3, {"LEAD", "1,LEAD", "2"}},
        {"  P1    3-001   W1  ", false, 3, {"P1", "3-001", "W1"}},
    };
    // clang-format on
    FieldArray fields;
    for (const auto& c : cases) {
        fields.fill("junk");
        EXPECT_EQ(ParseFields(c.line, fields, c.comma), c.count) << c.line;
        for (std::size_t i = 0; i < fields.size(); ++i)
            EXPECT_EQ(fields[i], i < c.fields.size() ? c.fields[i] : "") << c.line << " #" << i;
    }
}

TEST(ParseFields, TakesAtMostTwentyOneFields) {
    std::string line;
    for (int i = 1; i <= 25; ++i)
        line += std::to_string(i) + ",";
    FieldArray fields;
    EXPECT_EQ(ParseFields(line, fields, true), 21);
    EXPECT_EQ(fields[20], "21");
}

class DataFiles : public ::testing::Test {
protected:
    void write(const char* name, const std::string& text) {
        std::ofstream(dir_ / name, std::ios::binary) << text;
    }
    test::ScratchFolder scratch_;
    std::filesystem::path dir_ = scratch_.path();
};

TEST_F(DataFiles, MacroLinesBecomeMacrosInFileOrder) {
    TestProject p;
    write("ZOLT.MAC", "ALARMON, 1 ,BEEP,\r\n\r\nALARMON,2,ALARM,MAIN,EXTRA\nPLABEL,x\nPLABEL2");
    const auto read = LoadMacroFile(p.state, dir_.string());
    ASSERT_TRUE(read.ok());
    ASSERT_EQ(p.state.project().MacroList.Count(), 4u);
    const CMacro& first = *p.state.project().MacroList.Item(1);
    EXPECT_EQ(first.MacroName, "ALARMON");
    EXPECT_EQ(first.MacroStep, 1);
    EXPECT_EQ(first.Command, "BEEP");
    EXPECT_EQ(first.Parameter, "");
    EXPECT_EQ(p.state.project().MacroList.Item(2)->Parameter, "MAIN");
    EXPECT_EQ(p.state.project().MacroList.Item(3)->MacroStep, 0);
    EXPECT_EQ(p.state.project().MacroList.Item(4)->MacroName, "PLABEL2");
    // A second read replaces, it does not add.
    ASSERT_TRUE(LoadMacroFile(p.state, dir_.string()).ok());
    EXPECT_EQ(p.state.project().MacroList.Count(), 4u);
}

TEST_F(DataFiles, DeviceLinesGiveTheSidesOfEachKind) {
    TestProject p;
    write("ZOLT.DEV", "DIODE,ANODE,CATHODE,Diode\nUNET,NET A\n");
    ASSERT_TRUE(LoadDeviceFile(p.state, dir_.string()).ok());
    ASSERT_EQ(p.state.project().DeviceList.Count(), 2u);
    EXPECT_EQ(p.state.project().DeviceList.Item(1)->Description, "Diode");
    EXPECT_EQ(p.state.project().GetComponentSide("diode", 2), "CATHODE");
    EXPECT_EQ(p.state.project().GetComponentSide("UNET", 1), "NET A");
    EXPECT_EQ(p.state.project().GetComponentSide("UNET", 2), "");
}

TEST_F(DataFiles, AMissingFileIsTheReadsFileErrorAndLeavesTheListEmpty) {
    TestProject p;
    p.state.project().MacroList.Add(CMacro{"OLD", 1, "NOP", ""});
    const auto macros = LoadMacroFile(p.state, dir_.string());
    EXPECT_FALSE(macros.ok());
    EXPECT_EQ(macros.error, 53);
    EXPECT_EQ(macros.description, "File not found");
    EXPECT_EQ(macros.path, (dir_ / "ZOLT.MAC").string());
    EXPECT_EQ(p.state.project().MacroList.Count(), 0u);
    EXPECT_EQ(LoadDeviceFile(p.state, (dir_ / "nowhere").string()).error, 53);
}

TEST(InstalledDataFiles, CoverEveryMacroCommandAndDeviceKind) {
    TestProject p;
    ASSERT_TRUE(LoadMacroFile(p.state, ZOLT_BIN_DIR).ok());
    ASSERT_TRUE(LoadDeviceFile(p.state, ZOLT_BIN_DIR).ok());
    for (const char* macro : {"ALARMON", "ALARMOFF", "PLABEL", "PLABEL2"}) {
        int steps = 0;
        p.state.project().MacroList.ForEach([&](const CMacro& m) {
            if (m.MacroName == macro) {
                ++steps;
                EXPECT_FALSE(m.Command.empty()) << macro;
            }
        });
        EXPECT_GT(steps, 0) << macro;
    }
    for (const char* kind :
         {"DIODE", "RESISTOR", "P_CAPACITOR", "K_RESISTOR", "KG_RESISTOR", "CAPACITOR", "UNET"}) {
        EXPECT_FALSE(p.state.project().GetComponentSide(kind, 1).empty()) << kind;
        EXPECT_FALSE(p.state.project().GetComponentSide(kind, 2).empty()) << kind;
    }
}

} // namespace
} // namespace zolt
