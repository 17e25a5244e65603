#pragma once

#include "compare/difference.h"

#include <functional>

namespace zolt {
class Grid;
}

namespace zolt::compare {

// The argument type of a command (command_type), -1 when unknown.
using CommandTypes = std::function<int(const std::string& command)>;

// The test sequences aligned line by line: an inserted line is one "+", a
// removed one "-", a changed one both. A branch is compared by the line it
// reaches, so renumbering the lines with the branches following is no change.
Differences CompareSequences(const Grid& before, const CommandTypes& typesBefore, const Grid& after,
                             const CommandTypes& typesAfter);

} // namespace zolt::compare
