#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/program_files.h"
#include "core/document.h"
#include "core/program_state.h"
#include "file/document_lifecycle.h"
#include "file/path_names.h"

namespace zolt::cli {
namespace {

void open(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 1, 1, "open PATH");
    ProgramState& state = s.state();
    if (OpenProgram(state, args[0], s.dataDirectory()) != Answer::Yes ||
        !state.document().ConvertToGRV)
        return;
    // As the desktop's Open converts an older family: the original goes to the
    // backup folder before the program is saved as a `.grv` and read back.
    state.document().ConvertToGRV = false;
    const std::string converted = file::ConvertedName(args[0]);
    if (!file::BackUpBeforeConversion(s.ui(), args[0],
                                      state.params().Text(param::BackupFilesDirectory))) {
        state.document().CurrentFile = converted;
        return;
    }
    if (file::WriteProgramFile(state, converted) != Answer::Yes)
        throw CommandError("the converted program could not be saved");
    OpenProgram(state, converted, s.dataDirectory());
}

void save(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 0, 0, "save");
    ProgramState& state = s.RequireProject();
    // A template, or a program still without a name (the test compile's before
    // its Save As), is saved under a new name only.
    if (state.document().CurrentFile.empty() || file::IsNewOrTemplate(state.document().CurrentFile))
        throw CommandError("the project has no file yet (use 'saveas PATH')");
    if (WriteProgram(state, state.document().CurrentFile) != Answer::Yes)
        throw CommandError("the save failed");
}

// As the desktop does it: the project is written, then read back from the new
// file, so that what is in memory is what the file holds.
void saveAs(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 1, 1, "saveas PATH");
    ProgramState& state = s.RequireProject();
    const Document& document = state.document();
    if (!file::ConfirmGrvDataLoss(s.ui(), document.CurrentFile, args[0],
                                  document.GRVTestCompileSave))
        throw CommandError("the save was cancelled (answer ok to save without the GRV data)");
    // A script must see a failure as a line that could not run.
    if (WriteProgram(state, args[0]) != Answer::Yes)
        throw CommandError("the save failed");
    if (OpenProgram(state, args[0], s.dataDirectory()) != Answer::Yes)
        throw CommandError("the saved file could not be read back");
}

} // namespace

void RegisterFileCommands(BatchSession& session) {
    session.Register("open", open);
    session.Register("save", save);
    session.Register("saveas", saveAs);
}

} // namespace zolt::cli
