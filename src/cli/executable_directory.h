#pragma once

#include <string>

namespace zolt::cli {

// The folder of the running executable, where its data files (ZOLT.MAC, ZOLT.DEV) lie.
std::string ExecutableDirectory(const char* argv0);

} // namespace zolt::cli
