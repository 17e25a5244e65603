#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zolt::import {

// How much an archive may unpack to: legacy programs are a few small text files.
struct ArchiveLimits {
    std::uint64_t memberBytes = 16u << 20;
    std::uint64_t totalBytes = 64u << 20;
    std::size_t members = 1000;
};

// What unpacking gave: the names of the files written into the folder, or why
// the archive was refused (then nothing of it is left in the folder).
struct UnpackResult {
    bool ok = false;
    std::string refusal;
    std::vector<std::string> files;
};

// Unpacks a PKZIP archive into `folder`, which must exist. Refused as a whole,
// before anything is written: a damaged archive or central directory, a member
// whose name is not a plain file name (a folder, "..", an absolute path, a drive
// letter), a symbolic link, a name that comes twice (in any case), an encrypted
// member, and sizes over the limits. The sizes are checked again while the bytes
// come, so that a member that lies about its size is refused as well.
UnpackResult UnpackArchive(const std::string& archive, const std::string& folder,
                           const ArchiveLimits& limits = {});

// The version of the zip library the import was built with, for About ZOLT.
std::string ZipLibraryVersion();

} // namespace zolt::import
