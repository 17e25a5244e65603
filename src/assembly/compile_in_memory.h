#pragma once

#include "compile/program_image.h"

#include <optional>
#include <string>

namespace zolt {

class CompileProgress;
class ProgramState;

struct MemoryCompile {
    // Nothing when the program does not compile without errors.
    std::optional<compile::ProgramImage> image;
    // The compiler's results text: why there is no image; empty when a box has
    // told the user already.
    std::string results;
};

// The image the open program compiles to, made as a value: the program, its
// files and its compile state stay as they were. A family
// compiles the variant its last test compile chose, as the Compile command does.
MemoryCompile CompileInMemory(ProgramState& state, CompileProgress& progress);

} // namespace zolt
