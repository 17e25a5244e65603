#include "file/file_bytes.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace zolt::file {
namespace {

namespace fs = std::filesystem;

fs::path temporaryBeside(const fs::path& target) {
    // A name of our own in the same directory, so that the rename stays on one
    // file system and cannot leave a half-moved file.
    fs::path candidate;
    std::error_code ec;
    for (int n = 0;; ++n) {
        candidate = target;
        candidate += ".~sav" + std::to_string(n);
        if (!fs::exists(candidate, ec))
            return candidate;
    }
}

// The file a chain of symbolic links ends at (the path itself when it is no
// link), so that a save replaces the file and leaves the link in place.
fs::path throughLinks(fs::path path) {
    std::error_code ec;
    for (int hops = 0; hops < 40 && fs::is_symlink(fs::symlink_status(path, ec)); ++hops) {
        const fs::path next = fs::read_symlink(path, ec);
        if (ec)
            break;
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

} // namespace

std::optional<std::string> ReadFileBytes(const std::string& path, std::size_t limit) {
    std::error_code ec;
    const auto size = fs::file_size(path, ec);
    if (ec || size > limit)
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!in.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        return std::nullopt;
    return bytes;
}

bool WriteFileBytes(const std::string& path, std::string_view bytes, std::string* reason) {
    // stdio rather than a stream: its failures leave errno, the reason the user is told.
    errno = 0;
    std::FILE* out = std::fopen(path.c_str(), "wb");
    bool ok = out != nullptr;
    if (ok) {
        ok = std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
        ok = std::fclose(out) == 0 && ok;
    }
    if (!ok && reason)
        *reason = errno != 0 ? std::generic_category().message(errno) : "unknown error";
    return ok;
}

SaveStep SaveFileAtomically(const std::string& path, std::string_view bytes, std::string* reason) {
    const fs::path target = throughLinks(fs::path(path));
    const fs::path temporary = temporaryBeside(target);
    std::error_code ec;
    if (!WriteFileBytes(temporary.string(), bytes, reason)) {
        fs::remove(temporary, ec);
        return SaveStep::TemporaryFile;
    }
    // The new file takes the old one's permissions; a new file keeps the default.
    if (const auto old = fs::status(target, ec); !ec && fs::exists(old))
        fs::permissions(temporary, old.permissions(), ec);
    fs::rename(temporary, target, ec);
    if (ec) {
        if (reason)
            *reason = ec.message();
        fs::remove(temporary, ec);
        return SaveStep::Replace;
    }
    return SaveStep::Ok;
}

} // namespace zolt::file
