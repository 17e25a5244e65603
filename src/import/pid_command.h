#pragma once

#include "import/import_support.h"

namespace zolt {
class ProgramState;
}

namespace zolt::import {

// `ID_ImportPID`: the file dialog "Import PID File" in `PIDDirectory`, then the
// import into the open document. 6 when the program was imported (it is then
// marked as changed); 2 when the dialog was cancelled or the name refused; 7
// after "PID File Not Imported".
int ImportPidCommand(ProgramState& state, const ImportContext& context);

} // namespace zolt::import
