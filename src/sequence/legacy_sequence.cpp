#include "sequence/legacy_sequence.h"

#include "core/value.h"

namespace zolt {

bool IsPatternCommand(const std::string& command) {
    const std::string name = vb::Trim(command);
    return name == "PBEGIN" || name == "PEND";
}

LegacyLine ConvertLegacySequenceLine(std::string& command, std::string& parameter) {
    LegacyLine result;
    if (command == "MBEGIN") {
        command = "PBEGIN";
        result.changed = true;
    } else if (command == "MEND") {
        command = "PEND";
        result.changed = true;
    }
    if (parameter == "MACRO1") {
        parameter = "MAIN";
        result.changed = true;
    }
    return result;
}

} // namespace zolt
