#pragma once

#include "file/program_format.h"
#include "import/import_support.h"
#include "import/zip_archive.h"

#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::import {

// Converts a legacy `.zos` archive of the DOS generation into a new program
// file `<label>.zlf` in the same folder, then moves the source into the "DOS"
// folder under the backup directory. The outcome names the new program file.
// The work folder (`temp` beside the source) is removed whatever happens; the
// source is moved only once the new program file is written. Without 6 the
// old program is gone and a new empty one stands.
file::OpenOutcome ImportLegacyFile(ProgramState& state, const std::string& path,
                                   const ImportContext& context, const ArchiveLimits& limits = {});

// Registers `.zos` with the document commands' formats. `clock` must outlive them.
void RegisterImportFormats(file::ProgramFormats& formats, const Clock& clock,
                           const std::string& dataDirectory);
// Every kind a program opens from, in the desktop and in zolt-cli alike: the
// program file's own, then the importers'.
void RegisterOpenFormats(file::ProgramFormats& formats, const Clock& clock,
                         const std::string& dataDirectory);

} // namespace zolt::import
