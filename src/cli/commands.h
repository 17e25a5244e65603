#pragma once

namespace zolt::cli {

class BatchSession;

// Each group of batch commands registers itself here.
void RegisterProjectCommands(BatchSession& session);
void RegisterFileCommands(BatchSession& session);
void RegisterAllCommands(BatchSession& session);

} // namespace zolt::cli
