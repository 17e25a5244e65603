#include "file/file_bytes.h"
#include "file/program_file.h"
#include "program_builders.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

struct ReadCase {
    const char* name;
    std::string bytes;
    std::string message;
};

// A netlist "N1" so that index 1 exists.
FileBuilder withNetlist() {
    FileBuilder f;
    f.frame(150, 1, 1).put(std::int16_t{1}, std::int16_t{0}, "N1");
    return f;
}

std::vector<ReadCase> readCases() {
    std::vector<ReadCase> cases;
    // clang-format off
    const std::pair<int, const char*> versions[] = {
        {150, "Netlist Record Version Unsupported"}, {10, "Fixture Record Version Unsupported"},
        {20, "Connector Record Version Unsupported"}, {30, "Wire Record Version Unsupported"},
        {40, "Color Record Version Unsupported"}, {50, "Component Record Version Unsupported"},
        {60, "Pin Record Version Unsupported"}, {70, "Group Record Version Unsupported"},
        {80, "Message Record Version Unsupported"}, {81, "Message Record Version Unsupported"},
        {82, "Message Record Version Unsupported"}, {90, "Test Parameter Record Version Unsupported"},
        {100, "Reverse Record Version Unsupported"}, {110, "Splice Record Version Unsupported"},
        {120, "Switch Record Version Unsupported"}, {130, "Sequence Record Version Unsupported"},
        {140, "System Parameter Record Version Unsupported"}, {160, "Code Record Version Unsupported"},
        {999, "End Record Version Unsupported"}};
    // clang-format on
    for (const auto& [type, message] : versions) {
        const bool two = type == 30 || type == 40 || type == 70;
        cases.push_back(
            {message, FileBuilder().frame(type, two ? 3 : 2, 0).end().bytes(), message});
        cases.push_back({message, FileBuilder().frame(type, 0, 0).end().bytes(), message});
    }
    const std::pair<int, const char*> mainOnly[] = {
        {40, "Colors Must Be on MAIN Netlist!"},     {80, "Messages Must Be on MAIN Netlist!"},
        {81, "Messages Must Be on MAIN Netlist!"},   {82, "Messages Must Be on MAIN Netlist!"},
        {90, "Parameters Must Be on MAIN Netlist!"}, {130, "Sequences Must Be on MAIN Netlist!"},
    };
    for (const auto& [type, message] : mainOnly)
        cases.push_back({message, withNetlist().frame(type, 1, 1, 1).end().bytes(), message});
    cases.push_back({"unknown type", FileBuilder().frame(77, 1, 0).end().bytes(),
                     "Record type, 77, Not found"});
    cases.push_back({"no end record", FileBuilder().frame(150, 1, 0).bytes(),
                     "Error reading file at Netlist table"});
    cases.push_back({"empty file", "", "Error reading file at start"});
    cases.push_back(
        {"half a header", FileBuilder().bytes().substr(0, 11), "Error reading file at start"});
    cases.push_back(
        {"record cut short",
         FileBuilder().frame(20, 1, 1).bytes() + std::string("\x01\x00\x00\x00\x02\x00J", 7),
         "Error reading file at Connector table"});
    cases.push_back({"count beyond the file", FileBuilder().frame(60, 1, 32767).end().bytes(),
                     "Error reading file at Pin table"});
    cases.push_back({"negative count", FileBuilder().frame(60, 1, -1).end().bytes(),
                     "Error reading file at Pin table"});
    cases.push_back({"netlist index out of range", FileBuilder().frame(20, 1, 0, 5).end().bytes(),
                     "Error reading file at Connector table"});
    cases.push_back({"netlist named twice",
                     [] {
                         FileBuilder f;
                         f.frame(150, 1, 2);
                         for (int i = 0; i < 2; ++i)
                             f.put(std::int16_t{1}, std::int16_t{0}, "N1");
                         return f.end().bytes();
                     }(),
                     "Error reading file at Netlist table"});
    return cases;
}

