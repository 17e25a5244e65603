#pragma once

#include "core/param_keys.h"

#include <string>
#include <vector>

namespace zolt {
class ProgramState;
}

namespace zolt::settings {

// The descriptive keys of the project in the order the Properties dialog
// loads and writes them: part number to notes, then the eight title and
// comment pairs.
const std::vector<ParamKey>& PropertyKeys();

// The text of every property, in the order of PropertyKeys.
std::vector<std::string> LoadProperties(ProgramState& state);
// OK of the Properties dialog: every text written, the project marked changed.
void WriteProperties(ProgramState& state, const std::vector<std::string>& texts);

} // namespace zolt::settings
