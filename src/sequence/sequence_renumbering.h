#pragma once

#include "core/grid.h"
#include "core/table_columns.h"

#include <functional>
#include <string>

namespace zolt {

// The argument type of a command name (-1 when unknown).
using CommandTypeLookup = std::function<int(const std::string& command)>;

// A text the numeric test accepts and that is shorter than 5 characters: the
// only parameter a numeric sequence command takes.
bool IsShortNumber(const std::string& text);

// Writes each row's own number into the line column, from `fromRow` on.
void RenumberLines(Grid& rows, int fromRow = 1);

// After a row was inserted at `row`: the rows from it on are renumbered, and a
// branch (type 3) to `row` or beyond goes up by one, so it keeps its target line.
void FollowInsertedLine(Grid& rows, int row, const CommandTypeLookup& typeOf);
// After the row at `row` was deleted: all rows are renumbered, and a branch
// beyond `row` goes down by one. A branch to `row` itself keeps its number and
// so lands on the line that moved up.
void FollowDeletedLine(Grid& rows, int row, const CommandTypeLookup& typeOf);

// What the command cell shows after a keystroke: the first command of the
// sorted list that starts with the typed prefix, its tail selected; or, when
// none does, the text as it was before, with a beep.
struct CommandCompletion {
    bool found = false;
    std::string text;
    int selStart = 0;
    int selLength = 0;
};
CommandCompletion CompleteCommandPrefix(const std::vector<std::string>& sortedNames,
                                        const std::string& previousText, const std::string& prefix);

} // namespace zolt
