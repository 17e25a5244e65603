#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace zolt::shell {

// The commands of the main frame, in menu order: a misspelt command does not
// compile. The "ID_" names are data (saved toolbar layouts, tests, the tutorial)
// and are turned into a handle by `CommandNamed` only where they come in.
// To add a command: add its handle here, its row at the same place in
// `Commands()` (command_table.cpp; the build checks the order), and bind its
// handler and enabled-when in `MainWindow::bindCommands` or the bind function
// of its area (the start refuses a command left unbound).
enum class Command {
    New,
    Open,
    Save,
    SaveAs,
    SaveAsTemplate,
    Close,
    ImportPID,
    ImportDrawing,
    ExportDrawing,
    CompareWith,
    VerifyAgainstDrawing,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    AddLine,
    InsertLine,
    DeleteLine,
    AbortEdit,
    ClearTable,
    CopyTablefromOtherTab,
    CopyTablefromOtherFile,
    Find,
    Replace,
    NewNetlistTab,
    DeleteNetlistTab,
    RenameNetlistTab,
    Print,
    PrintFromToolbar,
    Properties,
    Settings,
    PrintGRVData,
    Exit,
    ViewAllTables,
    HideAllTables,
    Connectors,
    Switches,
    Wires,
    Pins,
    Splices,
    Components,
    TestParameters,
    ReversiblePairs,
    Groups,
    Fixture,
    Colors,
    Sequence,
    Descriptions,
    Messages,
    FeatureCodes,
    AssemblyOrder,
    GRVTestCompile,
    Compile,
    Download,
    Labels,
    Simulate,
    TileHorizontally,
    TileVertically,
    Cascade,
    Default,
    SaveNewDefault,
    MainToolbar,
    NetlistToolbar,
    ZOLTSettings,
    ConfigureToolbars,
    Help,
    QuickStart,
    AnalyzerGuide,
    GRVHelp,
    ApplicationNotes,
    GroupsTutorial,
    WebSite,
    AboutZOLT
};
inline constexpr int kCommandCount = static_cast<int>(Command::AboutZOLT) + 1;

// One command of the main frame: its handle, its tool identifier, caption, menu
// and where else it shows. Every menu item, toolbar button and pop-up entry is one of these.
struct CommandDef {
    Command command;
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
std::span<const CommandDef> Commands();
const CommandDef& Definition(Command command);
// The command of a tool identifier; nullopt for one no command has.
std::optional<Command> CommandNamed(std::string_view id);

} // namespace zolt::shell
