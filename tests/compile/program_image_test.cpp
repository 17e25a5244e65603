// The image file: its checksum, that it reads back what was written, that it
// refuses what is damaged, and that the example compiles to the committed bytes.
#include "compile/program_image.h"
#include "compile_project.h"
#include "file/file_bytes.h"
#include "file/program_file.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>

namespace zolt::compile {
namespace {

namespace fs = std::filesystem;

std::span<const std::uint8_t> bytesOf(const std::string& s) {
    return {reinterpret_cast<const std::uint8_t*>(s.data()), s.size()};
}

ProgramImage sample() {
    ProgramImage image;
    image.header = {"ID", "name", true, true, false, 236768, -1, 0.25, 2, 2048, 1000};
    image.commands = {{"END", 0, 0, 0, "End"}, {"BER", 3, 1, 1024, "Branch"}};
    image.sequence = {{"BER", "2"}, {"END", ""}};
    image.macros = {{"ALARMON", "BEEP", ""}};
    image.messages = {{"1", "Caf\xC3\xA9"}};
    image.labels = {{2, 100, "SERIAL"}};
    image.testParameters = {{5, 2, 2, 0.5f}};
    image.devices = {{"DIOM", "ANODE", "CATHODE", "Diode"}};
    ImageNetlist n;
    n.name = "MAIN";
    n.nets = {{0, 12}, {2047}};
    n.connectors = {{"J1", 12, 0, -1, -1}};
    n.components = {{"DIOM", 1, 0, -1, 0}};
    n.switches = {{"J1", "S1", "C", 1, 5, 6}};
    n.groups = {{"G", "J1", "1", "RED", "", 0}};
    n.reversibles = {{1, 0, 12}};
    n.points = {{0, "J1", "1"}, {12, "J1", "2"}, {2047, "0", "COM"}};
    n.wires = {{"W1", "RED/BLK", "", 0, 0, 12}, {"W2", "", "", -1, -1, -1}};
    ImageNetlist m;
    m.name = "M1";
    m.manual = true;
    m.codes = {{"NET", "1"}};
    image.netlists = {n, m};
    return image;
}

TEST(ProgramImage, Crc32OfTheCheckString) {
    EXPECT_EQ(Crc32(bytesOf("123456789")), 0xCBF43926u);
    EXPECT_EQ(Crc32({}), 0u);
}

TEST(ProgramImage, ReadsBackWhatWasWrittenAndWritesTheSameBytesTwice) {
    const auto bytes = WriteImage(sample());
    EXPECT_EQ(bytes, WriteImage(sample()));
    const ImageReadResult read = ReadImage(bytes);
    ASSERT_TRUE(read.image) << read.error;
    EXPECT_EQ(*read.image, sample());
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "ZBIN");
}

TEST(ProgramImage, EveryTruncationIsRefused) {
    const auto bytes = WriteImage(sample());
    for (std::size_t n = 0; n < bytes.size(); ++n)
        EXPECT_FALSE(ReadImage(std::span(bytes.data(), n)).image) << n << " bytes";
}

struct DamageCase {
    const char* name;
    std::function<void(std::vector<std::uint8_t>&)> damage;
    const char* error;
};

class Damage : public testing::TestWithParam<DamageCase> {};

// The header's size and checksum made right again after the damage.
void reseal(std::vector<std::uint8_t>& b) {
    const std::uint32_t size = static_cast<std::uint32_t>(b.size() - kImageHeaderSize);
    const std::uint32_t crc = Crc32(std::span(b).subspan(kImageHeaderSize));
    for (int i = 0; i < 4; ++i) {
        b[8 + i] = static_cast<std::uint8_t>(size >> (8 * i));
        b[12 + i] = static_cast<std::uint8_t>(crc >> (8 * i));
    }
}

TEST_P(Damage, IsNamed) {
    auto bytes = WriteImage(sample());
    GetParam().damage(bytes);
    const ImageReadResult read = ReadImage(bytes);
    EXPECT_FALSE(read.image);
    EXPECT_NE(read.error.find(GetParam().error), std::string::npos) << read.error;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Compile, Damage, testing::Values(
    DamageCase{"Foreign", [](auto& b) { b[0] = 'X'; }, "no ZBIN mark"},
    DamageCase{"NewerVersion", [](auto& b) { b[4] = 3; }, "image version 3 is not known"},
    DamageCase{"VersionZero", [](auto& b) { b[4] = 0; }, "image version 0 is not known"},
    DamageCase{"Reserved", [](auto& b) { b[7] = 1; }, "reserved header bytes"},
    DamageCase{"Shortened", [](auto& b) { b.pop_back(); }, "the header says"},
    DamageCase{"Checksum", [](auto& b) { b.back() ^= 1; }, "checksum does not match"},
    DamageCase{"TrailingBytes", [](auto& b) { b.push_back(0); reseal(b); }, "bytes follow"},
    // The manual netlist's empty wire list made a count of 0xFFFFFFFF.
    DamageCase{"HugeCount", [](auto& b) { b.resize(b.size() - 4); b.resize(b.size() + 4, 0xFF); reseal(b); }, "list count runs past the end"},
    // The first flag of the header follows the two strings "ID" and "name".
    DamageCase{"BadFlag", [](auto& b) { b[kImageHeaderSize + 4 + 6] = 7; reseal(b); }, "flag word"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

// An image of the first version, as earlier compiles wrote it, still reads: its
// netlists simply know no points and wires, its switches no test points.
TEST(ProgramImage, ReadsTheFirstVersion) {
    const auto bytes =
        file::ReadFileBytes(std::string(ZOLT_TEST_DATA_DIR) + "/compile/harness-v1.bin", 1 << 20);
    ASSERT_TRUE(bytes);
    const ImageReadResult read = ReadImage(bytesOf(*bytes));
    ASSERT_TRUE(read.image) << read.error;
    EXPECT_EQ(read.version, 1);
    ASSERT_EQ(read.image->netlists.size(), 3u);
    EXPECT_EQ(read.image->netlists.back().name, "MAIN");
    EXPECT_FALSE(read.image->netlists.back().nets.empty());
    EXPECT_TRUE(read.image->netlists.back().points.empty());
    EXPECT_EQ(ReadImage(WriteImage(*read.image)).version, kImageVersion);
}

// The example program, compiled as `zolt-cli compile` does it, against the
// committed image. A deliberate change of the format or the analysis refreshes
// tests/data/compile/harness.bin with
//   mkdir /tmp/g && cp examples/harness.zlf /tmp/g && zolt-cli compile /tmp/g/harness.zlf &&
//   cp /tmp/g/harness.bin tests/data/compile/
TEST(ProgramImage, ExampleCompilesToTheGoldenImage) {
    const test::CompileProject scratch;
    test::TestProgram p;
    p.state.params().LoadDirectoryParameters(false);
    const fs::path program = scratch.folder / "harness.zlf";
    fs::copy_file(fs::path(ZOLT_TEST_DATA_DIR).parent_path().parent_path() / "examples" /
                      "harness.zlf",
                  program);
    ASSERT_EQ(file::ReadProgramFile(p.state, program.string(), nullptr, ZOLT_BIN_DIR), Answer::Yes);
    p.state.document().CurrentFile = program.string();
    CompileDriver driver(p.state, scratch.clock);
    driver.Load();
    EXPECT_EQ(driver.Run(), CompileEnd::Finished);
    EXPECT_EQ(driver.Result().errors, 0) << driver.Results();
    const auto made = file::ReadFileBytes((scratch.folder / "harness.bin").string(), 1 << 20);
    const auto golden =
        file::ReadFileBytes(std::string(ZOLT_TEST_DATA_DIR) + "/compile/harness.bin", 1 << 20);
    ASSERT_TRUE(made);
    ASSERT_TRUE(golden);
    EXPECT_TRUE(*made == *golden) << "the example's image changed";

    // Each build is a whole harness: what MAIN joins, a TEST of a build must
    // find joined too, or a good harness fails it with a short.
    const auto& netlists = driver.Result().image.netlists;
    const ImageNetlist& main = netlists.back();
    for (const ImageNetlist& build : netlists) {
        std::map<std::uint16_t, std::size_t> netOf;
        for (std::size_t n = 0; n < build.nets.size(); ++n)
            for (std::uint16_t tp : build.nets[n])
                netOf[tp] = n;
        for (const TestPointSet& net : main.nets)
            for (std::uint16_t tp : net)
                EXPECT_EQ(netOf.at(tp), netOf.at(net.front()))
                    << build.name << " keeps " << tp << " apart from " << net.front();
    }
}

} // namespace
} // namespace zolt::compile
