#include "import/pid_command.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/path_names.h"
#include "import/pid_import.h"

namespace zolt::import {

Answer ImportPidCommand(ProgramState& state, const ImportContext& context) {
    FileDialog dialog;
    dialog.title = "Import PID File";
    dialog.filter = "PID Files (*.pid)|*.pid";
    dialog.directory = state.params().Text(param::PIDDirectory);
    if (!state.document().CurrentFile.empty())
        dialog.fileName =
            file::StripExtension(file::FileNameOf(state.document().CurrentFile)) + ".pid";
    const auto chosen = state.ui().ChooseFile(dialog);
    if (!chosen)
        return Answer::Cancel;
    std::string path = *chosen;
    // The dialog's default extension.
    if (file::FileNameOf(path).find('.') == std::string::npos)
        path += ".pid";
    if (file::UpperExtensionOf(path) != "PID") {
        state.ui().Message("Not a PID file", kAppTitle, Buttons::Ok, Icon::Warning);
        return Answer::Cancel;
    }
    if (ImportPIDFile(state, path, context) != Answer::Yes) {
        state.ui().Message("PID File Not Imported", kAppTitle, Buttons::Ok, Icon::Information);
        return Answer::No;
    }
    state.SetDirty(true);
    return Answer::Yes;
}

} // namespace zolt::import
