#include "sequence/data_files.h"

#include "core/program_state.h"
#include "sequence/parse_fields.h"

#include <filesystem>
#include <fstream>
#include <functional>

namespace zolt {
namespace {

constexpr int kFileNotFound = 53;
constexpr int kPathFileAccessError = 75;

// Reads every line of a data file and hands each line's fields on.
DataFileRead ReadDataFile(const std::string& directory, const char* fileName,
                          const std::function<void(const FieldArray&)>& take) {
    DataFileRead result;
    result.path = (std::filesystem::path(directory) / fileName).string();
    std::error_code ec;
    if (!std::filesystem::is_regular_file(result.path, ec)) {
        result.error = kFileNotFound;
        result.description = "File not found";
        return result;
    }
    std::ifstream in(result.path, std::ios::binary);
    if (!in) {
        result.error = kPathFileAccessError;
        result.description = "Path/File access error";
        return result;
    }
    std::string line;
    FieldArray fields;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (ParseFields(line, fields, true) > 0)
            take(fields);
    }
    return result;
}

} // namespace

DataFileRead LoadMacroFile(ProgramState& state, const std::string& directory) {
    ClearCollection(state.project().MacroList);
    return ReadDataFile(directory, kMacroFileName, [&](const FieldArray& f) {
        CMacro macro;
        macro.MacroName = f[0];
        macro.MacroStep = vb::CInt(Value(f[1])).value_or(0);
        macro.Command = f[2];
        macro.Parameter = f[3];
        state.project().MacroList.Add(std::move(macro));
    });
}

DataFileRead LoadDeviceFile(ProgramState& state, const std::string& directory) {
    ClearCollection(state.project().DeviceList);
    return ReadDataFile(directory, kDeviceFileName, [&](const FieldArray& f) {
        state.project().DeviceList.Add(CComponent{f[0], f[1], f[2], f[3]});
    });
}

} // namespace zolt
