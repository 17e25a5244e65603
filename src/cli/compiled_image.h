#pragma once

#include "compile/program_image.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// The bound `zolt-cli image` reads a compiled program with.
inline constexpr std::size_t kMaxImageBytes = 64u << 20;

// The `.bin` at `path`; on failure the reason goes to `err` and the result is empty.
std::optional<compile::ProgramImage> ReadImageFile(const std::string& path, std::ostream& err);

// The compiled program of `path`: a `.bin` is read as it is; a program file is
// compiled in a scratch folder, with the folders of `settings`, so that nothing
// beside it changes. On failure the reason goes to `err` and the result is empty.
std::optional<compile::ProgramImage> CompiledImage(const std::string& path,
                                                   const std::string& dataDirectory,
                                                   SettingsStore& settings, std::ostream& err);

} // namespace zolt::cli
