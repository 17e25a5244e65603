#include "import/pid_command.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/path_names.h"
#include "import/pid_import.h"

namespace zolt::import {

int ImportPidCommand(ProgramState& state, const ImportContext& context) {
    FileDialog dialog;
    dialog.title = "Import PID File";
    dialog.filter = "PID Files (*.pid)|*.pid";
    dialog.directory = state.Params().Text("PIDDirectory");
    if (!state.document().CurrentFile.empty())
        dialog.fileName =
            file::StripExtension(file::FileNameOf(state.document().CurrentFile)) + ".pid";
    const auto chosen = state.ui().ChooseFile(dialog);
    if (!chosen)
        return 2;
    std::string path = *chosen;
    // The dialog's default extension.
    if (file::FileNameOf(path).find('.') == std::string::npos)
        path += ".pid";
    if (file::UpperExtensionOf(path) != "PID") {
        state.ui().Message("Not a PID file", kAppTitle, Buttons::Ok, Icon::Warning);
        return 2;
    }
    if (ImportPIDFile(state, path, context) != 6) {
        state.ui().Message("PID File Not Imported", kAppTitle, Buttons::Ok, Icon::Information);
        return 7;
    }
    state.SetDirty(true);
    return 6;
}

} // namespace zolt::import
