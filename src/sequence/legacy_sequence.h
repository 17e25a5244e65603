#pragma once

#include <string>

namespace zolt {

// True for PBEGIN and PEND, the pattern commands only a .grv program keeps.
bool IsPatternCommand(const std::string& command);

// What reading an old sequence line changed: the old pattern commands MBEGIN
// and MEND become PBEGIN and PEND, the old pattern netlist MACRO1 becomes MAIN.
// Any of them marks an ordinary program as one of the assembly feature family.
struct LegacyLine {
    bool changed = false;
};
LegacyLine ConvertLegacySequenceLine(std::string& command, std::string& parameter);

} // namespace zolt
