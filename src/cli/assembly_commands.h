#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt::cli {

// `zolt-cli grv-compile FILE.grv --features A,B -o OUT.zlf`: opens the family
// program, selects the feature codes and writes the plain program. Boxes and
// progress go to `out`, a failure to `err`; the exit code.
int GrvCompileProgramFile(const std::string& path, const std::vector<std::string>& features,
                          const std::string& outPath, const std::string& dataDirectory,
                          std::ostream& out, std::ostream& err);

} // namespace zolt::cli
