#include "shell/toolbar_layout.h"

#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

const std::string kHead = "ZOLT Toolbars 1\n";
const std::string kMain = "toolbar main 1 Main\ntool ID_New 1\n";
const std::string kNetlist = "toolbar netlist 1 Netlist\ntool ID_Pins 1\n";

ToolbarLayout customised() {
    ToolbarLayout layout = FactoryToolbarLayout();
    std::swap(layout.toolbars[0].tools.front(), layout.toolbars[0].tools.back());
    layout.toolbars[0].tools[1].shown = false;
    layout.toolbars[1].visible = false;
    layout.toolbars.push_back(
        {ToolbarKind::User, "My Door Tools", false, {{"ID_Compile", true}, {"ID_Wires", false}}});
    layout.dockState = "AAAA/wAAAAD9AAAAAA==";
    return layout;
}

TEST(ToolbarLayout, ACustomisedLayoutComesBackAsItWasWritten) {
    const ToolbarLayout layout = customised();
    const auto read = ReadToolbarLayout(WriteToolbarLayout(layout));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, layout);
    EXPECT_EQ(ReadToolbarLayout(WriteToolbarLayout(FactoryToolbarLayout())),
              FactoryToolbarLayout());
    std::string windows = WriteToolbarLayout(layout);
    for (auto at = windows.find('\n'); at != std::string::npos; at = windows.find('\n', at + 2))
        windows.insert(at, "\r");
    EXPECT_EQ(ReadToolbarLayout(windows), layout) << "carriage returns are no damage";
}

struct DamagedCase {
    const char* name;
    std::string text;
};

class DamagedLayout : public testing::TestWithParam<DamagedCase> {};

TEST_P(DamagedLayout, IsRefusedWhole) {
    EXPECT_FALSE(ReadToolbarLayout(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    ToolbarLayout, DamagedLayout,
    testing::Values(
        DamagedCase{"Empty", ""}, DamagedCase{"HeaderOnly", kHead},
        DamagedCase{"OtherHeader", "ZOLT Toolbars 9\n" + kMain + kNetlist},
        DamagedCase{"QtBinaryState", std::string("\0\0\0\xff\0\0\0\0\xfd", 9)},
        DamagedCase{"ToolBeforeAnyToolbar", kHead + "tool ID_New 1\n" + kMain + kNetlist},
        DamagedCase{"NoNetlistToolbar", kHead + kMain},
        DamagedCase{"NetlistBeforeMain", kHead + kNetlist + kMain},
        DamagedCase{"TwoMainToolbars", kHead + kMain + kNetlist + "toolbar main 1 Other\n"},
        DamagedCase{"NameTwiceInAnotherCase",
                    kHead + kMain + kNetlist + "toolbar user 1 Mine\ntoolbar user 1 MINE\n"},
        DamagedCase{"ToolbarWithoutName", kHead + kMain + kNetlist + "toolbar user 1\n"},
        DamagedCase{"VisibleNotAFlag", kHead + "toolbar main yes Main\n" + kNetlist},
        DamagedCase{"UnknownKind", kHead + kMain + kNetlist + "toolbar floating 1 X\n"},
        DamagedCase{"ShownNotAFlag", kHead + kMain + "tool ID_Open 2\n" + kNetlist},
        DamagedCase{"ToolLineTooLong", kHead + kMain + "tool ID_Open 1 extra\n" + kNetlist},
        DamagedCase{"UnknownLine", kHead + kMain + kNetlist + "button ID_New\n"},
        DamagedCase{"CutMidLine", kHead + kMain + "tool ID_Op\n"}),
    [](const testing::TestParamInfo<DamagedCase>& info) { return info.param.name; });

TEST(ToolbarLayout, CommandsTheProgramLacksAreDroppedAndNewFactoryToolsAppended) {
    const auto read = ReadToolbarLayout(kHead + "toolbar main 1 Main\ntool ID_Compile 0\n" +
                                        "tool ID_Gone 1\ntool ID_Compile 1\n" + kNetlist +
                                        "toolbar user 1 Mine\ntool ID_Gone 1\n");
    ASSERT_TRUE(read);
    const auto& main = read->toolbars[0].tools;
    EXPECT_EQ(main.front(), (ToolbarTool{"ID_Compile", false})) << "the first line of a tool wins";
    EXPECT_EQ(main.size(), FactoryToolbarLayout().toolbars[0].tools.size());
    EXPECT_EQ(main[1], (ToolbarTool{"ID_New", true}));
    EXPECT_TRUE(read->toolbars[2].tools.empty());
}

} // namespace
} // namespace zolt::shell
