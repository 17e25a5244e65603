#pragma once

namespace zolt::cli {

class BatchSession;

// Each group of batch commands registers itself here.
void RegisterProjectCommands(BatchSession& session);
void RegisterTableCommands(BatchSession& session);
void RegisterFixtureCommands(BatchSession& session);
void RegisterAllCommands(BatchSession& session);

} // namespace zolt::cli
