#pragma once

#include "core/ports/ui.h"
#include "import/import_support.h"

namespace zolt {
class ProgramState;
}

namespace zolt::import {

// `ID_ImportPID`: the file dialog "Import PID File" in `PIDDirectory`, then the
// import into the open document. Yes when the program was imported (it is then
// marked as changed); Cancel when the dialog was cancelled or the name refused;
// No after "PID File Not Imported".
Answer ImportPidCommand(ProgramState& state, const ImportContext& context);

} // namespace zolt::import
