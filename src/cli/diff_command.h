#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// `zolt-cli diff A B [--json]`: the changes from A to B (two programs of any
// kind zolt-cli imports, or two compiled `.bin` images), a line each or as
// JSON. Exit 0 when the programs test the same harness, 1 when they differ, 2
// when either cannot be read (the reader's message on `err`).
int DiffCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                SettingsStore& settings, std::ostream& out, std::ostream& err);

} // namespace zolt::cli
