#pragma once

#include "core/ports/ui.h"
#include "import/import_support.h"

#include <string>
#include <string_view>

namespace zolt {
class ProgramState;
}

namespace zolt::import {

// Creates a new program from a PID file, netlist by netlist: Yes when imported;
// No after the box that says why; Cancel when the user stopped at an unknown
// header. Whatever the result, the open program is gone; without Yes a new empty one
// stands in its place, never a half-filled one.
Answer ImportPIDFile(ProgramState& state, const std::string& path, const ImportContext& context);
// The same over the text of a PID file already in memory (Windows-1252).
Answer ImportPIDText(ProgramState& state, std::string_view text, const ImportContext& context);

// The largest PID file read.
inline constexpr std::size_t kMaxPidFileSize = 256u << 20;

} // namespace zolt::import
