#pragma once

#include "compile/program_image.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace zolt::cli {

// The compiled program of `path`: a `.bin` is read as it is; a program file is
// compiled in a scratch folder, so that nothing beside it changes. On failure the
// reason goes to `err` and the result is empty.
std::optional<compile::ProgramImage>
CompiledImage(const std::string& path, const std::string& dataDirectory, std::ostream& err);

} // namespace zolt::cli
