#include "cli/batch_session.h"
#include "cli/commands.h"
#include "core/ports/ui.h"
#include "sequence/data_files.h"
#include "sequence/load_system_sequence_table.h"

#include <ostream>

namespace zolt::cli {

void LoadProgramData(BatchSession& session) {
    ProgramState& state = session.state();
    LoadSystemSequenceTable(state, state.document().CurrentFile);
    if (session.dataDirectory().empty())
        return;
    const auto report = [&](const DataFileRead& read) {
        if (read.ok())
            return true;
        // The lists are read as the last stage of reading a program file.
        state.ui().Message("Error reading file at End", "Abort File Read", Buttons::Ok, Icon::Stop);
        return false;
    };
    if (state.project().DeviceList.empty() &&
        !report(LoadDeviceFile(state, session.dataDirectory())))
        return;
    if (state.project().MacroList.empty())
        report(LoadMacroFile(state, session.dataDirectory()));
}

} // namespace zolt::cli
