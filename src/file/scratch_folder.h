#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace zolt::file {

// A folder of our own under the system's temporary folder, removed with us:
// work that must write files (a compile's `.bin` and `.dgn`) writes them here,
// never beside the user's program. An empty path when none could be made.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "zolt-XXXXXX").string();
        if (::mkdtemp(name.data()))
            path_ = name;
    }
    ~ScratchFolder() {
        std::error_code ec;
        if (!path_.empty())
            std::filesystem::remove_all(path_, ec);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

} // namespace zolt::file
