#include "shell/command_table.h"

#include <QStyle>
#include <cstring>

namespace zolt::shell {
namespace {

constexpr int kNone = -1;

} // namespace

const std::vector<CommandDef>& Commands() {
    // Only commands whose feature is built are listed: a menu never offers a dead entry.
    static const std::vector<CommandDef> commands = {
        {"ID_New", "&New...", "File", "Ctrl+N", QStyle::SP_FileIcon, true, false, false, false},
        {"ID_Open", "&Open...", "File", "Ctrl+O", QStyle::SP_DialogOpenButton, true, false, false,
         false},
        {"ID_Save", "&Save", "File", "Ctrl+S", QStyle::SP_DialogSaveButton, true, false, false,
         false},
        {"ID_SaveAs", "Save &As...", "File", "Ctrl+Shift+S", kNone, false, false, false, false},
        {"ID_SaveAsTemplate", "Save As &Template...", "File", "", kNone, false, false, false,
         false},
        {"ID_Close", "&Close", "File", "", QStyle::SP_DialogCloseButton, false, false, false,
         false},
        {"ID_ImportPID", "&Import PID...", "File", "", kNone, false, false, false, true},
        {"ID_ImportDrawing", "Import &Drawing...", "File", "", kNone, false, false, false, false},
        {"ID_ExportDrawing", "Export Drawin&g...", "File", "", kNone, false, false, false, false},
        {"ID_CompareWith", "Co&mpare with...", "File", "", kNone, false, false, false, true},
        {"ID_VerifyAgainstDrawing", "&Verify against Drawing...", "File", "", kNone, false, false,
         false, false},
        {"ID_Undo", "&Undo", "Edit", "Ctrl+Z", QStyle::SP_ArrowBack, true, false, false, false},
        {"ID_Redo", "&Redo", "Edit", "Ctrl+Y", QStyle::SP_ArrowForward, true, false, false, false},
        {"ID_Cut", "Cu&t", "Edit", "Ctrl+X", kNone, false, false, false, true},
        {"ID_Copy", "&Copy", "Edit", "Ctrl+C", kNone, false, false, false, false},
        {"ID_Paste", "&Paste", "Edit", "Ctrl+V", kNone, false, false, false, false},
        {"ID_AddLine", "Add Line (Ctrl + End)", "Edit", "", kNone, false, false, false, true},
        {"ID_InsertLine", "Insert Line (Ctrl + Ins)", "Edit", "", kNone, false, false, false,
         false},
        {"ID_DeleteLine", "Delete Line (Ctrl + Del)", "Edit", "", kNone, false, false, false,
         false},
        {"ID_AbortEdit", "Abort Edit (Esc)", "Edit", "", kNone, false, false, false, false},
        {"ID_ClearTable", "C&lear Table", "Edit", "", kNone, false, false, false, false},
        {"ID_CopyTablefromOtherTab", "Copy Table from &Other Tab", "Edit", "", kNone, false, false,
         false, true},
        {"ID_CopyTablefromOtherFile", "Copy Table from Other &File", "Edit", "", kNone, false,
         false, false, false},
        {"ID_Find", "Find...", "Edit", "Ctrl+F", kNone, false, false, false, true},
        {"ID_Replace", "Replace...", "Edit", "Ctrl+H", kNone, false, false, false, false},
        {"ID_NewNetlistTab", "&New Netlist Tab...", "Edit", "", QStyle::SP_FileDialogNewFolder,
         false, true, false, true},
        {"ID_DeleteNetlistTab", "&Delete Netlist Tab...", "Edit", "", QStyle::SP_TrashIcon, false,
         true, false, false},
        {"ID_RenameNetlistTab", "Rena&me Netlist Tab...", "Edit", "", kNone, false, false, false,
         false},
        {"ID_Print", "&Print...", "File", "Ctrl+P", kNone, false, false, false, true},
        {"ID_PrintFromToolbar", "Print", "", "", kNone, true, false, false, false},
        {"ID_Properties", "P&roperties...", "File", "", kNone, false, false, false, true},
        {"ID_Settings", "File S&ettings", "File", "", kNone, false, false, false, false},
        {"ID_PrintGRVData", "Print GRV Data...", "GRV", "", kNone, false, false, false, false},
        {"ID_Exit", "E&xit", "File", "", kNone, false, false, false, true},
        {"ID_ViewAllTables", "&View All Tables", "Netlist Tables", "", kNone, false, true, false,
         false},
        {"ID_HideAllTables", "&Hide All Tables", "Netlist Tables", "", kNone, false, true, false,
         false},
        {"ID_Connectors", "&Connectors", "Netlist Tables", "", kNone, false, true, false, true},
        {"ID_Switches", "S&witches", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_Wires", "W&ires", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_Pins", "&Pins", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_Splices", "&Splices", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_Components", "C&omponents", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_TestParameters", "&Test Parameters", "Netlist Tables", "", kNone, false, true, false,
         false},
        {"ID_ReversiblePairs", "&Reversible Pairs", "Netlist Tables", "", kNone, false, true, false,
         false},
        {"ID_Groups", "&Groups", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_Fixture", "&Fixture Connections", "Netlist Tables", "", kNone, false, true, false,
         false},
        {"ID_Colors", "Wire/Group Co&lors", "Netlist Tables", "", kNone, false, true, false, false},
        {"ID_Sequence", "&Sequence", "Sequence", "", kNone, true, false, true, false},
        {"ID_Descriptions", "Command Descriptions", "Sequence", "", kNone, false, false, true,
         false},
        {"ID_Messages", "&Messages", "Sequence", "", kNone, false, false, false, true},
        {"ID_FeatureCodes", "Feature Codes...", "GRV", "", kNone, false, false, false, false},
        {"ID_AssemblyOrder", "Assembly Order...", "GRV", "", kNone, false, false, false, false},
        {"ID_GRVTestCompile", "GRV Pre-Compile...", "GRV", "", kNone, false, false, false, true},
        {"ID_Compile", "&Compile", "Sequence", "F9", QStyle::SP_MediaPlay, true, false, false,
         true},
        {"ID_Download", "&Download", "Sequence", "Shift+F9", QStyle::SP_ArrowDown, true, false,
         false, false},
        {"ID_Labels", "Edit &Labels", "Sequence", "", kNone, false, false, false, false},
        {"ID_Simulate", "S&imulate...", "Sequence", "", kNone, false, false, false, true},
        {"ID_TileHorizontally", "Tile &Horizontally", "Window", "", kNone, false, false, false,
         false},
        {"ID_TileVertically", "Tile &Vertically", "Window", "", kNone, false, false, false, false},
        {"ID_Cascade", "&Cascade", "Window", "", kNone, false, false, false, false},
        {"ID_Default", "Default", "Window", "", kNone, false, false, false, true},
        {"ID_SaveNewDefault", "Save New Default", "Window", "", kNone, false, false, false, false},
        {"ID_MainToolbar", "&Main Toolbar", "Tools", "", kNone, false, false, true, false},
        {"ID_NetlistToolbar", "&Netlist Toolbar", "Tools", "", kNone, false, false, true, false},
        {"ID_ZOLTSettings", "ZOLT &Settings...", "Tools", "", kNone, false, false, false, true},
        {"ID_ConfigureToolbars", "Configure Toolbars...", "Tools", "", kNone, false, false, false,
         false},
        {"ID_Help", "ZOLT Help", "Help", "F1", QStyle::SP_DialogHelpButton, true, false, false,
         false},
        {"ID_QuickStart", "Quick Start Guide", "Help", "", kNone, false, false, false, false},
        {"ID_AnalyzerGuide", "Analyzer User Guide", "Help", "", kNone, false, false, false, false},
        {"ID_GRVHelp", "GRV User Guide", "Help", "", kNone, false, false, false, false},
        {"ID_ApplicationNotes", "Application Notes", "Help", "", kNone, false, false, false, false},
        {"ID_GroupsTutorial", "Groups Tutorial", "Help", "", kNone, false, false, false, false},
        {"ID_WebSite", "Thessor Web Site", "Help", "", kNone, false, false, false, true},
        {"ID_AboutZOLT", "About ZOLT", "Help", "", kNone, false, false, false, true},
    };
    return commands;
}

const CommandDef* FindCommand(const char* id) {
    for (const auto& c : Commands())
        if (std::strcmp(c.id, id) == 0)
            return &c;
    return nullptr;
}

bool IsWiresMethodTable(TableId table) {
    return table == table::Wire || table == table::Pin || table == table::Splice ||
           table == table::Component || table == table::Reversible;
}

} // namespace zolt::shell
