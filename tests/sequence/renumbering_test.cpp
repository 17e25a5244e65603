#include "sequence/sequence_renumbering.h"
#include "sequence_lines.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

// A small command language for the cases: branches are type 3, CASE is a number.
int TypeOf(const std::string& command) {
    if (command == "GOTO" || command == "DBNZS" || command == "BER")
        return 3;
    if (command == "CASE" || command == "MESSAGE")
        return command == "CASE" ? 1 : 4;
    return command == "NOP" ? 0 : -1;
}

Grid Lines(std::string_view text) {
    const auto lines = test::SequenceLines(text);
    Grid g(static_cast<int>(lines.size()), 7);
    for (int r = 1; r <= g.Rows(); ++r) {
        g.Set(r, 0, Value(static_cast<std::int16_t>(r)));
        g.Set(r, 1, Value(lines[static_cast<std::size_t>(r - 1)].first));
        g.Set(r, 2, Value(lines[static_cast<std::size_t>(r - 1)].second));
    }
    return g;
}

std::vector<std::string> Parameters(const Grid& g) {
    return test::ColumnTexts(g, 2);
}

void ExpectNumbered(const Grid& g) {
    for (int r = 1; r <= g.Rows(); ++r)
        EXPECT_EQ(g.At(r, 0), Value(static_cast<std::int16_t>(r))) << "row " << r;
}

// Lines as (command, parameter) before a line is deleted or inserted at `row`,
// and the parameters after.
// clang-format off
struct RenumberCase { const char* name; int row; const char* before; std::vector<std::string> after; };
// clang-format on

TEST(SequenceRenumbering, DeleteKeepsBranchesOnTheirLines) {
    // clang-format off
    const RenumberCase cases[] = {
        {"goto 5 stays, goto 9 follows", 5, "GOTO 5; GOTO 9; NOP; NOP; NOP; NOP; NOP; NOP; NOP", {"5", "8", "", "", "", "", "", ""}},
        {"every branch kind alike, numbers never", 2, "DBNZS 4; NOP; BER 3; CASE 4; MESSAGE 4", {"3", "2", "4", "4"}},
        {"only short numbers move", 1, "NOP; GOTO 01024; GOTO abc; GOTO; GOTO 1", {"01024", "abc", "", "1"}},
        {"lower targets stay", 3, "GOTO 2; GOTO 1; NOP", {"2", "1"}},
    };
    // clang-format on
    for (const auto& c : cases) {
        Grid g = Lines(c.before);
        g.DeleteRows(c.row);
        FollowDeletedLine(g, c.row, TypeOf);
        EXPECT_EQ(Parameters(g), c.after) << c.name;
        ExpectNumbered(g);
    }
}

TEST(SequenceRenumbering, InsertMovesBranchesAtOrBeyondTheNewLine) {
    // clang-format off
    const RenumberCase cases[] = {
        {"goto 5 follows, goto 4 stays", 5, "GOTO 5; GOTO 4; NOP; NOP; NOP", {"6", "4", "", "", "", ""}},
        {"every branch kind alike, numbers never", 1, "DBNZS 1; BER 2; CASE 2; MESSAGE 1", {"", "2", "3", "2", "1"}},
        {"any number moves, even a long one", 2, "GOTO 01024; GOTO x", {"1025", "", "x"}},
        {"append at the end", 3, "GOTO 2; GOTO 3", {"2", "4", ""}},
    };
    // clang-format on
    for (const auto& c : cases) {
        Grid g = Lines(c.before);
        g.InsertRows(c.row);
        FollowInsertedLine(g, c.row, TypeOf);
        EXPECT_EQ(Parameters(g), c.after) << c.name;
        ExpectNumbered(g);
    }
}

TEST(SequenceRenumbering, ShortNumbersHaveFewerThanFiveCharacters) {
    for (const char* yes : {"1", "1024", "9999", " 12", "1.5"})
        EXPECT_TRUE(IsShortNumber(yes)) << yes;
    for (const char* no : {"12345", "", "A1", "0001024", "1-2"})
        EXPECT_FALSE(IsShortNumber(no)) << no;
}

} // namespace
} // namespace zolt
