#include "compile/compile_commands.h"

#include "core/ports/settings_store.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/value.h"

#include <filesystem>

namespace zolt::compile {

bool MayDownload(ProgramState& state) {
    if (!state.project().NeedsCompile)
        return true;
    return state.ui().Show(MessageBox{kStaleImageTitle, kStaleImageText, Buttons::OkCancel,
                                      Icon::Warning}) != Answer::Cancel;
}

void CreateLabels(Ui& ui, SettingsStore& settings, const StartProgram& start) {
    const std::string program =
        vb::Trim(settings.ReadOr(kLabelSettingsSection, kLabelApplicationKey, ""));
    if (program.empty()) {
        ui.Show(
            MessageBox{"Create Labels",
                       "This application creates labels for Thessor Printers.\n"
                       "Print labels with the PLABEL Sequence Commands.\n"
                       "To obtain the Labelark label application, call your Thessor sales office.\n"
                       "Once it is installed, enter its path as the label application in the "
                       "user settings.",
                       Buttons::Ok, Icon::Information});
        return;
    }
    std::error_code ec;
    if (!std::filesystem::is_regular_file(program, ec)) {
        ui.Show(MessageBox{"Labelark Software Not Found",
                           "The application to create labels CANNOT be found.\n"
                           "Labelark must be installed in order to create labels.\n"
                           "Please re-install Labelark to the proper location.\n"
                           "(If Labelark is currently installed, uninstall first.)",
                           Buttons::Ok, Icon::Warning});
        return;
    }
    if (!start(program, {kLabelDesignerArgument}))
        ui.Show(MessageBox{"Unable To Access Labelark Software",
                           "There was a problem accessing the Labelark application.\n"
                           "Please be sure that Labelark was installed correctly.",
                           Buttons::Ok, Icon::Warning});
}

} // namespace zolt::compile
