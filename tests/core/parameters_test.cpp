#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/parameters.h"
#include "support/scratch_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zolt {
namespace {

struct Store {
    ScriptedUi ui;
    MemorySettingsStore settings;
    KeyedCollection<CParameter> file;
    CParamList params{ui, settings, file};
};

TEST(Parameters, KeysMatchWithoutRegardToCaseAndUnknownKeysAreReported) {
    Store s;
    s.params.SetVal(std::string("uppercase"), Value(std::int32_t{1}));
    EXPECT_EQ(s.params.Val(param::UpperCase).text(), "1");
    for (const std::string key : {"CustomTitle0", "CustomTitle9", "NoSuchKey"}) {
        s.ui.ClearEvents();
        EXPECT_TRUE(s.params.Val(key).isNull());
        ASSERT_EQ(s.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(s.ui.ShownBoxes()[0].text, std::string("Param ") + key + " Not Found");
    }
    EXPECT_FALSE(s.params.IsParam(std::string("CustomTitle9"), false));
    EXPECT_TRUE(s.params.IsParam(std::string("customtitle8"), false));
}

TEST(Parameters, SetValueConvertsByType) {
    struct Case {
        ParamType type;
        Value in;
        bool ok;
        const char* text;
    };
    const Case cases[] = {
        {ParamType::Text, Value(" a "), true, " a "},
        {ParamType::Boolean, Value("True"), true, "True"},
        {ParamType::Boolean, Value("true"), true, "False"},
        {ParamType::Boolean, Value(std::int32_t{-1}), true, "True"},
        {ParamType::Boolean, Value(0.0), true, "False"},
        {ParamType::Integer, Value("12"), true, "12"},
        {ParamType::Integer, Value("2.5"), true, "2"},
        {ParamType::Integer, Value("abc"), false, "keep"},
        {ParamType::Integer, Value(3e9), false, "keep"},
        {ParamType::Real, Value("2.5"), true, "2.5"},
        {ParamType::Real, Value("x"), false, "keep"},
    };
    for (const auto& c : cases) {
        CParameter p{"P", ParamGroup::File, Value("keep"), Value(), ParamType::Text};
        EXPECT_EQ(p.SetValue(c.type, c.in), c.ok) << c.in.text();
        EXPECT_EQ(p.Val.text(), c.text) << c.in.text();
    }
}

TEST(Parameters, CommSettingsComeFromTheStoreOrTheirDefaults) {
    Store s;
    s.settings.Write("Comm Settings", "Baud", "19200");
    s.settings.Write("Comm Settings", "DataBits", "eight");
    s.params.LoadCommParameters();
    EXPECT_EQ(s.params.Val(param::Baud).text(), "19200");
    EXPECT_EQ(s.params.Find(param::Baud)->Default.text(), "9600");
    EXPECT_EQ(s.params.Val(param::DataBits).text(), "8");
    EXPECT_EQ(s.params.Val(param::Parity).text(), "NONE");
    s.params.SetVal(param::StopBits, Value(std::int32_t{2}));
    s.params.SaveCommParameters();
    EXPECT_EQ(s.settings.Read("Comm Settings", "StopBits"), "2");
}

TEST(Parameters, MissingDirectoriesAreNamedOnceAndDirectoriesAreMadeOneLevelDeep) {
    const test::ScratchFolder scratch;
    const std::filesystem::path& root = scratch.path();
    Store s;
    s.settings.Write("User Settings", "ProgramsDirectory", (root / "Programs").string());
    s.settings.Write("User Settings", "TemplatesDirectory", (root / "a" / "b").string());
    s.settings.Write("User Settings", "BackupFilesDirectory", root.string());
    s.settings.Write("User Settings", "EJFDirectory", (root / "Labels").string());
    s.settings.Write("User Settings", "PIDDirectory", (root / "Pid").string());
    bool dialogOpened = false;
    s.params.OnDirectoriesMissing([&] { dialogOpened = true; });
    s.params.LoadDirectoryParameters(true);
    EXPECT_TRUE(std::filesystem::is_directory(root / "Programs"));
    EXPECT_FALSE(std::filesystem::exists(root / "a"));
    ASSERT_EQ(s.ui.ShownBoxes().size(), 1u);
    const MessageBox& box = s.ui.ShownBoxes()[0];
    EXPECT_EQ(box.caption, "Default Paths Not Found...");
    EXPECT_EQ(box.text, "The following default paths were not found and could not be created: \n"
                        "\nTemplate Directory\n\nPlease reset these in ZOLT Settings.");
    EXPECT_EQ(box.icon, Icon::Information);
    EXPECT_TRUE(dialogOpened);
    s.params.SaveDirectoryParameters();
    EXPECT_EQ(s.settings.Read("User Settings", "PIDDirectory"), (root / "Pid").string());
}

// Each loader takes the keys of its group from the one list, so every key of
// the list is in the store once all three have run, in its own group and type.
TEST(Parameters, EveryListedKeyIsLoadedIntoItsGroup) {
    Store s;
    s.params.LoadDirectoryParameters(false);
    s.params.LoadCommParameters();
    ASSERT_EQ(s.params.All().size(), std::size(kParamDefinitions));
    for (const ParamDefinition& definition : kParamDefinitions) {
        const CParameter* p = s.params.Find(std::string(definition.name));
        ASSERT_NE(p, nullptr) << definition.name;
        EXPECT_EQ(p->Group, definition.group) << definition.name;
        EXPECT_EQ(p->Type, definition.type) << definition.name;
        EXPECT_EQ(p->Val, p->Default) << definition.name;
    }
    EXPECT_TRUE(s.ui.ShownBoxes().empty());
}

} // namespace
} // namespace zolt
