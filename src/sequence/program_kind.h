#pragma once

#include <string>

namespace zolt {

class ProgramState;

// True when the file's extension, in upper case, is GRV: a program of the
// assembly feature family, whose sequence knows the pattern commands.
bool IsGrvFileName(const std::string& fileName);
// The same for the program that is open.
bool IsGrvProgram(const ProgramState& state);

} // namespace zolt
