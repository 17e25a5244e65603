#pragma once

#include "core/table_kinds.h"

#include <vector>

namespace zolt::shell {

// What a button of a table window does beyond the three line buttons.
enum class ButtonAction {
    FunctionKey, // the table's F-key `key`
    ShowTable,   // opens the window of table `table`
    Rename,      // the manual netlists' rename of the block under the cursor
    ViewSelect,  // the sequence's "<<"/">>" switch of the description columns
};

// One button of a table window, in the order the window lines them up.
struct TableButton {
    const char* name;
    const char* caption;
    const char* tip;
    ButtonAction action;
    int key = 0;                      // F5 to F8 for FunctionKey
    TableId table = table::Connector; // for ShowTable
};

// The buttons of the window of a table, beside Add, Insert and Delete.
std::vector<TableButton> TableButtons(TableId tableNumber);

// Captions of the Add, Insert and Delete buttons; empty where the window has none.
struct LineButtonCaptions {
    const char* add;
    const char* insert;
    const char* remove;
};
LineButtonCaptions LineButtons(TableId tableNumber);

} // namespace zolt::shell
