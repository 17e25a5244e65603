#pragma once

#include "core/table_kinds.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt {

// What a window of the main frame is: only table windows belong to a netlist's tab.
enum class WindowKind { Table, Compiler, TabStrip, Debug, Other };

// One loaded window of the main frame, as the netlist logic sees it.
struct WindowInfo {
    int id = 0;
    std::string formName; // e.g. "frmPinTable"
    std::string caption;
    WindowKind kind = WindowKind::Other;
    std::optional<TableId> tableIndex; // set on table windows
    int netlistIndex = -1;             // the netlist of the window's table
    bool visible = false;
    bool active = false; // the active child of the main window
};

// Which table windows exist and are shown; the shell keeps the real ones.
class WindowRegistry {
public:
    virtual ~WindowRegistry() = default;
    virtual std::vector<WindowInfo> Windows() const = 0;
    virtual void SetVisible(int id, bool visible) = 0;
    virtual void BringToTop(int id) = 0;
    virtual void Unload(int id) = 0;
    // Shows the window of a table of a netlist, loading it when needed.
    virtual void ShowTable(TableId tableIndex, int netlistIndex) = 0;
};

} // namespace zolt
