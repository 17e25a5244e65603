#pragma once

#include <string>

namespace zolt::file {

// The file whose presence marks a folder as the one holding the program's data.
inline constexpr const char* kDataMarker = "ZOLT.DEV";

// The folder holding the data files (ZOLT.DEV, ZOLT.MAC, ZOLT.DEF, Blank.zlt,
// help), the first of these that holds ZOLT.DEV: beside the executable (a build
// tree or a portable copy), the installed share/zolt above its bin folder, the
// Resources folder of a macOS bundle. With none, the folder beside the
// executable, so that what reports a missing file names the place looked at first.
std::string DataDirectoryOf(const std::string& executableDirectory);

} // namespace zolt::file
