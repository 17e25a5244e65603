#include "file/file_bytes.h"

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

bool WriteFileBytes(const std::string& path, std::string_view bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out)
        return false;
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    return static_cast<bool>(out);
}

SaveStep SaveFileAtomically(const std::string& path, std::string_view bytes) {
    const fs::path target(path);
    const fs::path temporary = temporaryBeside(target);
    std::error_code ec;
    if (!WriteFileBytes(temporary.string(), bytes)) {
        fs::remove(temporary, ec);
        return SaveStep::TemporaryFile;
    }
    fs::rename(temporary, target, ec);
    if (ec) {
        fs::remove(temporary, ec);
        return SaveStep::Replace;
    }
    return SaveStep::Ok;
}

} // namespace zolt::file
