#pragma once

#include <string>
#include <vector>

namespace zolt::file {

// The file whose presence marks a folder as the one holding the program's data.
inline constexpr const char* kDataMarker = "ZOLT.DEV";

// The folders that may hold the data files (ZOLT.DEV, ZOLT.MAC, ZOLT.DEF,
// Blank.zlt, help), nearest first: beside the executable (a build tree or a
// portable copy), the installed share/zolt above its bin folder, and the
// Resources folder of a macOS bundle.
std::vector<std::string> DataDirectoryCandidates(const std::string& executableDirectory);

// The first candidate holding ZOLT.DEV. With none, the folder beside the
// executable, so that what reports a missing file names the place it looked first.
std::string DataDirectoryOf(const std::string& executableDirectory);

} // namespace zolt::file
