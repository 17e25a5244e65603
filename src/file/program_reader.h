#pragma once

#include "file/program_file.h"

#include <optional>
#include <string>
#include <string_view>

namespace zolt::file {

// Reads a program into `loader`'s project (MAIN made when missing), block by
// block, up to the picked block when there is one. The text of the failure,
// empty when the read went through.
std::string ReadProgramInto(ProgramState& loader, std::string_view bytes, const std::string& path,
                            ReadFacts& facts, std::optional<TablePick> pick = std::nullopt);

} // namespace zolt::file
