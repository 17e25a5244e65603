#pragma once

#include "core/ports/ui.h"
#include "file/program_format.h"
#include "import/import_support.h"
#include "interchange/drawing_formats.h"

#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::interchange {

// A new program whose MAIN holds the drawing at `path`. The outcome names the
// program it makes beside the drawing (`harness.zlf` for `harness.yml`), not
// written yet. Without Yes a new empty program stands, after the box that says
// which line of the drawing was refused and why.
file::OpenOutcome ImportDrawingProgram(ProgramState& state, const std::string& path,
                                       const import::ImportContext& context);

// The drawing at `path` as a new netlist `name` of the open program: Yes; No
// after the box, with the program as it was (no netlist, no colour added).
Answer ImportDrawingAsNetlist(ProgramState& state, const std::string& path,
                              const std::string& name);

// The caption of the import's boxes.
inline constexpr const char* kImportCaption = "Import Drawing";

} // namespace zolt::interchange
