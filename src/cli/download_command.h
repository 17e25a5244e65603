#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt::cli {

// `zolt-cli download FILE --port DEV [--baud N] [--yes]`: sends FILE's `.bin`
// (FILE is the program file or the `.bin` itself) as the download window does,
// status and progress on `err`; a program changed since its compile is sent only
// with --yes. Exit 0 only when the download completed, 2 for bad arguments.
int DownloadCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err);

} // namespace zolt::cli
