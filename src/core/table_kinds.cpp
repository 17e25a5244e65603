#include "core/table_kinds.h"

#include "core/value.h"

#include <array>

namespace zolt {

std::optional<TableId> TableIdOf(int n) {
    if (n < ToInt(kAllTables.front()) || n > ToInt(kAllTables.back()))
        return std::nullopt;
    return static_cast<TableId>(n);
}

bool IsNetlistTable(TableId id) {
    return KindOf(id).scope == TableScope::Netlist;
}

std::string GetTableName(TableId id) {
    return KindOf(id).name;
}

std::optional<TableId> TableIndexOf(const std::string& name) {
    if (vb::TextEqualsNoCase(name, "Code"))
        return table::Code;
    for (const TableId id : kAllTables)
        if (id != table::Code && vb::TextEqualsNoCase(name, KindOf(id).name))
            return id;
    return std::nullopt;
}

std::string TableFormName(TableId id) {
    return KindOf(id).form;
}
std::string TableCaption(TableId id) {
    return KindOf(id).caption;
}

} // namespace zolt
