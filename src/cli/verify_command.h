#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// `zolt-cli verify FILE [--netlist NAME] --against DOC`: the netlist (MAIN
// unless named) against a drawing: a from/to list, WireViz YAML or a KiCad netlist. Exit 0 when
// they agree, 1 with each difference on `out`, 2 when either cannot be read.
int VerifyCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                  SettingsStore& settings, std::ostream& out, std::ostream& err);

} // namespace zolt::cli
