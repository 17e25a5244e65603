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
std::optional<TableId> TableIdOf(int tableNumber);

// True for the tables every netlist has its own rows of: 1, 2, 3, 5, 6, 7, 8, 12, 14.
bool IsNetlistTable(TableId id);
// "Groups", "Fixture", … for 1 to 14; empty for the manual netlists (15).
std::string GetTableName(TableId id);
// The kind of a name of `GetTableName`, "Code" naming table 15; nullopt when unknown.
std::optional<TableId> TableNumberOf(const std::string& name);
// Name and caption of the window that shows a table.
std::string TableFormName(TableId id);
std::string TableCaption(TableId id);

} // namespace zolt
