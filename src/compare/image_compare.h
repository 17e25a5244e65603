#pragma once

#include "compare/difference.h"

namespace zolt::compile {
struct ProgramImage;
}

namespace zolt::compare {

// Two compiled programs: each netlist against the one of the same name, its
// nets as sets of test points ("0-003"), connectors with their pin counts and
// components with the nets of their sides; then the sequence aligned line by
// line and the messages.
Differences CompareImages(const compile::ProgramImage& before, const compile::ProgramImage& after);

} // namespace zolt::compare
