#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zolt::file {

// The whole content of a file; nullopt when it cannot be read or is larger than
// `limit` bytes.
std::optional<std::string> ReadFileBytes(const std::string& path, std::size_t limit);

// Replaces `path` with `bytes` so that the old file stays whole until the new
// one is complete: a temporary file beside the target, then a rename over it.
enum class SaveStep { Ok, TemporaryFile, Replace };
SaveStep SaveFileAtomically(const std::string& path, std::string_view bytes);

// Writes `bytes` to `path`, replacing any file there; false on failure.
bool WriteFileBytes(const std::string& path, std::string_view bytes);

} // namespace zolt::file
