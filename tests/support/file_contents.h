#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace zolt::test {

// The bytes of a file; empty when it cannot be read.
inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

} // namespace zolt::test
