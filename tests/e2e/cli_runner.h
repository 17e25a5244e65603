#pragma once

#include "support/file_contents.h"
#include "support/scratch_folder.h"
#include "support/shell_command.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace zolt::test {

// The repository's root and the example program it ships.
inline const std::filesystem::path kRepository =
    std::filesystem::path(ZOLT_TEST_DATA_DIR).parent_path().parent_path();
inline const std::filesystem::path kExample = kRepository / "examples" / "harness.zlf";

// Runs `zolt-cli ARGUMENTS` (already quoted for the shell) in `folder`. A fixed
// home keeps the default directories, and so the transcripts, the same on
// every machine; a settings folder that cannot exist keeps the user's settings
// out and lets no run leave any behind (`--settings FILE` keeps them on purpose).
inline CliRun RunCli(const std::filesystem::path& folder, const std::string& arguments) {
    return RunCommand(
        "cd '" + folder.string() +
        "' && HOME=/zolt-test-home XDG_CONFIG_HOME=/dev/null/zolt-settings '" ZOLT_BIN_DIR
        "/zolt-cli' " +
        arguments);
}

// Runs `zolt-cli batch SCRIPT` in `folder`.
inline CliRun RunBatch(const std::filesystem::path& folder, const std::string& script) {
    return RunCli(folder, "batch '" + script + "'");
}

// Runs examples/SCRIPT in `root`, which holds a copy of that script alone: as
// from the repository's root, with nothing beside the committed files to reach
// the result.
inline CliRun RunExample(const std::filesystem::path& root, const std::string& script) {
    std::filesystem::create_directories(root / "examples");
    std::filesystem::copy_file(kRepository / "examples" / script, root / "examples" / script);
    return RunBatch(root, "examples/" + script);
}

} // namespace zolt::test
