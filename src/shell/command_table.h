#pragma once

#include "core/table_kinds.h"

#include <vector>

namespace zolt::shell {

// One command of the main frame: its tool identifier, caption, menu and where
// else it shows. Every menu item, toolbar button and pop-up entry is one of these.
struct CommandDef {
    const char* id;
    const char* caption;
    const char* menu;     // "File", "Edit", "Netlist Tables", "Sequence", "GRV", "Window", "Tools",
                          // "Help"; empty for a toolbar's own command
    const char* shortcut; // Qt key sequence text; empty for none
    int icon;             // a QStyle::StandardPixmap, -1 for none
    bool mainToolbar;
    bool netlistToolbar;
    bool checkable;
    bool separatorBefore;
};

// The commands in menu order.
const std::vector<CommandDef>& Commands();
const CommandDef* FindCommand(const char* id);
// The tables of the wires method: the group method neither offers nor shows them.
bool IsWiresMethodTable(TableId table);

} // namespace zolt::shell
