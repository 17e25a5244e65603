#include "compare/connections.h"
#include "compare/program_compare.h"
#include "core/project.h"
#include "core/table_columns.h"
#include "file/program_file.h"
#include "sequence/sequence_renumbering.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace zolt::compare {
namespace {

namespace fs = std::filesystem;

const std::string kExample =
    (fs::path(ZOLT_TEST_DATA_DIR).parent_path().parent_path() / "examples" / "harness.zlf")
        .string();

file::LoadedProgram Example() {
    auto loaded = file::LoadProgramFile(kExample, ZOLT_BIN_DIR);
    EXPECT_TRUE(loaded.ok()) << loaded.error;
    return loaded;
}

Grid& Rows(Project& project, const std::string& netlist, TableId table) {
    return project.FindNetlist(netlist)->GetTable(table)->gridarray();
}

// The row whose first cells are `lead`, 0 when none.
int RowOf(const Grid& rows, const std::vector<std::string>& lead) {
    for (int r = 1; r <= rows.Rows(); ++r) {
        bool same = true;
        for (std::size_t c = 0; c < lead.size(); ++c)
            same = same && rows.Text(r, static_cast<int>(c)) == lead[c];
        if (same)
            return r;
    }
    return 0;
}

void SetCell(Project& project, const std::string& netlist, TableId table,
             const std::vector<std::string>& lead, int column, const std::string& text) {
    Grid& rows = Rows(project, netlist, table);
    const int row = RowOf(rows, lead);
    ASSERT_NE(row, 0);
    rows.Set(row, column, Value(text));
}

void RenameWire(Project& project, const std::string& netlist, const std::string& from,
                const std::string& to) {
    for (const auto& [table, columns] : std::vector<std::pair<TableId, std::vector<int>>>{
             {table::Pin, {pin_column::Wire}},
             {table::Wire, {wire_column::Wire}},
             {table::Splice, {splice_column::Wire}},
             {table::Component, {component_column::Wire1, component_column::Wire2}}}) {
        Grid& rows = Rows(project, netlist, table);
        for (int r = 1; r <= rows.Rows(); ++r)
            for (const int c : columns)
                if (rows.Text(r, c) == from)
                    rows.Set(r, c, Value(to));
    }
}

void MoveRow(Grid& rows, int from, int to) {
    std::vector<Value> cells;
    for (int c = 0; c < rows.Columns(); ++c)
        cells.push_back(rows.At(from, c));
    rows.DeleteRows(from);
    rows.InsertRows(to, std::move(cells));
}

// The example's branches.
bool IsBranch(const Grid& rows, int row) {
    const std::string command = rows.Text(row, sequence_column::Command);
    return command == "BER" || command == "BNER";
}

// Inserts a line before `row` as the sequence table does, branches following.
void InsertLine(Grid& rows, int row, const std::string& command, const std::string& parameter) {
    rows.InsertRows(row, 1);
    rows.Set(row, sequence_column::Command, Value(command));
    rows.Set(row, sequence_column::Parameter, Value(parameter));
    FollowInsertedLine(rows, row,
                       [](const std::string& c) { return c == "BER" || c == "BNER" ? 3 : 0; });
}

std::vector<std::string> Lines(const Differences& differences) {
    std::vector<std::string> lines;
    for (const auto& d : differences)
        lines.push_back(ChangeLine(d));
    return lines;
}

struct Edit {
    std::string name;
    std::function<void(Project&)> apply;
    std::vector<std::string> expected;
};

class ProgramCompare : public testing::TestWithParam<Edit> {};

TEST_P(ProgramCompare, ReportsTheEditInTheEngineersTerms) {
    const auto before = Example();
    auto after = Example();
    GetParam().apply(*after.project);
    EXPECT_EQ(Lines(CompareProjects(*before.project, *after.project)), GetParam().expected);
}

// clang-format off
const Edit kEdits[] = {
    {"ReorderedPinRows", [](Project& p) { MoveRow(Rows(p, "MAIN", table::Pin), 1, 5); }, {}},
    {"WireRenamedEverywhere", [](Project& p) { RenameWire(p, "MAIN", "W1", "W99"); RenameWire(p, "MAIN", "W8", "W42"); }, {}},
    {"LinesRenumberedWithTheBranches", [](Project& p) {
         Grid& rows = Rows(p, "MAIN", table::Sequence);
         for (int r = 1; r <= rows.Rows(); ++r) {
             rows.Set(r, sequence_column::Line, Value(std::to_string(r * 10)));
             if (IsBranch(rows, r))
                 rows.Set(r, sequence_column::Parameter, Value(std::to_string(std::stoi(rows.Text(r, sequence_column::Parameter)) * 10)));
         }
     }, {}},
    {"PinMovedToAnotherWire", [](Project& p) { SetCell(p, "DOOR_LH", table::Pin, {"J1", "4"}, pin_column::Wire, "W7"); },
     {"DOOR_LH: J1-4 now joins J1-5, J2-5 (was J2-4)"}},
    {"EmptyCavityGetsAWire", [](Project& p) { SetCell(p, "MAIN", table::Pin, {"J1", "12"}, pin_column::Wire, "W15"); },
     {"MAIN: J1-12 now joins J1-10, J2-8 (was nothing)"}},
    {"PinCount", [](Project& p) { SetCell(p, "DOOR_RH", table::Connector, {"J2"}, connector_column::PinsQty, "10"); },
     {"DOOR_RH: J2 now has 10 pins (was 8)"}},
    {"ComponentValue", [](Project& p) { SetCell(p, "MAIN", table::Component, {"DIODE"}, component_column::Value, "650"); },
     {"MAIN: DIODE1 now value 650 -10 +10, parameter 0 (was value 700 -10 +10, parameter 0)"}},
    {"ComponentSidesSwapped", [](Project& p) {
         SetCell(p, "MAIN", table::Component, {"DIODE"}, component_column::Wire1, "W9");
         SetCell(p, "MAIN", table::Component, {"DIODE"}, component_column::Wire2, "W8");
     }, {"MAIN: DIODE1 now between J2-6 and J1-6 (was between J1-6 and J2-6)"}},
    {"SequenceLineInserted", [](Project& p) { InsertLine(Rows(p, "MAIN", table::Sequence), 3, "CONTINUITY", "LAMP"); },
     {"sequence: +3 CONTINUITY LAMP"}},
    {"BranchTarget", [](Project& p) { SetCell(p, "MAIN", table::Sequence, {"3", "BER"}, sequence_column::Parameter, "11"); },
     {"sequence: 3 BER 11 now reaches 11 KMESSAGE 3 (was 10 BEEP)"}},
    {"Message", [](Project& p) { SetCell(p, "MAIN", table::Message, {"2"}, message_column::Message, "OK"); },
     {"messages: - 2 DOOR HARNESS PASSED", "messages: + 2 OK"}},
    {"FileSetting", [](Project& p) { p.FileParameters.Item(std::string_view("dwelltime"))->Val = Value(0.5); },
     {"settings: DwellTime now 0.5 (was 0.1)"}},
    {"NetlistRemoved", [](Project& p) { p.NetlistCollection.Remove(std::string_view("DOOR_RH")); }, {"DOOR_RH: netlist removed"}},
    {"FixturePoint", [](Project& p) { SetCell(p, "DOOR_LH", table::Fixture, {"0-000"}, fixture_column::Pin, "7"); },
     {"DOOR_LH: - 0-000 J1 1", "DOOR_LH: + 0-000 J1 7"}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Edits, ProgramCompare, testing::ValuesIn(kEdits),
                         [](const auto& info) { return info.param.name; });

} // namespace
} // namespace zolt::compare
