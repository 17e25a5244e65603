#include "core/ports/ui.h"
#include "file/document_lifecycle.h"
#include "file/file_bytes.h"
#include "file/program_file.h"
#include "file/program_format.h"
#include "fixture/fixture_table.h"
#include "import/legacy_import.h"
#include "import/program_label.h"
#include "import_session.h"
#include "support/golden_file.h"
#include "zos_builder.h"

#include <gtest/gtest.h>

namespace zolt::test {
namespace {

namespace fs = std::filesystem;
using Rows = std::vector<std::string>;

struct ZosSession : ImportSession {
    ScratchFolder dir;
    ZosSession() {
        state.params().LoadDirectoryParameters(false);
        state.params().SetVal(param::BackupFilesDirectory, Value(dir.file("backup")));
    }

    std::string archive(const std::string& name, const std::vector<ZipMember>& members) {
        writeArchive(dir.file(name), members);
        return dir.file(name);
    }
    file::OpenOutcome run(const std::string& path, const import::ArchiveLimits& limits = {}) {
        return import::ImportLegacyFile(state, path, context, limits);
    }
    bool workFolderGone() const { return !fs::exists(dir.path() / "temp"); }
};

TEST(LegacyImport, ReadsEveryMemberFileIntoItsTable) {
    ZosSession s;
    auto members = dataMembers("DOOR");
    members.push_back({"EXTRA.MAN", dataFile("EXTRA.MAN")});
    const std::string source = s.archive("DOOR.zos", members);
    s.archive("LH.ZOS", dataMembers("LH"));
    const auto outcome = s.run(source);
    ASSERT_EQ(outcome.result, Answer::Yes);
    EXPECT_EQ(outcome.document, s.dir.file("DOOR.zlf"));

    // The program written, against tests/data/import/door_from_zos.zlf. It pins, among the rest:
    // unknown commands dropped and the lines closed up; netlist parameters by type;
    // test parameters four lines an entry into columns 1, 4, 3, 2, and the rows the
    // file does not give as a new program has them; old commons kept as OLD-
    // connectors with the new test names; the numeric filter (negative and "-" give
    // 0); netlist LH from its own archive beside the source, RH without one empty;
    // the switches, lamp, grid, group and manual netlist settings; the notes line.
    ExpectGolden(ReadFile(s.dir.file("DOOR.zlf")), "import/door_from_zos.zlf");
    EXPECT_EQ(s.column(table::Fixture, 1), (Rows{"J1", "J2", "OLD-WED", "OLD-WED"}));
    EXPECT_EQ(s.state.params().Text(param::Notes),
              "\r\nImported from .ZOS file on 3/7/2024 at 02:05 PM.");
    // The source moved, the work folder gone.
    EXPECT_FALSE(fs::exists(source));
    EXPECT_TRUE(fs::exists(s.dir.path() / "backup" / "DOS" / "DOOR.zos"));
    EXPECT_TRUE(s.workFolderGone());
    const auto boxes = s.boxTexts();
    EXPECT_EQ(boxes.front(), "Special Test Table File (.SPT) Exists and Can't Be Imported");
    EXPECT_EQ(boxes.back(), "DOOR was moved to backup folder");
    EXPECT_EQ(s.ui.ShownBoxes().back().caption, "Import Completed");
}

TEST(LegacyImport, TheSmallestArchiveWarnsForItsParameters) {
    ZosSession s;
    const std::string source = s.archive("MIN.zos", {{"MIN.CON", "x"}, {"MIN.OPT", ""}});
    ASSERT_EQ(s.run(source).result, Answer::Yes);
    EXPECT_EQ(s.grid(table::Sequence).Rows(), 0);
    EXPECT_EQ(s.boxTexts().at(0),
              "The ZOLT-DOS 'Option' feature is not supported in MIN.\nOnly partial data will be "
              "imported and the program may not \ncompile correctly.");
    EXPECT_EQ(s.boxTexts().at(1), "Test Parameter Table Not Found");
    EXPECT_EQ(s.column(table::TestParameter, 1), Rows(15, "5")); // the project's defaults
}

TEST(LegacyImport, OldConnectorLayoutIsConvertedAndWarnsOfMixedSwitchTypes) {
    ZosSession s;
    ASSERT_EQ(s.run(s.archive("OLD.zos", dataMembers("OLD"))).result, Answer::Yes);
    EXPECT_EQ(s.column(table::Connector, 0), (Rows{"J5", "J6"}));
    EXPECT_EQ(s.column(table::Connector, 2), (Rows{"2", "1"}));
    EXPECT_EQ(s.column(table::Connector, 3), (Rows{"2", "0"}));
    EXPECT_EQ(s.column(table::Connector, 4), (Rows{"40", "0"}));
    const auto& boxes = s.ui.ShownBoxes();
    const auto warning = std::find_if(boxes.begin(), boxes.end(), [](const MessageBox& b) {
        return b.caption == "Warning: Changes Required";
    });
    ASSERT_NE(warning, boxes.end());
    EXPECT_EQ(warning->text, "ZOLT no longer supports multiple switch types with 'One Common per "
                             "Connector'.\nCommons names in the Fixture table beginning with "
                             "'OLD-' will need to be rewired.");
}

TEST(LegacyImport, WithoutTheMarkerFileNothingIsImported) {
    ZosSession s;
    const std::string source = s.archive("DOOR.zos", {{"DOOR.CIR", "W1 - 1 -\r\n"}});
    EXPECT_EQ(s.run(source).result, Answer::No);
    EXPECT_EQ(s.boxTexts().back(), "Import of DOOR\nwas not successful!");
    EXPECT_TRUE(s.isEmptyProgram());
    EXPECT_TRUE(fs::exists(source));
    EXPECT_FALSE(fs::exists(s.dir.file("DOOR.zlf")));
    EXPECT_TRUE(s.workFolderGone());
}

TEST(LegacyImport, AComponentValueTheFileCannotHoldRefusesTheImportAndKeepsTheSource) {
    ZosSession s;
    const std::string source = s.archive(
        "DOOR.zos",
        {{"DOOR.CON", "x"}, {"DOOR.PAR", "\r\n"}, {"DOOR.DEV", "RESM 1 W1 W2 47000 5 5 0\r\n"}});
    EXPECT_EQ(s.run(source).result, Answer::No);
    EXPECT_EQ(s.boxTexts().back(), "WRITE FAILED AT: COMPONENT TABLES");
    EXPECT_TRUE(fs::exists(source));
    EXPECT_FALSE(fs::exists(s.dir.file("DOOR.zlf")));
    EXPECT_FALSE(fs::exists(s.dir.path() / "backup" / "DOS" / "DOOR.zos"));
}

TEST(LegacyImport, TheDosEndOfFileMarkEndsAMember) {
    ZosSession s;
    const std::string source = s.archive("DOOR.zos", {{"DOOR.CON", "x\x1a"},
                                                      {"DOOR.PAR", "\r\n\x1a"},
                                                      {"DOOR.CIR", "W1 - 1 -\r\nW2 - 2 -\r\n\x1a"},
                                                      {"DOOR.END", "J1 1 W1\r\n\x1a"},
                                                      {"DOOR.MES", "1 HELLO\r\n\x1a\r\n"}});
    ASSERT_EQ(s.run(source).result, Answer::Yes);
    EXPECT_EQ(s.column(table::Wire, 0), (Rows{"W1", "W2"}));
    EXPECT_EQ(s.column(table::Pin, 2), (Rows{"W1"}));
    EXPECT_EQ(s.column(table::Message, 0), (Rows{"1"}));
}

TEST(LegacyImport, CancelAtTheOverwriteQuestionLeavesEverythingAsItWas) {
    ZosSession s;
    const std::string source = s.archive("DOOR.zos", dataMembers("DOOR"));
    std::ofstream(s.dir.file("DOOR.zlf")) << "mine";
    s.ui.Queue(Answer::Cancel);
    EXPECT_EQ(s.run(source).result, Answer::Cancel);
    EXPECT_EQ(s.boxTexts().at(0),
              "File DOOR.zlf already exists.  File will be overwritten, Proceed?");
    EXPECT_EQ(file::ReadFileBytes(s.dir.file("DOOR.zlf"), 100), "mine");
    EXPECT_TRUE(fs::exists(source));
}

TEST(LegacyImport, AnInvalidNameAsksForAProgramLabel) {
    ZosSession s;
    const std::string source = s.archive("DO*OR.zos", {{"DO*OR.CON", "x"}, {"DO*OR.PAR", "\r\n"}});
    s.ui.Queue(ScriptedUi::TextAnswer{"BAD?"});
    s.ui.Queue(ScriptedUi::TextAnswer{"DOOR2"});
    const auto outcome = s.run(source);
    ASSERT_EQ(outcome.result, Answer::Yes);
    EXPECT_EQ(outcome.document, s.dir.file("DOOR2.zlf"));
    EXPECT_EQ(s.boxTexts().at(0),
              "The Program Label 'BAD?' is invalid.\nA valid Program Label must be less than 215 "
              "characters in length and may not contain any of the following characters: "
              "/\\:*?\"<>|");
}

TEST(ProgramLabels, AreJudgedByTheirCharactersAndLength) {
    // clang-format off
    const std::pair<std::string, bool> cases[] = {
        {"/data/DOOR.zlf", true}, {"C:/data/DOOR.zlf", true}, {"/data/DO:OR.zlf", false},
        {"/data/DO?R.zlf", false}, {"/data/DO|R.zlf", false},
        {"/d/" + std::string(211, 'A') + ".zlf", true}, {"/d/" + std::string(212, 'A') + ".zlf", false}};
    // clang-format on
    for (const auto& [path, valid] : cases)
        EXPECT_EQ(import::IsValidProgramLabel(path), valid) << path;
}

// ---- Hostile archives -----------------------------------------------------------------

// clang-format off
struct HostileCase { const char* name; std::vector<ZipMember> members; std::string refusal; };
// clang-format on

class HostileArchive : public testing::TestWithParam<HostileCase> {};

TEST_P(HostileArchive, IsRefusedWithNothingWrittenOutside) {
    ZosSession s;
    const fs::path inner = s.dir.path() / "in";
    fs::create_directories(inner);
    std::vector<ZipMember> members = {{"EVIL.CON", "x"}};
    for (const ZipMember& m : GetParam().members)
        members.push_back(m);
    const std::string source = (inner / "EVIL.zos").string();
    writeArchive(source, members);
    import::ArchiveLimits limits;
    limits.memberBytes = 4096;
    limits.totalBytes = 6000;
    EXPECT_EQ(import::ImportLegacyFile(s.state, source, s.context, limits).result, Answer::No);
    EXPECT_EQ(s.boxTexts().back(),
              "The archive EVIL.zos cannot be imported: " + GetParam().refusal + ".");
    EXPECT_EQ(s.ui.ShownBoxes().back().caption, "Abort Import Operation");
    EXPECT_TRUE(fs::exists(source));
    EXPECT_FALSE(fs::exists(inner / "EVIL.zlf"));
    EXPECT_FALSE(fs::exists(inner / "temp"));
    // Only the archive stands in its folder and nothing beside it.
    EXPECT_EQ(std::distance(fs::directory_iterator(inner), fs::directory_iterator()), 1);
    EXPECT_EQ(std::distance(fs::directory_iterator(s.dir.path()), fs::directory_iterator()), 1);
    EXPECT_TRUE(s.isEmptyProgram());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Legacy, HostileArchive, testing::Values(
    HostileCase{"DotDot", {{"../EVIL.CIR", "W1"}}, "it holds the member '../EVIL.CIR', which points outside its folder"},
    HostileCase{"Absolute", {{"/tmp/EVIL.CIR", "W1"}}, "it holds the member '/tmp/EVIL.CIR' with an absolute path"},
    HostileCase{"DriveLetter", {{"C:EVIL.CIR", "W1"}}, "it holds the member 'C:EVIL.CIR' with a drive letter"},
    HostileCase{"Folder", {{"sub/EVIL.CIR", "W1"}}, "it holds the member 'sub/EVIL.CIR' in a folder"},
    HostileCase{"Symlink", {{"EVIL.CIR", "/etc/passwd", true}}, "it holds the symbolic link 'EVIL.CIR'"},
    HostileCase{"DuplicateInAnyCase", {{"EVIL.CIR", "W1"}, {"evil.cir", "W2"}}, "it holds the member 'evil.cir' twice"},
    HostileCase{"Encrypted", {{"EVIL.CIR", "W1 - 1 -", false, true}}, "it holds the encrypted member 'EVIL.CIR'"},
    HostileCase{"MemberTooLarge", {{"EVIL.CIR", std::string(5000, '0')}}, "the member 'EVIL.CIR' unpacks to more than 4096 bytes"},
    HostileCase{"TotalTooLarge", {{"EVIL.CIR", std::string(4000, '0')}, {"EVIL.END", std::string(4000, '0')}}, "it unpacks to more than 6000 bytes"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(HostileArchives, ADamagedCentralDirectoryIsRefused) {
    ZosSession s;
    const std::string source = s.archive("DOOR.zos", dataMembers("DOOR"));
    std::string bytes = *file::ReadFileBytes(source, 1 << 20);
    // Cut into the central directory.
    bytes.resize(bytes.size() - 30);
    std::ofstream(source, std::ios::binary | std::ios::trunc) << bytes;
    EXPECT_EQ(s.run(source).result, Answer::No);
    EXPECT_EQ(s.boxTexts().back(),
              "The archive DOOR.zos cannot be imported: it is damaged or not a PKZIP archive.");
    EXPECT_TRUE(s.workFolderGone());
}

TEST(HostileArchives, AMemberThatLiesAboutItsSizeIsStoppedWhileUnpacking) {
    // A size field that claims less than the data holds: the count of bytes
    // actually unpacked decides.
    ZosSession s;
    const std::string source =
        s.archive("BOMB.zos", {{"BOMB.CON", "x"}, {"BOMB.CIR", std::string(100000, 'W')}});
    std::string bytes = *file::ReadFileBytes(source, 1 << 20);
    // Patch the uncompressed size (offset 22 of the local header, 24 of the central
    // one) of the second member to 10 bytes.
    const auto patch = [&](const std::string& signature, std::size_t offset) {
        std::size_t at = 0;
        for (int n = 0; n < 2; ++n)
            at = bytes.find(signature, n == 0 ? 0 : at + 4);
        const std::uint32_t lie = 10;
        for (int b = 0; b < 4; ++b)
            bytes[at + offset + static_cast<std::size_t>(b)] = static_cast<char>(lie >> (8 * b));
    };
    patch(std::string("PK\x03\x04", 4), 22);
    patch(std::string("PK\x01\x02", 4), 24);
    std::ofstream(source, std::ios::binary | std::ios::trunc) << bytes;
    import::ArchiveLimits limits;
    limits.memberBytes = 1000;
    EXPECT_EQ(s.run(source, limits).result, Answer::No);
    EXPECT_EQ(s.boxTexts().back(), "The archive BOMB.zos cannot be imported: the member 'BOMB.CIR' "
                                   "unpacks to more than 1000 bytes.");
    EXPECT_TRUE(s.workFolderGone());
}

// ---- The Open road --------------------------------------------------------------------

TEST(LegacyImport, OpeningAnArchiveOpensTheProgramItMade) {
    ZosSession s;
    const std::string source = s.archive("DOOR.zos", dataMembers("DOOR"));
    auto formats = std::make_shared<file::ProgramFormats>();
    file::RegisterProgramFileFormats(*formats, ZOLT_BIN_DIR);
    import::RegisterImportFormats(*formats, s.clock, ZOLT_BIN_DIR);
    file::DocumentLifecycle lifecycle(
        s.state, file::DocumentEnvironment{s.clock, "BENCH", ZOLT_BIN_DIR, [] {}, formats});
    s.ui.Queue(ScriptedUi::TextAnswer{source});
    lifecycle.Open();
    ASSERT_TRUE(s.state.document().FileOpen);
    EXPECT_EQ(s.state.document().CurrentFile, s.dir.file("DOOR.zlf"));
    EXPECT_EQ(s.state.document().LockedFile, s.dir.file("DOOR.zlf"));
    EXPECT_TRUE(fs::exists(s.dir.file("DOOR.lck")));
    EXPECT_FALSE(fs::exists(s.dir.file("DOOR.zos")));
    EXPECT_EQ(s.column(table::Wire, 0), (Rows{"W1", "W2"}));
}

} // namespace
} // namespace zolt::test
