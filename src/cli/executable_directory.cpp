#include "cli/executable_directory.h"

#include <filesystem>

namespace zolt::cli {

std::string ExecutableDirectory(const char* argv0) {
    std::error_code ec;
    auto self = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec)
        self = std::filesystem::absolute(argv0, ec);
    return self.parent_path().string();
}

} // namespace zolt::cli
