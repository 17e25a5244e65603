#include "batch_script.h"

#include <gtest/gtest.h>

namespace zolt::cli {
namespace {

using test::RunScript;

TEST(SettingsCommands, PrivilegeUnlocksTheLockedBoxesForOneDialogOnly) {
    const test::ScriptRun run =
        RunScript("new\n"
                  "param set LampPinAllowed 0\n"
                  "privilege someone secret\n"
                  "privilege analyst wiremaps\n"
                  "settings file LampPin 1 CompLogMask 7 GridLocationAllowed 0\n"
                  "param get LampPin\n"
                  "param get CompLogMask\n"
                  "param get GridLocationAllowed\n"
                  "settings file LampPin 0\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.printed(), "VALUE \"1\"\n"
                             "VALUE \"7\"\n"
                             "VALUE \"0\"\n"
                             "ERROR line 9: LampPin's check box is disabled\n");
}

// What each dialog refuses is the settings tests'; here the commands reach them.
TEST(SettingsCommands, FileSettingsPropertiesAndZoltSettings) {
    const test::ScriptRun run = RunScript("new\n"
                                          "settings file UpperCase 1 DwellTime 9\n"
                                          "param get UpperCase\n"
                                          "settings file DwellTime .25 AutoStartTestPoint 1-2\n"
                                          "param get DwellTime\n"
                                          "properties Author \"Ann Lee\" customcomment8 last\n"
                                          "param get CustomComment8\n"
                                          "settings zolt ProgramsDirectory /no/such/folder/here\n"
                                          "settings zolt Baud 1234\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.printed(), "BOX \"ZOLT 6.0\" \"Enter Value Between 0.1 - 5.0\" -> OK\n"
                             "VALUE \"0\"\n"
                             "VALUE \"0.3\"\n"
                             "VALUE \"last\"\n"
                             "BOX \"ZOLT 6.0\" \"Invalid Directory or Drive Not Available\" -> OK\n"
                             "ERROR line 9: '1234' is no baud rate\n");
}

} // namespace
} // namespace zolt::cli
