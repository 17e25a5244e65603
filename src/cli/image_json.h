#pragma once

#include "compile/program_image.h"

#include <string>

namespace zolt::cli {

// A compiled image as JSON: the format version it was read in, the header, then
// every list, a record a line.
std::string ImageJson(const compile::ProgramImage& image, std::uint16_t version);

} // namespace zolt::cli
