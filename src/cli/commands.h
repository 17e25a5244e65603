#pragma once

namespace zolt::cli {

class BatchSession;

// Each group of batch commands registers itself here.
void RegisterProjectCommands(BatchSession& session);
void RegisterTableCommands(BatchSession& session);
void RegisterFileCommands(BatchSession& session);
// What a new project reads besides its file: the command dictionary for its
// kind, the device and macro lists when they are still empty.
void LoadProgramData(BatchSession& session);
void RegisterFixtureCommands(BatchSession& session);
void RegisterImportCommands(BatchSession& session);
void RegisterInterchangeCommands(BatchSession& session);
// Feature codes, stations and the test compile of a `.grv` program.
void RegisterAssemblyCommands(BatchSession& session);
void RegisterCompileCommands(BatchSession& session);
// File Settings, ZOLT Settings, Properties and the privilege dialog.
void RegisterSettingsCommands(BatchSession& session);
// Find, replace and the copies of a table from another tab or file.
void RegisterTransferCommands(BatchSession& session);
void RegisterAllCommands(BatchSession& session);

} // namespace zolt::cli
