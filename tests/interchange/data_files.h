#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace zolt::test {

// A file of tests/data/interchange.
inline std::string ReadDataFile(const std::string& name) {
    std::ifstream in(std::string(ZOLT_TEST_DATA_DIR) + "/interchange/" + name, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

} // namespace zolt::test
