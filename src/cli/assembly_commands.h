#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// `zolt-cli grv-compile FILE.grv --features A,B -o OUT.zlf [--overwrite]`:
// opens the family program, selects the feature codes and writes the plain
// program. The family itself is never written; an existing OUT only with
// `overwrite`. Boxes and progress go to `out`, a failure to `err`; the exit code.
int GrvCompileProgramFile(const std::string& path, const std::vector<std::string>& features,
                          const std::string& outPath, bool overwrite,
                          const std::string& dataDirectory, SettingsStore& settings,
                          std::ostream& out, std::ostream& err);

} // namespace zolt::cli
