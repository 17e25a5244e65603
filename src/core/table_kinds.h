#pragma once

#include <string>

namespace zolt {

// Table numbers: the `TableIndex` of every table and the argument of `GetTable`.
namespace table {
inline constexpr int Groups = 1;
inline constexpr int Fixture = 2;
inline constexpr int Connector = 3;
inline constexpr int Color = 4;
inline constexpr int Wire = 5;
inline constexpr int Pin = 6;
inline constexpr int Splice = 7;
inline constexpr int Component = 8;
inline constexpr int Message = 9;
inline constexpr int TestParameter = 10;
inline constexpr int Sequence = 11;
inline constexpr int Switches = 12;
inline constexpr int SequenceList = 13;
inline constexpr int Reversible = 14;
inline constexpr int Code = 15;
inline constexpr int First = 1;
inline constexpr int Last = 15;
} // namespace table

// True for the tables every netlist has its own rows of: 1, 2, 3, 5, 6, 7, 8, 12, 14.
bool IsNetlistTable(int tableNumber);
// "Groups", "Fixture", … for 1 to 14; empty for 15 and every other number.
std::string GetTableName(int tableNumber);
// The table number of a name of `GetTableName`, "Code" naming table 15; 0 when unknown.
int TableNumberOf(const std::string& name);
// Name and caption of the window that shows a table.
std::string TableFormName(int tableNumber);
std::string TableCaption(int tableNumber);

} // namespace zolt
