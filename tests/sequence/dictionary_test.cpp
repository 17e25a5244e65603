#include "core/table_kinds.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/system_sequence_table.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

using TestProject = test::TestProgram;

CSystemSequenceTable& Dictionary(TestProject& p) {
    return *p.state.project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList);
}

TEST(Dictionary, PatternCommandsBelongOnlyToGrvPrograms) {
    TestProject p;
    CSystemSequenceTable& dictionary = Dictionary(p);
    // clang-format off
    const struct { const char* file; int rows; int pbegin; } cases[] = {
        {"C:\\TESTS\\HARNESS.ZLF", 162, -1}, {"C:\\TESTS\\HARNESS.grv", 164, 1}, {"", 162, -1},
        {"C:\\A.GRV\\HARNESS", 162, -1}, {"family.Grv", 164, 1},
    };
    // clang-format on
    for (const auto& c : cases) {
        ASSERT_TRUE(LoadSystemSequenceTable(p.state, c.file));
        EXPECT_EQ(dictionary.gridarray().Rows(), c.rows) << c.file;
        EXPECT_EQ(dictionary.GetCommandType("PBEGIN"), c.pbegin) << c.file;
        EXPECT_EQ(dictionary.FindCommand("PEND") != 0, c.pbegin == 1) << c.file;
    }
}

TEST(Dictionary, LookupsCompareTrimmedAndUpperCased) {
    TestProject p;
    LoadSystemSequenceTable(p.state, "x.grv");
    const CSystemSequenceTable& d = Dictionary(p);
    // clang-format off
    const struct { const char* name; int type; const char* low; const char* high; const char* description; } cases[] = {
        {"  goto ", 3, "1", "1024", "Go To Line Number"},
        {"+FAST", 0, "", "", "** Legacy - Fast Short Scan Speed **"},
        {"XBSET(H)", 0, "", "", "Set Thessor Accessory Point Matching Holding"},
        {"XBSET", 1, "0", "1023", "Set Specified Thessor Accessory Point"},
        {"RCOUNT==", 0, "", "", "If RCOUNT = Holding Value, Set Holding To 1"},
        {"PMESSAGE", 4, "0", "127", "Send Text Out Serial Port"},
        {"ALARMON", 6, "", "", "General Beginning for Alarm Switch Scan"},
        {"PLABEL2", 7, "", "", "Print BarCode Label #2 To Thessor Printer"},
        {"XBSET(", -1, "", "", ""},
        {"GOTO 5", -1, "", "", ""},
        {"", -1, "", "", ""},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(d.GetCommandType(c.name), c.type) << c.name;
        EXPECT_EQ(d.GetCommandLow(c.name), c.low) << c.name;
        EXPECT_EQ(d.GetCommandHigh(c.name), c.high) << c.name;
        EXPECT_EQ(d.GetCommandDescription(c.name), c.description) << c.name;
        EXPECT_EQ(d.IsMacro(c.name), c.type == 6 || c.type == 7) << c.name;
    }
}

TEST(Dictionary, HoldsEveryCommandOnceWithItsFlagAndNoVersion) {
    TestProject p;
    LoadSystemSequenceTable(p.state, "x.grv");
    const Grid& g = Dictionary(p).gridarray();
    ASSERT_EQ(g.Columns(), 7);
    for (int row = 1; row <= g.Rows(); ++row) {
        EXPECT_EQ(Dictionary(p).FindCommand(g.Text(row, 0)), row) << "duplicate " << g.Text(row, 0);
        EXPECT_EQ(g.Text(row, 1), "0");
        EXPECT_EQ(g.Text(row, 6), "");
        const int type = Dictionary(p).GetCommandType(g.Text(row, 0));
        // Bounds exist exactly for the numeric kinds.
        EXPECT_EQ(g.Text(row, 4).empty(), type != 1 && type != 3 && type != 4) << g.Text(row, 0);
    }
}

TEST(Dictionary, ValueItemsAreTheTrimmedNamesAndDescriptionsInOrder) {
    TestProject p;
    CSystemSequenceTable& d = Dictionary(p);
    std::vector<CommandItem> items{{"stale", "stale"}};
    d.FillValueItems(items);
    EXPECT_TRUE(items.empty());
    LoadSystemSequenceTable(p.state, "x.zlf");
    d.FillValueItems(items);
    ASSERT_EQ(items.size(), 162u);
    EXPECT_EQ(items.front().name, "ADV");
    EXPECT_EQ(items.front().description, "Allow Advance By Start Key On Error");
    for (std::size_t i = 0; i < items.size(); ++i)
        EXPECT_EQ(items[i].name, d.gridarray().Text(static_cast<int>(i) + 1, 0));
}

TEST(Dictionary, CommandStringsAreCutToTheirFixedWidths) {
    const auto f = CutCommandString(
        "AVERYLONGCOMMANDNAME,00,31,123,1234567,Description, with a comma and more text than "
        "fifty characters");
    EXPECT_EQ(f.name, "AVERYLONGCOMMAN");
    EXPECT_EQ(f.flag, "00");
    EXPECT_EQ(f.type, "31");
    EXPECT_EQ(f.low, "12");
    EXPECT_EQ(f.high, "12345");
    EXPECT_EQ(f.description, "Description, with a comma and more text than fifty");
    const auto s = CutCommandString("ADV,0,0,,,Allow");
    EXPECT_EQ(s.name, "ADV            ");
    EXPECT_EQ(s.low, "  ");
    EXPECT_EQ(s.high, "     ");
    EXPECT_EQ(s.description.size(), 50u);
    const auto shortLine = CutCommandString("NAME,0");
    EXPECT_EQ(vb::Trim(shortLine.type), "");
    EXPECT_EQ(vb::Trim(shortLine.description), "");
}

TEST(CommandCompletion, CompletesFromTheSortedListOrKeepsThePreviousText) {
    TestProject p;
    LoadSystemSequenceTable(p.state, "x.zlf");
    const auto names = SortedCommandNames(Dictionary(p));
    // clang-format off
    const struct { const char* previous; const char* prefix; bool found; const char* text; int selStart; int selLength; } cases[] = {
        {"", "GO", true, "GOCASE", 2, 4}, {"GOCASE", "GOT", true, "GOTO", 3, 1},
        {"", "go", true, "GOCASE", 2, 4}, {"", "-", true, "-ALARM", 1, 5},
        {"", "+", true, "+FAST", 1, 4},   {"", "RCOUNT=", true, "RCOUNT=", 7, 0},
        {"GO", "GOX", false, "GO", 2, 0}, {"", "PB", false, "", 0, 0},
        {"", "", true, "", 0, 0},
    };
    // clang-format on
    for (const auto& c : cases) {
        const auto r = CompleteCommandPrefix(names, c.previous, c.prefix);
        EXPECT_EQ(r.found, c.found) << c.prefix;
        EXPECT_EQ(r.text, c.text) << c.prefix;
        EXPECT_EQ(r.selStart, c.selStart) << c.prefix;
        EXPECT_EQ(r.selLength, c.selLength) << c.prefix;
    }
}

} // namespace
} // namespace zolt
