#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/import_files.h"
#include "cli/program_files.h"
#include "core/program_state.h"
#include "file/program_file.h"
#include "import/legacy_import.h"
#include "import/pid_import.h"

#include <ostream>
#include <sstream>

namespace zolt::cli {
namespace {

const SystemClock kClock;

import::ImportContext contextFor(BatchSession& s, const std::string& document){
    return {kClock, s.dataDirectory(), document.empty() ? std::string("New.zlf") : document};
} // namespace

// Into the open project (or a new one), as the desktop's Import PID command does.
void importPid(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 1, 1, "import-pid PATH");
    ProgramState& state = s.state();
    if (import::ImportPIDFile(state, args[0], contextFor(s, state.document().CurrentFile)) ==
        Answer::Yes)
        state.SetDirty(true);
}

// As opening a `.zos` does: the program file it makes is the open project.
void importZos(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 1, 1, "import-zos PATH");
    ProgramState& state = s.state();
    const auto outcome = import::ImportLegacyFile(state, args[0], contextFor(s, {}));
    state.document().FileOpen = outcome.result == Answer::Yes;
    state.document().CurrentFile = outcome.document;
    if (!state.document().FileOpen)
        state.DestroyAll();
}

} // namespace zolt::cli

void RegisterImportCommands(BatchSession& session) {
    session.Register("import-pid", importPid);
    session.Register("import-zos", importZos);
}

int ImportPidToFile(const std::string& in, const std::string& outPath,
                    const std::string& dataDirectory, SettingsStore& settings, std::ostream& out,
                    std::ostream& err) {
    std::ostringstream events;
    BatchSession session(events, settings);
    session.setDataDirectory(dataDirectory);
    ProgramState& state = session.state();
    const bool done =
        import::ImportPIDFile(state, in, contextFor(session, outPath)) == Answer::Yes &&
        WriteProgram(state, outPath) == Answer::Yes;
    (done ? out : err) << events.str();
    return done ? 0 : 1;
}

int ImportZosFile(const std::string& in, const std::string& dataDirectory, SettingsStore& settings,
                  std::ostream& out, std::ostream& err) {
    std::ostringstream events;
    BatchSession session(events, settings);
    session.setDataDirectory(dataDirectory);
    const bool done =
        import::ImportLegacyFile(session.state(), in, contextFor(session, {})).result ==
        Answer::Yes;
    (done ? out : err) << events.str();
    return done ? 0 : 1;
}

} // namespace zolt::cli