TEST(ProgramFileRead, EveryFailureHasItsBox) {
    ScratchFolder dir;
    for (const ReadCase& c : readCases()) {
        SCOPED_TRACE(c.name);
        ASSERT_TRUE(file::WriteFileBytes(dir.file("f.zlf"), c.bytes));
        Session s;
        s.ui.ClearEvents();
        EXPECT_EQ(file::ReadProgramFile(s.state, dir.file("f.zlf")), Answer::No);
        const auto boxes = s.ui.ShownBoxes();
        ASSERT_EQ(boxes.size(), 1u);
        EXPECT_EQ(boxes[0].caption, "Abort File Read");
        EXPECT_EQ(boxes[0].text, c.message);
        EXPECT_EQ(boxes[0].icon, Icon::Stop);
        EXPECT_FALSE(s.ui.Busy());
    }
}

TEST(ProgramFileRead, MissingFileFailsAtStart) {
    Session s;
    EXPECT_EQ(file::ReadProgramFile(s.state, "/nonexistent/dir/x.zlf"), Answer::No);
    EXPECT_EQ(s.boxTexts(), std::vector<std::string>{"Error reading file at start"});
}

TEST(ProgramFileRead, WhatWasReadBeforeAFailureStays) {
    FileBuilder f = withNetlist();
    const std::int16_t none = 0;
    f.frame(20, 1, 1, 1).put(1, "J7", none, none, none, none, "").frame(55, 1, 0);
    Session s;
    EXPECT_EQ(file::ReadProgramBytes(s.state, f.bytes(), "x.zlf"), Answer::No);
    EXPECT_EQ(s.grid(table::Connector, "N1").Text(1, 0), "J7");
    EXPECT_EQ(s.ui.ShownBoxes().at(0).text, "Record type, 55, Not found");
}

TEST(ProgramFileRead, TheMainRuleBitesOnlyWithRows) {
    Session s;
    EXPECT_EQ(
        file::ReadProgramBytes(s.state, withNetlist().frame(80, 1, 0, 1).end().bytes(), "x.zlf"),
        Answer::Yes);
    EXPECT_TRUE(s.ui.ShownBoxes().empty());
}

TEST(ProgramFileRead, UnknownParametersAreSkipped) {
    FileBuilder f;
    f.frame(140, 1, 3);
    for (const auto& [name, value] : std::vector<std::pair<std::string, std::string>>{
             {" NoSuchThing ", "1"}, {" Author ", "  Ann  "}, {"ProgramsDirectory", "/tmp/evil"}}) {
        f.put(name, std::int16_t{1}, value, std::int16_t{0});
    }
    Session s;
    s.state.params().LoadDirectoryParameters(false);
    const std::string before = s.state.params().Text(param::ProgramsDirectory);
    ASSERT_EQ(file::ReadProgramBytes(s.state, f.end().bytes(), "x.zlf"), Answer::Yes);
    EXPECT_EQ(s.state.params().Text(param::Author), "Ann");
    EXPECT_EQ(s.state.params().Text(param::ProgramsDirectory), before);
    EXPECT_TRUE(s.ui.ShownBoxes().empty());
}

struct WriteCase {
    const char* name;
    std::function<void(Session&)> spoil;
    std::string stage;
};

