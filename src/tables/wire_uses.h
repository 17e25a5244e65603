#pragma once

#include <optional>
#include <string_view>

namespace zolt {

class CNetList;

// Ends a wire has in a netlist: pin rows, splice rows and component sides.
// `exceptRow` of table `editedTable` is the row being edited and is left out.
int WireUses(const CNetList& netlist, std::string_view wire, int editedTable,
             std::optional<int> exceptRow);

} // namespace zolt
