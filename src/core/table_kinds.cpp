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

bool inRange(int n) {
    return n >= table::First && n <= table::Last;
}

} // namespace

bool IsNetlistTable(int n) {
    switch (n) {
    case 1:
    case 2:
    case 3:
    case 5:
    case 6:
    case 7:
    case 8:
    case 12:
    case 14:
        return true;
    default:
        return false;
    }
}

std::string GetTableName(int n) {
    return inRange(n) ? kKinds[static_cast<std::size_t>(n)].name : "";
}

int TableNumberOf(const std::string& name) {
    if (vb::TextEqualsNoCase(name, "Code"))
        return table::Code;
    for (int n = table::First; n < table::Code; ++n)
        if (vb::TextEqualsNoCase(name, kKinds[static_cast<std::size_t>(n)].name))
            return n;
    return 0;
}

std::string TableFormName(int n) {
    return inRange(n) ? kKinds[static_cast<std::size_t>(n)].form : "";
}
std::string TableCaption(int n) {
    return inRange(n) ? kKinds[static_cast<std::size_t>(n)].caption : "";
}

} // namespace zolt
