#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace zolt {
class ProgramState;
class SettingsStore;
} // namespace zolt

namespace zolt::cli {

class BatchSession;

// Compiles the open project as the compiler window does and prints its results
// text; with `trace`, first every property set and call the compile control
// receives, one a line. True when the compile ran to its end without errors;
// nullopt when it never started (refused, or its pre-compile failed).
std::optional<bool> CompileProject(ProgramState& state, std::ostream& out, bool trace);

// `zolt-cli compile FILE [--trace]`: opens, compiles (with the ZOLT Settings of
// `settings`), saves the new compile date; exit 1 when the compile found errors
// or did not finish, 2 for bad arguments.
int CompileProgramFile(const std::string& path, const std::string& dataDirectory, bool trace,
                       SettingsStore& settings, std::ostream& out, std::ostream& err);

// `zolt-cli image FILE.bin`: the compiled image as JSON; exit 1 when it is no image.
int PrintImageFile(const std::string& path, std::ostream& out, std::ostream& err);

void RegisterCompileCommands(BatchSession& session);

} // namespace zolt::cli
