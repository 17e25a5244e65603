#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zolt {
class ProgramState;
class SettingsStore;
class Ui;
} // namespace zolt

namespace zolt::compile {

// The Download command's warning when the data changed since the last compile.
inline constexpr const char* kStaleImageTitle = "Compiling Warning";
inline constexpr const char* kStaleImageText =
    "Data has been changed since last compile. Previous Compiled Data will be Downloaded.";

// Shows that warning when it applies: false when the user cancels it.
bool MayDownload(ProgramState& state);

// Where the label application is: a per-user setting, empty when it is not installed.
inline constexpr const char* kLabelSettingsSection = "User Settings";
inline constexpr const char* kLabelApplicationKey = "LabelApplication";
// The argument that opens the label application on its label designer.
inline constexpr const char* kLabelDesignerArgument = "/LBL";

// Starts a program without waiting for it; false when it could not be started.
using StartProgram =
    std::function<bool(const std::string& program, const std::vector<std::string>& args)>;

// The Edit Labels command: starts the label application, or says why it cannot.
void CreateLabels(Ui& ui, SettingsStore& settings, const StartProgram& start);

} // namespace zolt::compile
