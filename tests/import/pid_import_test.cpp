#include "core/ports/ui.h"
#include "file/program_file.h"
#include "file/table_links.h"
#include "import/pid_command.h"
#include "import/pid_import.h"
#include "import_session.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

using Rows = std::vector<std::string>;

// Every case table here names its cases.
const auto kCaseName = [](const auto& info) { return std::string(info.param.name); };

struct PidSession : ImportSession {
    Answer run(const std::string& text) { return import::ImportPIDText(state, text, context); }
};

// ---- Files that import nothing --------------------------------------------------------

struct RefusedCase {
    const char* name;
    const char* text;
    std::vector<Answer> answers;
    Answer result;
    const char* box; // empty: no failure box
};

class RefusedPid : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedPid, LeavesANewEmptyProgram) {
    PidSession s;
    s.addNetlist("OLD");
    for (Answer a : GetParam().answers)
        s.ui.Queue(a);
    EXPECT_EQ(s.run(GetParam().text), GetParam().result);
    EXPECT_TRUE(s.isEmptyProgram());
    EXPECT_TRUE(s.state.document().FileOpen);
    const auto boxes = s.ui.ShownBoxes();
    ASSERT_FALSE(boxes.empty());
    if (*GetParam().box) {
        EXPECT_EQ(boxes.back().caption, "Abort Operation");
        EXPECT_EQ(boxes.back().text, GetParam().box);
    } else {
        EXPECT_EQ(boxes.back().caption, "Warning");
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pid, RefusedPid, testing::Values(
    RefusedCase{"OnlyComments", "; a\n;[wires]\n\n  ; b\n", {}, Answer::No, "No section header found in file"},
    RefusedCase{"DataWithoutHeader", "W1 - 1 2\n", {}, Answer::No, "No section header found in file"},
    RefusedCase{"MissingField", "[wires]\nW1 - 1\n[pins]\nJ1 1\n", {}, Answer::No, "Failure reading PID file at Pin section, line 4"},
    RefusedCase{"NotANumber", "[wires]\nW1 - 1\n[splices]\nX W1\n", {}, Answer::No, "Failure reading PID file at Splice section, line 4"},
    RefusedCase{"NetWithoutName", "[net]\n- CONT A B\n", {}, Answer::No, "Failure reading PID file at Net section, line 2"},
    RefusedCase{"LampWithoutDash", "[block]\nJ1 4 0 0 0 - - 7\n", {}, Answer::No, "Failure reading PID file at Connector section, line 2"},
    RefusedCase{"UnknownHeaderCancelled", "[wires]\nW1 - 1\n[bogus]\nx\n", {Answer::Cancel}, Answer::Cancel, ""}),
    kCaseName);
// clang-format on

TEST(PidImport, UnknownHeaderAskedThenSkippedWithItsLines) {
    PidSession s;
    ASSERT_EQ(s.run("[Bogus]\nW9 - 1\n[wires]\nW1 - 1\n"), Answer::Yes);
    EXPECT_EQ(s.ui.ShownBoxes().front().text, "[Bogus] section header not recognized, continue?");
    EXPECT_EQ(s.column(table::Wire, 0), (Rows{"W1"}));
}

TEST(PidImport, UnreadableFileFailsAtOpening) {
    PidSession s;
    EXPECT_EQ(import::ImportPIDFile(s.state, "/nonexistent/x.pid", s.context), Answer::No);
    EXPECT_EQ(s.ui.ShownBoxes().back().text, "Failure reading PID file at Opening");
    EXPECT_TRUE(s.isEmptyProgram());
}

// ---- The forms a text file comes in ------------------------------------------------

TEST(PidImport, AByteOrderMarkAndTheDosEndOfFileMarkAreNoData) {
    for (const std::string text :
         {"\xEF\xBB\xBF[wires]\r\nW1 - 1\r\nW2 - 2\r\n", "[wires]\r\nW1 - 1\r\nW2 - 2\r\n\x1a",
          "[wires]\nW1 - 1\nW2 - 2\x1a"}) {
        PidSession s;
        ASSERT_EQ(s.run(text), Answer::Yes);
        EXPECT_EQ(s.column(table::Wire, 1), (Rows{"1", "2"})) << text;
        EXPECT_TRUE(s.ui.ShownBoxes().empty());
    }
}

// ---- One group per section kind -------------------------------------------------------

// One file text per section kind and the columns it fills.
// clang-format off
struct SectionCase { const char* name; const char* text; std::vector<Column> columns; };
// clang-format on

class PidSection : public testing::TestWithParam<SectionCase> {};

TEST_P(PidSection, FillsItsColumns) {
    PidSession s;
    ASSERT_EQ(s.run(GetParam().text), Answer::Yes);
    s.expectColumns(GetParam().columns);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pid, PidSection, testing::Values(
    // A wire's colours may be left out, one or both.
    SectionCase{"HeadersInAnyCaseAndFieldsAtBlanksAndTabs",
                "junk before\n[WIRES]\n  W1 \t-\t\t3   8  \nW2 - 4 ---\nW3 - 5\nW4\nW5 x\n",
                {{table::Wire, 0, {"W1", "W2", "W3", "W4", "W5"}}, {table::Wire, 1, {"3", "4", "5", "", ""}},
                 {table::Wire, 2, {"8", "", "", "", ""}}}},
    SectionCase{"MessagesAndHeaders", "[message]\n1 LOAD  THE HARNESS\n2\n[header]\nPart 4711  rev B\nSecond\n",
                {{table::Message, 0, {"1", "2", "101", "102"}},
                 {table::Message, 1, {"LOAD  THE HARNESS", "", "Part 4711  rev B", "Second"}}}},
    SectionCase{"SequenceRowsWithDescriptionsAndVersion", "[sequence]\n1 MESSAGE 1\n2 END\n[messages]\n1 HELLO\n",
                {{table::Sequence, 2, {"1", ""}}, {table::Sequence, 3, {"HELLO", "End Program Execution"}},
                 {table::Sequence, 4, {"0", "0"}}}},
    // A target that is no line's number stays as written; CASE takes no line number.
    SectionCase{"SequenceLinesAreNumberedByTheirRowsAndBranchesFollow",
                "[sequence]\n10 GOTO 30\n20 DBNZS 10\n30 BER 99\n40 CASE 20\n50 END\n",
                {{table::Sequence, 0, {"1", "2", "3", "4", "5"}}, {table::Sequence, 2, {"3", "1", "99", "20", ""}}}},
    SectionCase{"SwitchesGroupsSplicesReversiblesColors",
                "[netlist]\nN\n[switches]\nJ1 S1 COM\n[groups]\nG1 J1 1 x 3 ---\n"
                "[splice]\n1 W1\n[reverse]\n1 J1 1 J2 2\n[color]\nBLK 1\n",
                {{table::Switches, 1, {"S1"}}, {table::Groups, 3, {"3"}, "N"}, {table::Groups, 4, {""}, "N"},
                 {table::Splice, 1, {"W1"}, "N"}, {table::Reversible, 4, {"2"}, "N"}, {table::Color, 1, {"BLK"}}}}),
    kCaseName);
// clang-format on

TEST(PidSections, SwitchRowsTurnSwitchesOn) {
    PidSession s;
    ASSERT_EQ(s.run("[switches]\nJ1 S1 COM\n"), Answer::Yes);
    EXPECT_EQ(s.state.params().Number(param::Switches), 1);
}

// That a netlist takes the sections behind it, and the sequence stays MAIN's,
// PidHarness.ImportsToTheExampleProgram shows.
TEST(PidSections, NetlistsAreUpperCasedAndMainTakesItsSectionsBack) {
    PidSession s;
    ASSERT_EQ(s.run("[wires]\nW1 - 1\n[netlist]\ndoor_lh\n[circuit]\nW6 - 4\n"
                    "[netlist]\nmain\n[wire]\nW2 - 1\n"),
              Answer::Yes);
    ASSERT_NE(s.state.project().FindNetlist("DOOR_LH"), nullptr);
    EXPECT_EQ(s.state.project().FindNetlist("DOOR_LH")->NetlistName, "DOOR_LH");
    EXPECT_EQ(s.column(table::Wire, 0, "DOOR_LH"), (Rows{"W6"}));
    EXPECT_EQ(s.column(table::Wire, 0), (Rows{"W1", "W2"}));
    EXPECT_EQ(s.state.project().ActiveNetlist, s.state.project().MainNetlist);
}

TEST(PidSections, ManualNetlistIsMarkedAndTakesItsNets) {
    PidSession s;
    ASSERT_EQ(s.run("[netlist]\nManual Netlists\n[nets]\n"
                    "NET1 CONT J1-1 J2-1 'first note\nNET2 ISO A B C D E F\n"
                    "NET3 CONT A 'x' B\n"),
              Answer::Yes);
    const CNetList* manual = s.state.project().FindNetlist("MANUAL NETLISTS");
    ASSERT_NE(manual, nullptr);
    EXPECT_EQ(manual->NetlistType, 1);
    EXPECT_EQ(s.state.params().Number(param::ManualNet), 1);
    EXPECT_EQ(s.column(table::Code, 1, "MANUAL NETLISTS"), (Rows{"CONT", "ISO", "CONT"}));
    EXPECT_EQ(s.column(table::Code, 2, "MANUAL NETLISTS"), (Rows{"J1-1 J2-1", "A B C D", "A"}));
    EXPECT_EQ(s.column(table::Code, 3, "MANUAL NETLISTS"), (Rows{"first note", "", "x' B"}));
}

TEST(PidSections, ConnectorBlocksSetTheirParameters) {
    PidSession s;
    ASSERT_EQ(s.run("[block]\nJ1 12 0 0 0 - - -1\n"), Answer::Yes);
    EXPECT_EQ(s.state.params().Number(param::Switches), 0);
    EXPECT_EQ(s.state.params().Number(param::LampPin), 0);
    EXPECT_EQ(s.state.params().Number(param::GridLocation), 0);

    ASSERT_EQ(s.run("[connectors]\nJ1 12 1 2 3 A4 x 2-17\nJ2 8\n"), Answer::Yes);
    EXPECT_EQ(s.column(table::Connector, 2), (Rows{"6", "0"}));
    EXPECT_EQ(s.column(table::Connector, 3), (Rows{"2", "0"}));
    EXPECT_EQ(s.column(table::Connector, 4), (Rows{"17", "0"}));
    EXPECT_EQ(s.column(table::Connector, 5), (Rows{"A4", "0"}));
    EXPECT_EQ(s.state.params().Number(param::Switches), 1);
    EXPECT_EQ(s.state.params().Number(param::LampPin), 1);
    EXPECT_EQ(s.state.params().Number(param::GridLocation), 1);
}

TEST(PidSections, FixtureRowsAndTheMainMark) {
    PidSession s;
    ASSERT_EQ(s.run("[netlist]\nB\n[fixture]\nmain\n[netlist]\nMAIN\n[fixtures]\n0-000 J1 1\n"),
              Answer::Yes);
    EXPECT_TRUE(file::FixtureUsesMain(s.table(table::Fixture, "B")));
    EXPECT_FALSE(file::FixtureUsesMain(s.table(table::Fixture)));
    EXPECT_EQ(s.column(table::Fixture, 0), (Rows{"0-000"}));
}

// Rows 1 to 15 as a new program has them; rows the file does not give take the
// project's defaults, set after them in the file here.
TEST(PidSections, TestParametersHoldAllFifteenRows) {
    PidSession s;
    for (const std::string section : {"", "[testparameters]\n1 5 2 2 3\n16 1 1 1 1\n3 6 2 1 1\n"}) {
        ASSERT_EQ(s.run(section + "[properties]\nTestVoltage 7.5\n"), Answer::Yes);
        Rows voltages(15, "7.5");
        if (!section.empty()) {
            voltages[0] = "5";
            voltages[2] = "6";
        }
        ASSERT_EQ(s.column(table::TestParameter, 0).size(), 15u);
        EXPECT_EQ(s.column(table::TestParameter, 0).back(), "15");
        EXPECT_EQ(s.column(table::TestParameter, 1), voltages);
    }
}

TEST(PidSections, PropertiesByKindAndTheNotesLine) {
    PidSession s;
    s.state.params().SetVal(param::Notes, Value("Before"));
    ASSERT_EQ(s.run("[properties]\nGroup True\nSwitchType 2\nAuthor  Jane  Q. Public \n"
                    "NoSuchParameter 1\nTestVoltage 7.5\nSwitches x\nDwellTime 0.5\n[end]\n"
                    "[wires]\nW1 - 1\n"),
              Answer::Yes);
    CParamList& p = s.state.params();
    EXPECT_EQ(p.Text(param::Group), "True");
    // Integer properties keep their values: a name never reads as a number.
    EXPECT_EQ(p.Number(param::SwitchType), 1);
    EXPECT_EQ(p.Number(param::DwellTime), 0.1);
    EXPECT_EQ(p.Text(param::Author), "Jane  Q. Public");
    EXPECT_EQ(p.Number(param::TestVoltage), 7.5);
    EXPECT_EQ(p.Number(param::Switches), 0);
    // A new program: the open one's notes went with it.
    EXPECT_EQ(p.Text(param::Notes), "\r\nImported from .PID file on 3/7/2024 at 02:05 PM.");
    // Nothing after [end] is read.
    EXPECT_EQ(s.grid(table::Wire).Rows(), 0);
}

// ---- The door harness -------------------------------------------------------------------

// What a PID file cannot carry: the components of netlists other than MAIN, the
// tolerances and parameter of MAIN's, and
// the sequence's version text.
void forgetWhatPidCannotCarry(ProgramState& state) {
    for (std::size_t i = 1; i <= state.project().NetlistCollection.Count(); ++i) {
        const CNetList& netlist = **state.project().NetlistCollection.Item(i);
        Grid& components = netlist.GetTable(table::Component)->gridarray();
        if (netlist.NetlistName != "MAIN") // every component of a PID file is MAIN's
            components.ReDim(0, components.Columns());
        for (int r = 1; r <= components.Rows(); ++r)
            for (int c : {5, 6, 7})
                components.Set(r, c, Value());
        Grid& sequence = netlist.GetTable(table::Sequence)->gridarray();
        for (int r = 1; r <= sequence.Rows(); ++r)
            sequence.Set(r, 4, Value());
    }
}

TEST(PidHarness, ImportsToTheExampleProgram) {
    const std::string examples = std::string(ZOLT_TEST_DATA_DIR) + "/../../examples/";
    PidSession imported;
    ASSERT_EQ(import::ImportPIDFile(imported.state, examples + "harness.pid", imported.context),
              Answer::Yes);
    EXPECT_EQ(imported.ui.ShownBoxes().size(), 0u);
    ScratchFolder dir;
    ASSERT_EQ(file::WriteProgramFile(imported.state, dir.file("h.zlf")), Answer::Yes);

    Session back, expected;
    ASSERT_EQ(file::ReadProgramFile(back.state, dir.file("h.zlf")), Answer::Yes);
    ASSERT_EQ(file::ReadProgramFile(expected.state, examples + "harness.zlf"), Answer::Yes);
    forgetWhatPidCannotCarry(back.state);
    forgetWhatPidCannotCarry(expected.state);
    ASSERT_EQ(back.state.project().NetlistCollection.Count(),
              expected.state.project().NetlistCollection.Count());
    for (std::size_t i = 1; i <= expected.state.project().NetlistCollection.Count(); ++i) {
        const CNetList& want = **expected.state.project().NetlistCollection.Item(i);
        const CNetList& got = **back.state.project().NetlistCollection.Item(i);
        EXPECT_EQ(got.NetlistName, want.NetlistName);
        for (const TableId n : kAllTables)
            if (want.GetTable(n)) {
                EXPECT_EQ(got.GetTable(n)->gridarray(), want.GetTable(n)->gridarray())
                    << want.NetlistName << " " << GetTableName(n);
            }
    }
}

struct CommandCase {
    const char* name;
    std::vector<ScriptedUi::Scripted> answers;
    Answer result;
    std::vector<std::string> boxes;
};

class ImportPidCommand : public testing::TestWithParam<CommandCase> {};

TEST_P(ImportPidCommand, AsksForTheFileAndReports) {
    PidSession s;
    s.state.params().LoadDirectoryParameters(false);
    s.state.document().CurrentFile = "/data/Door.zlf";
    ScratchFolder dir;
    std::ofstream(dir.file("good.pid")) << "[wires]\nW1 - 1\n";
    std::ofstream(dir.file("bad.pid")) << "[splices]\nX W1\n";
    for (auto answer : GetParam().answers) {
        if (answer.isText)
            answer.text = dir.file(answer.text);
        s.ui.Queue(answer);
    }
    EXPECT_EQ(import::ImportPidCommand(s.state, s.context), GetParam().result);
    EXPECT_EQ(s.boxTexts(), GetParam().boxes);
    EXPECT_EQ(s.state.IsDirty(), GetParam().result == Answer::Yes);
    const auto& file = s.ui.Events().front();
    EXPECT_EQ(file.caption, "Import PID File");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pid, ImportPidCommand, testing::Values(
    CommandCase{"Imported", {ScriptedUi::TextAnswer{"good.pid"}}, Answer::Yes, {}},
    CommandCase{"DefaultExtension", {ScriptedUi::TextAnswer{"good"}}, Answer::Yes, {}},
    CommandCase{"Cancelled", {Answer::Cancel}, Answer::Cancel, {}},
    CommandCase{"OtherExtension", {ScriptedUi::TextAnswer{"good.txt"}}, Answer::Cancel, {"Not a PID file"}},
    CommandCase{"Failed", {ScriptedUi::TextAnswer{"bad.pid"}}, Answer::No,
                {"Failure reading PID file at Splice section, line 2", "PID File Not Imported"}}),
    kCaseName);
// clang-format on

} // namespace
} // namespace zolt::test
