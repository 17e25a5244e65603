#pragma once

#include "compare/difference.h"

namespace zolt {
struct Project;
}

namespace zolt::compare {

// What differs between two programs for the harness they test: each netlist
// against the one of the same name, then the sequence, colours, messages, test
// parameters and the file's settings. Nothing for two saves of one program.
Differences CompareProjects(const Project& before, const Project& after);

} // namespace zolt::compare
