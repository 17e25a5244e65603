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
// A symbolic link is written through to the file it names; the file keeps its
// permissions. On failure `reason` receives the system's words for it.
enum class SaveStep { Ok, TemporaryFile, Replace };
SaveStep SaveFileAtomically(const std::string& path, std::string_view bytes,
                            std::string* reason = nullptr);

// Writes `bytes` to `path`, replacing any file there; false on failure, with
// the system's reason in `reason` when given.
bool WriteFileBytes(const std::string& path, std::string_view bytes, std::string* reason = nullptr);

} // namespace zolt::file
