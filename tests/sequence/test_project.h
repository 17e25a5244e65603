#pragma once

#include "support/test_program.h"

namespace zolt::testing {

// A program with a new project open, answered from a script.
using TestProject = zolt::test::TestProgram;

} // namespace zolt::testing