TEST(ProgramFileWrite, SixteenBitLimitsFailAtTheirStage) {
    // clang-format off
    const std::vector<WriteCase> cases = {
        {"component value above 32767", [](Session& s) { s.addRow(table::Component, {"RES", Value(std::int16_t{1}), "W1", "W2", Value(std::int32_t{40000})}); }, "COMPONENT TABLES"},
        {"connector count above 32767", [](Session& s) { s.table(table::Connector).ReDimGrid(32768, 8); }, "CONNECTOR TABLES"},
        {"text instead of a message number", [](Session& s) { s.addRow(table::Message, {"ABC", "HELLO"}); }, "MESSAGE TABLES"},
        {"string longer than 65535 bytes", [](Session& s) { s.addRow(table::Switches, {std::string(70000, 'x')}); }, "SWITCH TABLES"},
        {"sequence step number", [](Session& s) { s.addRow(table::Sequence, {Value(99999.0), "CONT"}); }, "SEQUENCE TABLES"},
    };
    // clang-format on
    for (const WriteCase& c : cases) {
        SCOPED_TRACE(c.name);
        ScratchFolder dir;
        ASSERT_TRUE(file::WriteFileBytes(dir.file("keep.zlf"), "OLD CONTENT"));
        Session s;
        c.spoil(s);
        s.state.SetDirty(true);
        EXPECT_EQ(file::WriteProgramFile(s.state, dir.file("keep.zlf")), Answer::No);
        ASSERT_EQ(s.ui.ShownBoxes().size(), 1u);
        EXPECT_EQ(s.ui.ShownBoxes()[0].caption, "Abort File Write");
        EXPECT_EQ(s.ui.ShownBoxes()[0].text, "WRITE FAILED AT: " + c.stage);
        EXPECT_EQ(s.ui.ShownBoxes()[0].icon, Icon::Stop);
        EXPECT_TRUE(s.state.IsDirty());
        // The old file is untouched and no temporary file is left behind.
        EXPECT_EQ(file::ReadFileBytes(dir.file("keep.zlf"), 100).value_or(""), "OLD CONTENT");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()),
                                std::filesystem::directory_iterator()),
                  1);
    }
}

TEST(ProgramFileWrite, AnUnwritableTargetFailsWithoutTouchingIt) {
    ScratchFolder dir;
    Session s;
    EXPECT_EQ(file::WriteProgramFile(s.state, dir.file("missing/dir/x.zlf")), Answer::No);
    // The stage, then the system's reason on a line of its own.
    EXPECT_EQ(s.ui.ShownBoxes().at(0).text,
              "WRITE FAILED AT: FIND FILE\nNo such file or directory");
    // A directory where the file should go cannot be replaced.
    std::filesystem::create_directories(dir.file("taken.zlf/inner"));
    Session t;
    EXPECT_EQ(file::WriteProgramFile(t.state, dir.file("taken.zlf")), Answer::No);
    EXPECT_EQ(t.ui.ShownBoxes().at(0).text, "WRITE FAILED AT: REMOVE EXISTING\nIs a directory");
    EXPECT_TRUE(std::filesystem::is_directory(dir.file("taken.zlf/inner")));
}

TEST(ProgramFileRead, TheDataFilesAreReadAtTheEnd) {
    const std::string bytes = FileBuilder().frame(150, 1, 0).end().bytes();
    Session loaded;
    ASSERT_EQ(file::ReadProgramBytes(loaded.state, bytes, "x.zlf", nullptr, ZOLT_BIN_DIR),
              Answer::Yes);
    EXPECT_GT(loaded.state.project().DeviceList.Count(), 0u);
    EXPECT_GT(loaded.state.project().MacroList.Count(), 0u);
    ScratchFolder empty;
    Session missing;
    EXPECT_EQ(file::ReadProgramBytes(missing.state, bytes, "x.zlf", nullptr, empty.path().string()),
              Answer::No);
    EXPECT_EQ(missing.ui.ShownBoxes().at(0).text, "Error reading file at End");
}

TEST(ProgramFileRead, TheDictionaryFollowsTheFileKind) {
    const std::string bytes = FileBuilder().frame(150, 1, 0).end().bytes();
    for (const auto& [path, patterns] : {std::pair{"x.grv", true}, std::pair{"x.zlf", false}}) {
        Session s;
        ASSERT_EQ(file::ReadProgramBytes(s.state, bytes, path), Answer::Yes);
        const Grid& dictionary = s.grid(table::SequenceList);
        bool found = false;
        for (int r = 1; r <= dictionary.Rows(); ++r)
            found = found || vb::Trim(dictionary.Text(r, 0)) == "PBEGIN";
        EXPECT_EQ(found, patterns) << path;
    }
}

} // namespace
} // namespace zolt::test
