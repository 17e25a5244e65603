#pragma once

#include "support/file_contents.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace zolt::test {

// `made` against the committed file tests/data/`name`. After a deliberate change,
// run the test with ZOLT_WRITE_GOLDEN=1 to write `made` there instead, and review
// the difference before committing it.
inline void ExpectGolden(const std::string& made, const std::string& name) {
    const std::string path = std::string(ZOLT_TEST_DATA_DIR) + "/" + name;
    if (std::getenv("ZOLT_WRITE_GOLDEN") != nullptr)
        std::ofstream(path, std::ios::binary) << made;
    EXPECT_EQ(made, ReadFile(path)) << name << " differs from what the test made";
}

} // namespace zolt::test
