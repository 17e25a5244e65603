#include "settings/table_appearance.h"
#include "settings/zolt_settings.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::settings {
namespace {

namespace fs = std::filesystem;
using test::TestProgram;

// A scratch folder with sub-folders made on asking.
struct Folders : test::ScratchFolder {
    std::string dir(const std::string& name) const {
        fs::create_directories(path() / name);
        return file(name);
    }
};

ZoltSettingsValues goodValues(const Folders& f) {
    ZoltSettingsValues v;
    const char* names[] = {"Programs", "Templates", "Backups", "Labels", "Pid"};
    for (int i = 0; i < 5; ++i)
        v.directories[i] = f.dir(names[i]);
    v.port = "/dev/ttyUSB1";
    v.baud = 19200;
    v.parity = "EVEN";
    v.dataBits = 7;
    v.stopBits = 2;
    return v;
}

// A missing directory, then a label application that is a folder: each refused, nothing written.
TEST(ZoltSettings, AMissingDirectoryOrLabelApplicationIsRefusedAndNothingIsWritten) {
    TestProgram p;
    Folders f;
    ZoltSettingsValues v = goodValues(f);
    v.directories[3] = (f.path() / "gone" / "deeper").string();
    auto refusal = ApplyZoltSettings(p.state, v);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->where, ZoltSettingsRefusal::Where::Directory);
    EXPECT_EQ(refusal->index, 3);
    EXPECT_EQ(p.boxTexts(), std::vector<std::string>{"Invalid Directory or Drive Not Available"});

    v.directories[3] = f.dir("Labels");
    v.labelApplication = f.dir("Labelark");
    refusal = ApplyZoltSettings(p.state, v);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->where, ZoltSettingsRefusal::Where::LabelApplication);
    EXPECT_EQ(p.ui.ShownBoxes().at(1).caption, "Labelark Software Not Found");
    EXPECT_FALSE(p.settings.Read("User Settings", "ProgramsDirectory"));
    EXPECT_FALSE(p.settings.Read("Comm Settings", "Baud"));
}

TEST(ZoltSettings, OkWritesDirectoriesSerialPortAndLabelApplication) {
    TestProgram p;
    p.state.params().LoadDirectoryParameters(false);
    p.state.params().LoadCommParameters();
    Folders f;
    ZoltSettingsValues v = goodValues(f);
    const std::string label = (f.path() / "LK.exe").string();
    std::ofstream(label) << "x";
    v.labelApplication = "  " + label + " ";
    v.parity.clear();
    ASSERT_FALSE(ApplyZoltSettings(p.state, v).has_value());
    EXPECT_TRUE(p.ui.ShownBoxes().empty());
    EXPECT_EQ(p.settings.Read("User Settings", "EJFDirectory"), v.directories[3]);
    EXPECT_EQ(p.state.params().Text(param::PIDDirectory), v.directories[4]);
    // A device that is no COM port leaves the port number as it was.
    // clang-format off
    for (const auto& [key, value] : {std::pair{"CommDevice", "/dev/ttyUSB1"}, {"Baud", "19200"},
             {"Parity", "NONE"}, {"DataBits", "7"}, {"StopBits", "2"}, {"CommPort", "1"}})
        EXPECT_EQ(p.settings.Read("Comm Settings", key), value) << key;
    // clang-format on
    EXPECT_EQ(p.settings.Read("User Settings", "LabelApplication"), label);
    // The user's settings are no change of the project.
    EXPECT_FALSE(p.state.IsDirty());

    v.port = "com12";
    ASSERT_FALSE(ApplyZoltSettings(p.state, v).has_value());
    EXPECT_EQ(p.settings.Read("Comm Settings", "CommPort"), "12");
    EXPECT_EQ(LoadZoltSettings(p.state).port, "com12");
}

struct PrefixCase {
    const char* name;
    const char* typed;
    const char* box;    // empty: taken
    const char* stored; // what the next KiCad import reads
};

class ConnectorPrefixesTest : public ::testing::TestWithParam<PrefixCase> {};

TEST_P(ConnectorPrefixesTest, AListOfLettersIsKeptAnythingElseRefused) {
    TestProgram p;
    Folders f;
    ZoltSettingsValues v = goodValues(f);
    v.connectorPrefixes = GetParam().typed;
    const auto refusal = ApplyZoltSettings(p.state, v);
    const std::string box = GetParam().box;
    ASSERT_EQ(refusal.has_value(), !box.empty());
    if (refusal) {
        EXPECT_EQ(refusal->where, ZoltSettingsRefusal::Where::ConnectorPrefixes);
        EXPECT_EQ(p.boxTexts(), std::vector<std::string>{box});
        EXPECT_FALSE(p.settings.Read("User Settings", "ProgramsDirectory"));
    }
    EXPECT_EQ(p.settings.ReadOr("Drawings", "ConnectorPrefixes", "(none)"), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, ConnectorPrefixesTest,
    ::testing::Values(
        PrefixCase{"UpperCasedWithoutBlanks", " j, cn ,X,", "", "J,CN,X"},
        PrefixCase{"Empty", " , ",
                   "Enter at least one connector prefix: letters, separated by commas (J,P,X).",
                   "(none)"},
        PrefixCase{"NotLetters", "J,P1",
                   "\"P1\" is no connector prefix: a prefix is letters only (J, CN).", "(none)"},
        PrefixCase{"APartsLetter", "J,r",
                   "\"R\" cannot be a connector prefix: D, R and C are diodes, resistors and "
                   "capacitors.",
                   "(none)"},
        PrefixCase{"Twice", "J,P,j", "\"J\" is listed twice among the connector prefixes.",
                   "(none)"}),
    [](const auto& info) { return std::string(info.param.name); });

// The page shows the device the download will open.
TEST(ZoltSettings, AStoredPortNumberWithoutDeviceShowsThePlatformsDevice) {
    TestProgram p;
    p.state.params().LoadCommParameters();
    p.state.params().SetVal(param::CommDevice, Value(std::string()));
    p.state.params().SetVal(param::CommPort, Value(std::int32_t{3}));
#ifdef _WIN32
    EXPECT_EQ(LoadZoltSettings(p.state).port, "COM3");
#else
    EXPECT_EQ(LoadZoltSettings(p.state).port, "/dev/ttyS2");
#endif
    p.state.params().SetVal(param::CommDevice, Value(std::string("/dev/ttyUSB0")));
    EXPECT_EQ(LoadZoltSettings(p.state).port, "/dev/ttyUSB0");
}

TEST(TableAppearance, KeptInTheSettingsAndBrokenValuesFallBack) {
    MemorySettingsStore store;
    EXPECT_EQ(LoadTableAppearance(store), TableAppearance{});
    TableAppearance look;
    look.netlistTables = {"DejaVu Sans Mono", 11, true, false, "#102030", ""};
    look.sequenceText = {"", 0, false, true, "", "#FFFFE0"};
    SaveTableAppearance(store, look);
    EXPECT_EQ(LoadTableAppearance(store), look);

    store.Write("Table Appearance", "Netlist Table Text Size", "500");
    store.Write("Table Appearance", "Netlist Table Text Color", "red");
    const TableAppearance broken = LoadTableAppearance(store);
    EXPECT_EQ(broken.netlistTables.pointSize, 0);
    EXPECT_EQ(broken.netlistTables.foreground, "");
    EXPECT_EQ(broken.netlistTables.family, "DejaVu Sans Mono");
}

} // namespace
} // namespace zolt::settings
