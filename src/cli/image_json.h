#pragma once

#include "compile/program_image.h"

#include <string>

namespace zolt::cli {

// A compiled image as JSON: the header, then every list, a record a line.
std::string ImageJson(const compile::ProgramImage& image);

} // namespace zolt::cli
