#include "reader_harness.h"

#include <filesystem>
#include <string>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string directory = [] {
        const auto dir = std::filesystem::temp_directory_path() /
                         ("zolt-reader-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(dir);
        return dir.string();
    }();
    zolt::fuzz::ReadAndWrite(std::string_view(reinterpret_cast<const char*>(data), size),
                             directory);
    return 0;
}
