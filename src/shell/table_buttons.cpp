#include "shell/table_buttons.h"

#include "core/table_kinds.h"

namespace zolt::shell {

std::vector<TableButton> TableButtons(TableId tableNumber) {
    using A = ButtonAction;
    switch (tableNumber) {
    case table::Connector:
        return {{"cmdNext", "&Next", "Next connector name (F5)", A::FunctionKey, 5},
                {"cmdEdit", "S&witches", "Edit the switches of the connectors", A::ShowTable, 0,
                 table::Switches}};
    case table::Pin:
        return {{"cmdNextPin", "&Next Pin", "Next pin in same connector (F5)", A::FunctionKey, 5},
                {"cmdSamePin", "&Same Pin", "Same pin in same connector (F6)", A::FunctionKey, 6},
                {"cmdNewPin", "Ne&w Pin", "New pin in same connector (F7)", A::FunctionKey, 7}};
    case table::Splice:
        return {{"cmdNext", "&Next", "Next Splice number (F5)", A::FunctionKey, 5},
                {"cmdSame", "&Same", "Same Splice number (F6)", A::FunctionKey, 6}};
    case table::Groups:
        return {{"cmdNext", "&Next", "Next Group number (F5)", A::FunctionKey, 5},
                {"cmdSame", "&Same", "Same Group number (F6)", A::FunctionKey, 6},
                {"cmdEdit", "C&olors", "Edit the wire and group colors", A::ShowTable, 0,
                 table::Color}};
    case table::Fixture:
        return {
            {"cmdNextIO", "&Next", "Next test point (F5)", A::FunctionKey, 5},
            {"cmdNextPin", "Next &Pin", "Next pin (F6)", A::FunctionKey, 6},
            {"cmdNewPin", "Ne&w Pin", "New pin (F7)", A::FunctionKey, 7},
            {"cmdAutoGen", "Auto&Gen", "Auto Generate the Fixture Table (F8)", A::FunctionKey, 8}};
    case table::Code:
        return {{"cmdRename", "&Rename Netlist", "Rename Netlist name", A::Rename},
                {"cmdSame", "&Same", "Same Netlist name (F5)", A::FunctionKey, 5}};
    case table::Sequence:
        return {{"cmdEdit", "&Edit", "Edit the messages", A::ShowTable, 0, table::Message},
                {"cmdViewSelect", ">>", "Command Descriptions", A::ViewSelect}};
    default:
        return {};
    }
}

LineButtonCaptions LineButtons(TableId tableNumber) {
    if (tableNumber == table::Switches)
        return {"", "", ""};
    return {"&Add", "&Insert", "&Delete"};
}

} // namespace zolt::shell
