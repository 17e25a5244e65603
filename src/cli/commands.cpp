#include "cli/commands.h"

namespace zolt::cli {

void RegisterAllCommands(BatchSession& session) {
    RegisterProjectCommands(session);
    RegisterTableCommands(session);
    RegisterFixtureCommands(session);
}

} // namespace zolt::cli
