#pragma once

#include <string>

namespace zolt {

class CSequenceTable;

// What typing `typed` into a cell of a sequence line leaves in it, as the grid
// does it key by key: the command column completes the text from the sorted
// dictionary (a key after which no command starts with the text beeps and
// leaves the text as it was before that key, `previousText` at first);
// a parameter of a number, branch or message line keeps its digits only.
// `command` is the line's command at the time of typing.
std::string TypeSequenceCell(const CSequenceTable& sequence, int column, const std::string& command,
                             const std::string& previousText, const std::string& typed);

} // namespace zolt
