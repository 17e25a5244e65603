#pragma once

#include "core/table_kinds.h"
#include "tables/error_code.h"

#include <optional>
#include <string>
#include <string_view>

namespace zolt {

class CNetList;

// Ends a wire has in a netlist: pin rows, splice rows and component sides.
// `exceptRow` of table `editedTable` is the row being edited and is left out.
int WireUses(const CNetList& netlist, std::string_view wire, TableId editedTable,
             std::optional<int> exceptRow);

// The rule of every wire end: a wire other than "(none)" may have two ends
// (72), and must be in the Wire table (70).
ErrorCode CheckWireEnd(const CNetList* netlist, TableId editedTable, const std::string& value,
                       std::optional<int> exceptRow);

} // namespace zolt
