#pragma once

#include "file/program_file.h"

#include <iosfwd>
#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::cli {

// A plain open of a program file: the old project is released, the file read;
// 6 when the project is open, 7 (after the reader's box) when not.
int OpenProgram(ProgramState& state, const std::string& path, file::ReadFacts* facts = nullptr);

// `zolt-cli dump FILE`: the project's JSON on `out`, boxes on `err`; the exit code.
int DumpProgramFile(const std::string& path, std::ostream& out, std::ostream& err);
// `zolt-cli convert IN OUT`: read, then write under the new name and kind.
int ConvertProgramFile(const std::string& in, const std::string& outPath, std::ostream& out,
                       std::ostream& err);

} // namespace zolt::cli
