#include "tables/wire_uses.h"

#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/data_validation.h"
#include "tables/table_indexes.h"

namespace zolt {
namespace {

int Count(const CNetList& netlist, TableId tableIndex, int column, std::string_view wire,
          TableId editedTable, std::optional<int> exceptRow) {
    const Table* t = netlist.GetTable(tableIndex);
    if (!t)
        return 0;
    return CountMatches(*t, {{wire, column}}, tableIndex == editedTable ? exceptRow : std::nullopt);
}

} // namespace

int WireUses(const CNetList& netlist, std::string_view wire, TableId editedTable,
             std::optional<int> exceptRow) {
    return Count(netlist, table::Pin, 2, wire, editedTable, exceptRow) +
           Count(netlist, table::Splice, 1, wire, editedTable, exceptRow) +
           Count(netlist, table::Component, 2, wire, editedTable, exceptRow) +
           Count(netlist, table::Component, 3, wire, editedTable, exceptRow);
}

ErrorCode CheckWireEnd(const CNetList* netlist, TableId tableIndex, const std::string& value,
                       std::optional<int> exceptRow) {
    if (value != "(none)" && netlist && WireUses(*netlist, value, tableIndex, exceptRow) >= 2)
        return code::WireUsedTwice;
    const Table* wires = netlist ? netlist->GetTable(table::Wire) : nullptr;
    if (!wires || CountMatches(*wires, {{value, wire_column::Wire}}) < 1)
        return code::NoWire;
    return code::None;
}

} // namespace zolt
