#pragma once

#include <iosfwd>
#include <string>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// `zolt-cli import-pid IN OUT`: a new program from the PID file IN, written to
// OUT, with the folders of `settings`. Boxes go to `out`, or to `err` when nothing
// was written; the exit code.
int ImportPidToFile(const std::string& in, const std::string& outPath,
                    const std::string& dataDirectory, SettingsStore& settings, std::ostream& out,
                    std::ostream& err);

// `zolt-cli import-zos IN`: the legacy archive IN as a new program file beside
// it; the source goes to the backup folder of `settings`. Boxes go to `out`; the
// exit code.
int ImportZosFile(const std::string& in, const std::string& dataDirectory, SettingsStore& settings,
                  std::ostream& out, std::ostream& err);

} // namespace zolt::cli
