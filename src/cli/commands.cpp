#include "cli/commands.h"

namespace zolt::cli {

void RegisterAllCommands(BatchSession& session) {
    RegisterProjectCommands(session);
    RegisterTableCommands(session);
    RegisterFileCommands(session);
    RegisterImportCommands(session);
    RegisterInterchangeCommands(session);
    // After the table commands: the fixture wraps their `key`.
    RegisterFixtureCommands(session);
    RegisterAssemblyCommands(session);
    RegisterCompileCommands(session);
    RegisterSettingsCommands(session);
    RegisterTransferCommands(session);
}

} // namespace zolt::cli
