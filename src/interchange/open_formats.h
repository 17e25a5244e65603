#pragma once

#include "core/ports/clock.h"
#include "file/program_format.h"

#include <string>

namespace zolt::interchange {

// Every kind a program opens from, in the desktop and in zolt-cli alike: the
// program file's own, the legacy archive, and the drawings of other tools.
// `clock` must outlive the formats.
void RegisterOpenFormats(file::ProgramFormats& formats, const Clock& clock,
                         const std::string& dataDirectory);
// What `zolt-cli import` takes: the open formats and PID files.
void RegisterImportableFormats(file::ProgramFormats& formats, const Clock& clock,
                               const std::string& dataDirectory);

} // namespace zolt::interchange
