#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace zolt::test {

// A fresh folder under the system's temporary one, removed with its contents.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "zolt-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr)
            path_ = pattern;
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

} // namespace zolt::test
