#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// `zolt-cli import IN OUT.zlf`: a new program from any file the import formats
// take (a drawing, a PID file, a legacy archive, another program), written to
// OUT. Boxes go to `out`, or to `err` when nothing was written; the exit code.
int ImportToFile(const std::string& in, const std::string& outPath,
                 const std::string& dataDirectory, SettingsStore& settings, std::ostream& out,
                 std::ostream& err);

// `zolt-cli export FILE --netlist NAME (--wireviz OUT.yml | --fromto OUT.csv)`:
// the netlist as a drawing another tool reads. What the drawing cannot hold is
// told on `err`; exit 0 when written, 2 when FILE, NAME or OUT fail.
int ExportCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                  SettingsStore& settings, std::ostream& out, std::ostream& err);

} // namespace zolt::cli
