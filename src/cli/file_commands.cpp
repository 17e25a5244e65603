#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/program_files.h"

namespace zolt::cli {
namespace {

void open(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 1, 1, "open PATH");
    OpenProgram(s.state(), args[0], s.dataDirectory());
}

void save(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 0, 0, "save");
    ProgramState& state = s.RequireProject();
    if (state.document().CurrentFile.empty())
        throw CommandError("the project has no file yet (use 'saveas PATH')");
    if (WriteProgram(state, state.document().CurrentFile) != Answer::Yes)
        throw CommandError("the save failed");
}

// As the desktop does it: the project is written, then read back from the new
// file, so that what is in memory is what the file holds.
void saveAs(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 1, 1, "saveas PATH");
    ProgramState& state = s.RequireProject();
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
