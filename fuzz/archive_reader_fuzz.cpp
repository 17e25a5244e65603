// Any bytes as a legacy archive: unpacking refuses it or writes plain files
// into its folder only, never beyond the limits.
#include "import/zip_archive.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fs::path root =
        fs::temp_directory_path() / ("zolt-archive-fuzz-" + std::to_string(::getpid()));
    const fs::path folder = root / "work";
    fs::remove_all(root);
    fs::create_directories(folder);
    const fs::path archive = root / "input.zos";
    std::ofstream(archive, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    zolt::import::ArchiveLimits limits;
    limits.memberBytes = 1 << 16;
    limits.totalBytes = 1 << 18;
    limits.members = 64;
    const auto result = zolt::import::UnpackArchive(archive.string(), folder.string(), limits);

    // Beside the work folder only the archive; inside it only what was reported.
    std::size_t besides = 0;
    for (const auto& entry : fs::directory_iterator(root))
        besides += entry.path() != folder && entry.path() != archive;
    std::size_t inside = 0;
    std::uintmax_t bytes = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.is_symlink() || entry.path().parent_path() != folder)
            std::abort();
        ++inside;
        bytes += entry.file_size();
    }
    if (besides != 0 || inside != result.files.size() || bytes > limits.totalBytes ||
        (!result.ok && inside != 0))
        std::abort();
    fs::remove_all(root);
    return 0;
}
