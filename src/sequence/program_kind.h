#pragma once

#include <string>
#include <string_view>

namespace zolt {

class ProgramState;

// The kinds of program file: one binary format, told apart by the extension.
struct ProgramKind {
    std::string_view extension; // lower case, without the dot
    std::string_view name;      // its own entry of a file dialog's filter
    std::string_view openGroup; // the entry of the Open dialog it is listed under
    int openRank;               // its place there
    // A program of the assembly feature family, whose sequence knows the
    // pattern commands.
    bool family;
};

inline constexpr ProgramKind kProgramKinds[] = {
    {"zlf", "ZOLT Files", "ZOLT, ZOLT-GRV Files", 10, false},
    {"grv", "ZOLT-GRV Files", "ZOLT, ZOLT-GRV Files", 30, true},
    {"zlt", "ZOLT Templates", "ZOLT Templates", 40, false},
};

// The kind of a file by its extension in any case; nullptr when it is none.
const ProgramKind* ProgramKindOf(const std::string& fileName);
// True for a file of a family kind (`.grv`).
bool IsGrvFileName(const std::string& fileName);
// The same for the program that is open.
bool IsGrvProgram(const ProgramState& state);

} // namespace zolt
