#include "sequence/program_kind.h"

#include "core/program_state.h"

namespace zolt {

const ProgramKind* ProgramKindOf(const std::string& fileName) {
    const auto dot = fileName.rfind('.');
    if (dot == std::string::npos)
        return nullptr;
    const std::string extension = vb::LCase(fileName.substr(dot + 1));
    // A dot inside a folder name is no extension.
    if (extension.find_first_of("/\\") != std::string::npos)
        return nullptr;
    for (const ProgramKind& kind : kProgramKinds)
        if (kind.extension == extension)
            return &kind;
    return nullptr;
}

bool IsGrvFileName(const std::string& fileName) {
    const ProgramKind* kind = ProgramKindOf(fileName);
    return kind && kind->family;
}

bool IsGrvProgram(const ProgramState& state) {
    return IsGrvFileName(state.document().CurrentFile);
}

} // namespace zolt
