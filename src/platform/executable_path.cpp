#include "platform/executable_path.h"

#include <filesystem>

#if defined(_WIN32)
#include <windows.h>
#elif defined(__APPLE__)
#include <cstdint>
#include <mach-o/dyld.h>
#endif

namespace zolt {
namespace {

namespace fs = std::filesystem;

fs::path runningExecutable() {
#if defined(_WIN32)
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0)
            return {};
        if (length < buffer.size())
            return fs::path(buffer.substr(0, length));
        buffer.resize(buffer.size() * 2);
    }
#elif defined(__APPLE__)
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::string buffer(size, '\0');
    if (_NSGetExecutablePath(buffer.data(), &size) != 0)
        return {};
    std::error_code ec;
    return fs::canonical(buffer.c_str(), ec);
#else
    std::error_code ec;
    return fs::read_symlink("/proc/self/exe", ec);
#endif
}

} // namespace

std::string ExecutableDirectory(const char* argv0) {
    fs::path self = runningExecutable();
    if (self.empty()) {
        std::error_code ec;
        self = fs::absolute(argv0, ec);
    }
    return self.parent_path().string();
}

} // namespace zolt
