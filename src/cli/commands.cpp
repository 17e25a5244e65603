#include "cli/commands.h"

namespace zolt::cli {

void RegisterAllCommands(BatchSession& session) {
    RegisterProjectCommands(session);
    RegisterRowCommands(session);
    RegisterFileCommands(session);
    RegisterFixtureCommands(session);
}

} // namespace zolt::cli
