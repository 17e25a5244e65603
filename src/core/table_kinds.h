#pragma once

#include <array>
#include <optional>
#include <string>

namespace zolt {

// The table kinds: the `TableIndex` of every table and the argument of
// `GetTable`. The values are the table numbers the program file and the
// clipboard text carry.
enum class TableId : int {
    Groups = 1,
    Fixture = 2,
    Connector = 3,
    Color = 4,
    Wire = 5,
    Pin = 6,
    Splice = 7,
    Component = 8,
    Message = 9,
    TestParameter = 10,
    Sequence = 11,
    Switches = 12,
    SequenceList = 13,
    Reversible = 14,
    Code = 15,
};

// Short names for the kinds: `table::Pin`.
namespace table {
using enum TableId;
} // namespace table

// Every kind, in number order.
inline constexpr std::array<TableId, 15> kAllTables = {
    TableId::Groups,       TableId::Fixture,       TableId::Connector, TableId::Color,
    TableId::Wire,         TableId::Pin,           TableId::Splice,    TableId::Component,
    TableId::Message,      TableId::TestParameter, TableId::Sequence,  TableId::Switches,
    TableId::SequenceList, TableId::Reversible,    TableId::Code};

constexpr int ToInt(TableId id) {
    return static_cast<int>(id);
}
// The kind of a table number; nullopt outside 1 to 15.
std::optional<TableId> TableIdOf(int tableIndex);

// Whose rows a table holds.
enum class TableScope {
    Project,        // MAIN's, for the whole program: sequence, messages, colors, …
    Netlist,        // every netlist has its own rows
    ManualNetlists, // the code rows of the manual netlists
};

// What the program knows of a kind of table without its rows or columns; the
// columns and buttons are in the table's descriptor (`TableSpec`).
struct TableKind {
    TableId id;
    const char* name;    // `GetTableName`; empty for the manual netlists
    const char* form;    // the name of the window that shows it
    const char* caption; // the caption of that window
    int recordType;      // its block in the program file; 0: never written
    int recordLimit;     // the most rows the program keeps; 0: no limit of its own
    TableScope scope;
    bool onManualNetlists; // the manual netlists have it too (their fixture and codes)
    bool wiresMethod;      // the group method neither offers nor shows it
    const char* helpPage;  // its page in the help folder
};

// In number order: the kind of table n is at n - 1.
inline constexpr std::array<TableKind, 15> kTableKinds = {{
    {table::Groups, "Groups", "frmGroupTable", "Groups", 70, 0, TableScope::Netlist, false, false,
     "table-groups.html"},
    {table::Fixture, "Fixture", "frmFixtureTable", "Fixture", 10, 0, TableScope::Netlist, true,
     false, "table-fixture.html"},
    {table::Connector, "Connector", "frmConnectorTable", "Connectors", 20, 0, TableScope::Netlist,
     false, false, "table-connectors.html"},
    {table::Color, "Color", "frmColorTable", "Wire Colors", 40, 128, TableScope::Project, false,
     false, "table-colors.html"},
    {table::Wire, "Wire", "frmWireTable", "Wires", 30, 0, TableScope::Netlist, false, true,
     "table-wires.html"},
    {table::Pin, "Pin", "frmPinTable", "Pins", 60, 0, TableScope::Netlist, false, true,
     "table-pins.html"},
    {table::Splice, "Splice", "frmSpliceTable", "Splices", 110, 0, TableScope::Netlist, false, true,
     "table-splices-components.html"},
    {table::Component, "Component", "frmComponentTable", "Components", 50, 0, TableScope::Netlist,
     false, true, "table-splices-components.html"},
    {table::Message, "Message", "frmMessageTable", "Messages", 80, 0, TableScope::Project, false,
     false, "table-messages.html"},
    {table::TestParameter, "TestParameter", "frmTestParameterTable", "Test Parameters", 90, 0,
     TableScope::Project, false, false, "table-test-parameters.html"},
    {table::Sequence, "Sequence", "frmSequenceTable", "Sequence", 130, 1024, TableScope::Project,
     false, false, "sequence.html"},
    {table::Switches, "Switches", "frmSwitchTable", "Switches", 120, 0, TableScope::Netlist, false,
     false, "table-switches.html"},
    {table::SequenceList, "SequenceList", "frmSequenceListTable", "Sequence Instruction List", 0, 0,
     TableScope::Project, false, false, "sequence.html"},
    {table::Reversible, "Reversible", "frmReverseTable", "Reversible Pairs", 100, 0,
     TableScope::Netlist, false, true, "table-reversible-pairs.html"},
    {table::Code, "", "frmCodeTable", "Manual Netlists", 160, 0, TableScope::ManualNetlists, true,
     false, "table-code.html"},
}};

static_assert(
    [] {
        for (std::size_t i = 0; i < kTableKinds.size(); ++i)
            if (ToInt(kTableKinds[i].id) != static_cast<int>(i) + 1)
                return false;
        return true;
    }(),
    "kTableKinds lists table n at n - 1");

constexpr const TableKind& KindOf(TableId id) {
    return kTableKinds[static_cast<std::size_t>(ToInt(id) - 1)];
}

// True for the tables every netlist has its own rows of: 1, 2, 3, 5, 6, 7, 8, 12, 14.
bool IsNetlistTable(TableId id);
// "Groups", "Fixture", … for 1 to 14; empty for the manual netlists (15).
std::string GetTableName(TableId id);
// The kind of a name of `GetTableName`, "Code" naming table 15; nullopt when unknown.
std::optional<TableId> TableIndexOf(const std::string& name);
// Name and caption of the window that shows a table.
std::string TableFormName(TableId id);
std::string TableCaption(TableId id);

} // namespace zolt
