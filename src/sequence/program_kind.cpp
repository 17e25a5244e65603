#include "sequence/program_kind.h"

#include "core/program_state.h"

namespace zolt {

bool IsGrvFileName(const std::string& fileName) {
    const auto dot = fileName.rfind('.');
    if (dot == std::string::npos)
        return false;
    const std::string extension = fileName.substr(dot + 1);
    // A dot inside a folder name is no extension.
    if (extension.find_first_of("/\\") != std::string::npos)
        return false;
    return vb::UCase(extension) == "GRV";
}

bool IsGrvProgram(const ProgramState& state) {
    return IsGrvFileName(state.document().CurrentFile);
}

} // namespace zolt
