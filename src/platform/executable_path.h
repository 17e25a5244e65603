#pragma once

#include <string>

namespace zolt {

// The folder of the running executable, asked of the operating system; `argv0`
// made absolute where the system cannot tell. Plain C++: zolt-cli uses it
// without a Qt application object.
std::string ExecutableDirectory(const char* argv0);

} // namespace zolt
