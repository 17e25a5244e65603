#include "core/table_kinds.h"

#include "core/value.h"

#include <array>

namespace zolt {
namespace {

struct Kind {
    const char* name;
    const char* form;
    const char* caption;
};

constexpr std::array<Kind, 16> kKinds = {{
    {"", "", ""},
    {"Groups", "frmGroupTable", "Groups"},
    {"Fixture", "frmFixtureTable", "Fixture"},
    {"Connector", "frmConnectorTable", "Connectors"},
    {"Color", "frmColorTable", "Wire Colors"},
    {"Wire", "frmWireTable", "Wires"},
    {"Pin", "frmPinTable", "Pins"},
    {"Splice", "frmSpliceTable", "Splices"},
    {"Component", "frmComponentTable", "Components"},
    {"Message", "frmMessageTable", "Messages"},
    {"TestParameter", "frmTestParameterTable", "Test Parameters"},
    {"Sequence", "frmSequenceTable", "Sequence"},
    {"Switches", "frmSwitchTable", "Switches"},
    {"SequenceList", "frmSequenceListTable", "Sequence Instruction List"},
    {"Reversible", "frmReverseTable", "Reversible Pairs"},
    {"", "frmCodeTable", "Manual Netlists"},
}};

const Kind& kindOf(TableId id) {
    return kKinds[static_cast<std::size_t>(ToInt(id))];
}

} // namespace

std::optional<TableId> TableIdOf(int n) {
    if (n < ToInt(kAllTables.front()) || n > ToInt(kAllTables.back()))
        return std::nullopt;
    return static_cast<TableId>(n);
}

bool IsNetlistTable(TableId id) {
    switch (id) {
    case table::Groups:
    case table::Fixture:
    case table::Connector:
    case table::Wire:
    case table::Pin:
    case table::Splice:
    case table::Component:
    case table::Switches:
    case table::Reversible:
        return true;
    default:
        return false;
    }
}

std::string GetTableName(TableId id) {
    return kindOf(id).name;
}

std::optional<TableId> TableNumberOf(const std::string& name) {
    if (vb::TextEqualsNoCase(name, "Code"))
        return table::Code;
    for (const TableId id : kAllTables)
        if (id != table::Code && vb::TextEqualsNoCase(name, kindOf(id).name))
            return id;
    return std::nullopt;
}

std::string TableFormName(TableId id) {
    return kindOf(id).form;
}
std::string TableCaption(TableId id) {
    return kindOf(id).caption;
}

} // namespace zolt
