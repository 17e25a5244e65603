#pragma once

#include <string>

namespace zolt {

class ProgramState;

inline constexpr const char* kMacroFileName = "ZOLT.MAC";
inline constexpr const char* kDeviceFileName = "ZOLT.DEV";

// The outcome of reading one data file: error 0 when it was read, else the run
// time's error number and text for the read that failed (53 "File not found").
struct DataFileRead {
    int error = 0;
    std::string description;
    std::string path;
    bool ok() const { return error == 0; }
};

// Replace `MacroList` by the lines of ZOLT.MAC, or `DeviceList` by those of
// ZOLT.DEV, in file order, from the data files in `directory`. A line without
// any field adds nothing. A file that cannot be read leaves the list empty.
DataFileRead LoadMacroFile(ProgramState& state, const std::string& directory);
DataFileRead LoadDeviceFile(ProgramState& state, const std::string& directory);

} // namespace zolt
