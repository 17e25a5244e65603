#include "file/data_directory.h"

#include <filesystem>
#include <vector>

namespace zolt::file {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> candidates(const std::string& executableDirectory) {
    std::error_code ec;
    fs::path beside = fs::absolute(executableDirectory, ec).lexically_normal();
    if (!beside.has_filename()) // "/opt/zolt/bin/"
        beside = beside.parent_path();
    const fs::path parent = beside.parent_path();
    return {beside.string(), (parent / "share" / "zolt").string(), (parent / "Resources").string()};
}

} // namespace

std::string DataDirectoryOf(const std::string& executableDirectory) {
    for (const std::string& candidate : candidates(executableDirectory)) {
        std::error_code ec;
        if (fs::is_regular_file(fs::path(candidate) / kDataMarker, ec))
            return candidate;
    }
    return executableDirectory;
}

} // namespace zolt::file
