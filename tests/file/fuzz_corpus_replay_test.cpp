#include "../../fuzz/reader_harness.h"
#include "file/file_bytes.h"
#include "program_session.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

std::vector<std::filesystem::path> corpus() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(ZOLT_TEST_DATA_DIR) + "/file/fuzz_corpus"))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// Every input the fuzzer kept reads to a result; what reads, writes a file that
// reads again and then writes the same bytes.
TEST(FuzzCorpus, EveryInputReadsToAResultAndSettlesAfterOneSave) {
    const auto files = corpus();
    ASSERT_GE(files.size(), 4u);
    ScratchFolder dir;
    int readable = 0;
    for (const auto& path : files) {
        SCOPED_TRACE(path.filename().string());
        const std::string bytes = file::ReadFileBytes(path.string(), 1 << 20).value();
        const Answer result = fuzz::ReadAndWrite(bytes, dir.path().string());
        ASSERT_TRUE(result == Answer::Yes || result == Answer::No);
        if (result != Answer::Yes)
            continue;
        ++readable;
        std::string saved[2];
        std::string input = bytes;
        for (std::string& out : saved) {
            Session s;
            const std::string name = dir.file(bytes.size() % 2 ? "r.grv" : "r.zlf");
            ASSERT_EQ(file::ReadProgramBytes(s.state, input, name), Answer::Yes);
            out = file::ProgramFileBytes(s.state, name).value_or("");
            input = out;
        }
        EXPECT_TRUE(saved[0] == saved[1]);
    }
    EXPECT_GT(readable, 0);
}

} // namespace
} // namespace zolt::test
