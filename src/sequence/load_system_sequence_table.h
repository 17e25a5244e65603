#pragma once

#include <string>

namespace zolt {

class CSystemSequenceTable;
class ProgramState;

// One command string cut into the fixed widths the dictionary was always read
// with: every field blank-padded or cut to its width, the high bound to 5.
struct CommandStringFields {
    std::string name;        // 15
    std::string flag;        // 2
    std::string type;        // 2
    std::string low;         // 2
    std::string high;        // 6, then 5
    std::string description; // 50; all text behind the fifth comma
};
CommandStringFields CutCommandString(const std::string& line);

// Rebuilds the dictionary from the program's command strings for a program file
// of this name: the pattern commands PBEGIN and PEND only for a .grv file.
void LoadSystemSequenceTable(CSystemSequenceTable& dictionary, const std::string& fileName);
// The same on MAIN's dictionary; false when there is no MAIN or no dictionary on it.
bool LoadSystemSequenceTable(ProgramState& state, const std::string& fileName);

} // namespace zolt
