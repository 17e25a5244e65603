#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "settings/file_settings.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace zolt::settings {
namespace {

using test::TestProgram;

struct FieldCase {
    const char* name;
    Field field;
    const char* typed;
    // The message of a refused text; empty when it is taken.
    const char* message;
    // What the field shows once it is taken.
    const char* shown;
};

class FieldMessages : public ::testing::TestWithParam<FieldCase> {};

TEST_P(FieldMessages, LeavingTheFieldChecksIt) {
    TestProgram p;
    p.state.session().PrivilegedMode = true; // shows the compiler options field
    FileSettings dialog(p.state);
    const FieldCase& c = GetParam();
    const std::string before = dialog.Text(c.field);
    const bool taken = dialog.Leave(c.field, c.typed);
    EXPECT_EQ(taken, *c.message == '\0');
    if (taken) {
        EXPECT_TRUE(p.ui.ShownBoxes().empty());
        EXPECT_EQ(dialog.Text(c.field), c.shown);
    } else {
        ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(p.ui.ShownBoxes()[0].text, c.message);
        EXPECT_EQ(dialog.Text(c.field), before);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(FileSettings, FieldMessages, ::testing::Values(
    FieldCase{"DwellNotNumber", Field::DwellTime, "abc", "Enter Positive Real Number", ""},
    FieldCase{"DwellZero", Field::DwellTime, "0", "Enter Positive Real Number", ""},
    FieldCase{"DwellBelow", Field::DwellTime, "0.05", "Enter Value Between 0.1 - 5.0", ""},
    FieldCase{"DwellAbove", Field::DwellTime, "5.01", "Enter Value Between 0.1 - 5.0", ""},
    FieldCase{"DwellFormatted", Field::DwellTime, " .5", "", "0.5"},
    FieldCase{"DwellTop", Field::DwellTime, "5", "", "5.0"},
    FieldCase{"PointBoardTooHigh", Field::StartTestPoint, "16-000", "Invalid Test Pin Format or Number", ""},
    FieldCase{"PointPointTooHigh", Field::StartTestPoint, "0-128", "Invalid Test Pin Format or Number", ""},
    FieldCase{"PointMadeCanonical", Field::StartTestPoint, "3-7", "", "3-007"},
    FieldCase{"VoltageNotNumber", Field::TestVoltage, "five", "Enter Real Number", ""},
    FieldCase{"VoltageLow", Field::TestVoltage, "1.99", "Voltage Value Must Be Between 2 and 12", ""},
    FieldCase{"VoltageHigh", Field::TestVoltage, "12.5", "Voltage Value Must Be Between 2 and 12", ""},
    FieldCase{"VoltageTop", Field::TestVoltage, "12", "", "12.00"},
    FieldCase{"CurrentLow", Field::TestCurrent, "0.039", "Current Value Must Be Between 0.04 and 6", ""},
    FieldCase{"CurrentHigh", Field::TestCurrent, "6.01", "Current Value Must Be Between 0.04 and 6", ""},
    FieldCase{"CurrentBottom", Field::TestCurrent, "0.04", "", "0.04"},
    FieldCase{"ThresholdHigh", Field::Threshold, "10.5", "Voltage Value Must Be Between 0 and 10", ""},
    FieldCase{"ThresholdNegative", Field::Threshold, "-0.5", "Voltage Value Must Be Between 0 and 10", ""},
    FieldCase{"ThresholdZero", Field::Threshold, "0", "", "0"},
    FieldCase{"ThresholdHalfRoundsUp", Field::Threshold, "2.5", "", "3"},
    FieldCase{"Resistance999", Field::TestResistance, "999", "Resistance Value Must Be Between 1000 and 5000", ""},
    FieldCase{"ResistanceHigh", Field::TestResistance, "5001", "Resistance Value Must Be Between 1000 and 5000", ""},
    FieldCase{"ResistanceTaken", Field::TestResistance, "4000", "", "4000"},
    FieldCase{"MaskFraction", Field::CompLogMask, "1.5", "Enter Whole Number", ""},
    FieldCase{"MaskTaken", Field::CompLogMask, "255", "", "255"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(FileSettings, FieldsLeftAsShownKeepTheirExactValues) {
    TestProgram p;
    p.state.params().SetVal(param::Threshold, Value(2.4));
    FileSettings dialog(p.state);
    EXPECT_EQ(dialog.Text(Field::Threshold), "2");
    EXPECT_TRUE(dialog.Leave(Field::Threshold, "2"));
    dialog.Ok();
    EXPECT_NEAR(p.state.params().Number(param::Threshold), 2.4, 1e-6);
}

TEST(FileSettings, ThresholdAndResistanceFollowEachOtherAtTheTestCurrent) {
    TestProgram p;
    FileSettings dialog(p.state);
    // 2 V at 2 mA is 1000 Ohms.
    EXPECT_EQ(dialog.Text(Field::TestResistance), "1000");
    ASSERT_TRUE(dialog.Leave(Field::TestResistance, "2500"));
    EXPECT_EQ(dialog.Text(Field::Threshold), "5");
    ASSERT_TRUE(dialog.Leave(Field::TestCurrent, "4"));
    EXPECT_EQ(dialog.Text(Field::TestResistance), "1250");
    dialog.Ok();
    EXPECT_DOUBLE_EQ(p.state.params().Number(param::Threshold), 5.0);
    EXPECT_DOUBLE_EQ(p.state.params().Number(param::TestCurrent), 4.0);
}

TEST(FileSettings, AResistanceWhoseThresholdIsOutOfRangeIsRefused) {
    TestProgram p;
    FileSettings dialog(p.state);
    ASSERT_TRUE(dialog.Leave(Field::TestCurrent, "6"));
    // 5000 Ohms at 6 mA would be a threshold of 30 V.
    ASSERT_FALSE(dialog.Leave(Field::TestResistance, "5000"));
    EXPECT_EQ(p.ui.ShownBoxes().back().text, "Resistance Value Must Be Between 1000 and 5000");
    EXPECT_EQ(dialog.Text(Field::Threshold), "2");
    EXPECT_TRUE(dialog.Leave(Field::TestResistance, "1500"));
    EXPECT_EQ(dialog.Text(Field::Threshold), "9");
}

struct StoredCase {
    const char* name;
    Field field;
    ParamKey key;
    const char *typed, *stored;
};

class StoredAsShown : public ::testing::TestWithParam<StoredCase> {};

TEST_P(StoredAsShown, OkStoresTheValueInTheFieldsFormat) {
    TestProgram p;
    FileSettings dialog(p.state);
    ASSERT_TRUE(dialog.Leave(GetParam().field, GetParam().typed));
    dialog.Ok();
    EXPECT_EQ(p.state.params().Val(GetParam().key).text(), GetParam().stored);
}

// 1234 Ohms at 2 mA is 2.468 V, which the "##0" field shows as 2.
// clang-format off
INSTANTIATE_TEST_SUITE_P(FileSettings, StoredAsShown, ::testing::Values(
    StoredCase{"DwellTime", Field::DwellTime, param::DwellTime, "2.55", "2.6"},
    StoredCase{"TestVoltage", Field::TestVoltage, param::TestVoltage, "5.555", "5.56"},
    StoredCase{"ThresholdOfAResistance", Field::TestResistance, param::Threshold, "1234", "2"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(FileSettings, OkWritesTheFieldsAndMarksTheProjectChanged) {
    TestProgram p;
    FileSettings dialog(p.state);
    ASSERT_TRUE(dialog.SetChecked(param::UpperCase, true));
    ASSERT_TRUE(dialog.SetChecked(param::Switches, true));
    dialog.SetGroupMethod(true);
    ASSERT_TRUE(dialog.SetSwitchType(3));
    ASSERT_TRUE(dialog.Leave(Field::DwellTime, "1.5"));
    ASSERT_TRUE(dialog.Leave(Field::StartTestPoint, "2-5"));
    EXPECT_FALSE(p.state.IsDirty());
    dialog.Ok();
    // clang-format off
    for (const auto& [key, stored] : {std::pair{param::UpperCase, "1"}, {param::Switches, "1"}, {param::Group, "True"},
             {param::SwitchType, "3"}, {param::DwellTime, "1.5"}, {param::AutoStartTestPoint, "2-005"}})
        EXPECT_EQ(p.state.params().Val(key).text(), stored) << key.Name();
    // clang-format on
    EXPECT_TRUE(p.state.IsDirty());
    EXPECT_TRUE(p.state.project().NeedsCompile);
}

TEST(FileSettings, ManualNetlistIsAddedAndItsRemovalAskedFirst) {
    TestProgram p;
    {
        FileSettings dialog(p.state);
        // Checked and cleared again before OK: nothing to ask.
        ASSERT_TRUE(dialog.SetChecked(param::ManualNet, true));
        ASSERT_TRUE(dialog.SetChecked(param::ManualNet, false));
        ASSERT_TRUE(dialog.SetChecked(param::ManualNet, true));
        dialog.Ok();
    }
    const CNetList* manual = p.state.project().FindNetlist(kManualNetlists);
    ASSERT_NE(manual, nullptr);
    EXPECT_EQ(manual->NetlistType, 1);
    EXPECT_TRUE(p.ui.ShownBoxes().empty());

    const std::string question = "This action will delete the MANUAL NETLISTS table. Are you sure?";
    {
        FileSettings dialog(p.state);
        p.ui.Queue(Answer::Cancel);
        EXPECT_FALSE(dialog.SetChecked(param::ManualNet, false));
        ASSERT_EQ(p.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(p.ui.ShownBoxes()[0].text, question);
        EXPECT_TRUE(dialog.Checked(param::ManualNet));
        dialog.Ok();
    }
    EXPECT_NE(p.state.project().FindNetlist(kManualNetlists), nullptr);

    std::string active = kManualNetlists;
    ASSERT_TRUE(ActivateNetlist(p.state, active));
    {
        FileSettings dialog(p.state);
        p.ui.Queue(Answer::Ok);
        EXPECT_TRUE(dialog.SetChecked(param::ManualNet, false));
        dialog.Ok();
    }
    EXPECT_EQ(p.state.project().FindNetlist(kManualNetlists), nullptr);
    EXPECT_EQ(p.state.project().ActiveNetlist, p.state.project().MainNetlist);
    EXPECT_EQ(p.state.params().Val(param::ManualNet).text(), "0");
}

TEST(FileSettings, OkIsOneStepThatUndoTakesBackWhole) {
    TestProgram p;
    p.state.history().Reset();
    FileSettings dialog(p.state);
    ASSERT_TRUE(dialog.SetChecked(param::ManualNet, true));
    ASSERT_TRUE(dialog.SetChecked(param::UpperCase, true));
    ASSERT_TRUE(dialog.Leave(Field::TestVoltage, "9"));
    dialog.Ok();
    ASSERT_TRUE(p.state.history().Record());
    EXPECT_EQ(p.state.history().UndoText(), "Undo File Settings");
    ASSERT_TRUE(p.state.history().Undo());
    EXPECT_EQ(p.state.project().FindNetlist(kManualNetlists), nullptr);
    EXPECT_EQ(p.state.params().Val(param::UpperCase).text(), "0");
    EXPECT_DOUBLE_EQ(p.state.params().Number(param::TestVoltage), 5.0);
    EXPECT_FALSE(p.state.history().CanUndo());
}

TEST(FileSettings, SwitchesCannotGoWhileAnyNetlistHasSwitches) {
    TestProgram p;
    p.state.params().SetVal(param::Switches, Value(std::int32_t{1}));
    p.addNetlist("DOOR");
    test::AppendRow(*p.state.project().FindNetlist("DOOR"), table::Switches, {"J1", "S1"});
    FileSettings dialog(p.state);
    EXPECT_FALSE(dialog.SetChecked(param::Switches, false));
    EXPECT_TRUE(dialog.Checked(param::Switches));
    EXPECT_FALSE(dialog.SetSwitchType(2));
    EXPECT_EQ(dialog.SwitchType(), 1);
    EXPECT_EQ(p.boxTexts(),
              (std::vector<std::string>{"Can't Remove Switches setting while switches exist",
                                        "Can't change switch type setting while switches exist"}));
}

TEST(FileSettings, BoxesNotAllowedStayAsTheyAreUntilPrivilegedModeWhichEndsWithTheDialog) {
    TestProgram p;
    p.state.params().SetVal(param::LampPinAllowed, Value(std::int32_t{0}));
    FileSettings dialog(p.state);
    EXPECT_FALSE(dialog.CheckEnabled(param::LampPin));
    EXPECT_TRUE(dialog.CheckEnabled(param::GridLocation));
    EXPECT_FALSE(dialog.SetChecked(param::LampPin, true));
    EXPECT_FALSE(dialog.Checked(param::LampPin));
    EXPECT_FALSE(dialog.SetAllowed(param::LampPin, true));

    EXPECT_FALSE(dialog.Unlock("ANALYST", "WRONG"));
    EXPECT_FALSE(dialog.Unlock("", ""));
    EXPECT_FALSE(dialog.Privileged());
    EXPECT_TRUE(p.ui.Events().empty());

    EXPECT_TRUE(dialog.Unlock("analyst", "WireMaps"));
    EXPECT_TRUE(dialog.Privileged());
    EXPECT_TRUE(dialog.CheckEnabled(param::LampPin));
    EXPECT_TRUE(dialog.SetChecked(param::LampPin, true));
    EXPECT_TRUE(dialog.SetAllowed(param::UpperCase, false));
    dialog.Ok();
    dialog.Close();
    EXPECT_FALSE(p.state.session().PrivilegedMode);
    EXPECT_EQ(p.state.params().Val(param::LampPin).text(), "1");
    EXPECT_EQ(p.state.params().Val(param::UpperCaseAllowed).text(), "0");
    EXPECT_EQ(p.state.params().Val(param::LampPinAllowed).text(), "0");
}

} // namespace
} // namespace zolt::settings
