#include "shell/command_table.h"

#include <QStyle>
#include <algorithm>
#include <array>

namespace zolt::shell {
namespace {

constexpr int kNone = -1;
using C = Command;

// Only commands whose feature is built are listed: a menu never offers a dead entry.
constexpr std::array<CommandDef, kCommandCount> kCommands = {{
    {C::New, "ID_New", "&New...", "File", "Ctrl+N", QStyle::SP_FileIcon, true, false, false, false},
    {C::Open, "ID_Open", "&Open...", "File", "Ctrl+O", QStyle::SP_DialogOpenButton, true, false,
     false, false},
    {C::Save, "ID_Save", "&Save", "File", "Ctrl+S", QStyle::SP_DialogSaveButton, true, false, false,
     false},
    {C::SaveAs, "ID_SaveAs", "Save &As...", "File", "Ctrl+Shift+S", kNone, false, false, false,
     false},
    {C::SaveAsTemplate, "ID_SaveAsTemplate", "Save As &Template...", "File", "", kNone, false,
     false, false, false},
    {C::Close, "ID_Close", "&Close", "File", "", QStyle::SP_DialogCloseButton, false, false, false,
     false},
    {C::ImportPID, "ID_ImportPID", "&Import PID...", "File", "", kNone, false, false, false, true},
    {C::ImportDrawing, "ID_ImportDrawing", "Import &Drawing...", "File", "", kNone, false, false,
     false, false},
    {C::ExportDrawing, "ID_ExportDrawing", "Export Drawin&g...", "File", "", kNone, false, false,
     false, false},
    {C::CompareWith, "ID_CompareWith", "Co&mpare with...", "File", "", kNone, false, false, false,
     true},
    {C::VerifyAgainstDrawing, "ID_VerifyAgainstDrawing", "&Verify against Drawing...", "File", "",
     kNone, false, false, false, false},
    {C::Undo, "ID_Undo", "&Undo", "Edit", "Ctrl+Z", QStyle::SP_ArrowBack, true, false, false,
     false},
    {C::Redo, "ID_Redo", "&Redo", "Edit", "Ctrl+Y", QStyle::SP_ArrowForward, true, false, false,
     false},
    {C::Cut, "ID_Cut", "Cu&t", "Edit", "Ctrl+X", kNone, false, false, false, true},
    {C::Copy, "ID_Copy", "&Copy", "Edit", "Ctrl+C", kNone, false, false, false, false},
    {C::Paste, "ID_Paste", "&Paste", "Edit", "Ctrl+V", kNone, false, false, false, false},
    {C::AddLine, "ID_AddLine", "Add Line (Ctrl + End)", "Edit", "", kNone, false, false, false,
     true},
    {C::InsertLine, "ID_InsertLine", "Insert Line (Ctrl + Ins)", "Edit", "", kNone, false, false,
     false, false},
    {C::DeleteLine, "ID_DeleteLine", "Delete Line (Ctrl + Del)", "Edit", "", kNone, false, false,
     false, false},
    {C::AbortEdit, "ID_AbortEdit", "Abort Edit (Esc)", "Edit", "", kNone, false, false, false,
     false},
    {C::ClearTable, "ID_ClearTable", "C&lear Table", "Edit", "", kNone, false, false, false, false},
    {C::CopyTablefromOtherTab, "ID_CopyTablefromOtherTab", "Copy Table from &Other Tab", "Edit", "",
     kNone, false, false, false, true},
    {C::CopyTablefromOtherFile, "ID_CopyTablefromOtherFile", "Copy Table from Other &File", "Edit",
     "", kNone, false, false, false, false},
    {C::Find, "ID_Find", "Find...", "Edit", "Ctrl+F", kNone, false, false, false, true},
    {C::Replace, "ID_Replace", "Replace...", "Edit", "Ctrl+H", kNone, false, false, false, false},
    {C::NewNetlistTab, "ID_NewNetlistTab", "&New Netlist Tab...", "Edit", "",
     QStyle::SP_FileDialogNewFolder, false, true, false, true},
    {C::DeleteNetlistTab, "ID_DeleteNetlistTab", "&Delete Netlist Tab...", "Edit", "",
     QStyle::SP_TrashIcon, false, true, false, false},
    {C::RenameNetlistTab, "ID_RenameNetlistTab", "Rena&me Netlist Tab...", "Edit", "", kNone, false,
     false, false, false},
    {C::Print, "ID_Print", "&Print...", "File", "Ctrl+P", kNone, false, false, false, true},
    {C::PrintFromToolbar, "ID_PrintFromToolbar", "Print", "", "", kNone, true, false, false, false},
    {C::Properties, "ID_Properties", "P&roperties...", "File", "", kNone, false, false, false,
     true},
    {C::Settings, "ID_Settings", "File S&ettings", "File", "", kNone, false, false, false, false},
    {C::PrintGRVData, "ID_PrintGRVData", "Print GRV Data...", "GRV", "", kNone, false, false, false,
     false},
    {C::Exit, "ID_Exit", "E&xit", "File", "", kNone, false, false, false, true},
    {C::ViewAllTables, "ID_ViewAllTables", "&View All Tables", "Netlist Tables", "", kNone, false,
     true, false, false},
    {C::HideAllTables, "ID_HideAllTables", "&Hide All Tables", "Netlist Tables", "", kNone, false,
     true, false, false},
    {C::Connectors, "ID_Connectors", "&Connectors", "Netlist Tables", "", kNone, false, true, false,
     true},
    {C::Switches, "ID_Switches", "S&witches", "Netlist Tables", "", kNone, false, true, false,
     false},
    {C::Wires, "ID_Wires", "W&ires", "Netlist Tables", "", kNone, false, true, false, false},
    {C::Pins, "ID_Pins", "&Pins", "Netlist Tables", "", kNone, false, true, false, false},
    {C::Splices, "ID_Splices", "&Splices", "Netlist Tables", "", kNone, false, true, false, false},
    {C::Components, "ID_Components", "C&omponents", "Netlist Tables", "", kNone, false, true, false,
     false},
    {C::TestParameters, "ID_TestParameters", "&Test Parameters", "Netlist Tables", "", kNone, false,
     true, false, false},
    {C::ReversiblePairs, "ID_ReversiblePairs", "&Reversible Pairs", "Netlist Tables", "", kNone,
     false, true, false, false},
    {C::Groups, "ID_Groups", "&Groups", "Netlist Tables", "", kNone, false, true, false, false},
    {C::Fixture, "ID_Fixture", "&Fixture Connections", "Netlist Tables", "", kNone, false, true,
     false, false},
    {C::Colors, "ID_Colors", "Wire/Group Co&lors", "Netlist Tables", "", kNone, false, true, false,
     false},
    {C::Sequence, "ID_Sequence", "&Sequence", "Sequence", "", kNone, true, false, true, false},
    {C::Descriptions, "ID_Descriptions", "Command Descriptions", "Sequence", "", kNone, false,
     false, true, false},
    {C::Messages, "ID_Messages", "&Messages", "Sequence", "", kNone, false, false, false, true},
    {C::FeatureCodes, "ID_FeatureCodes", "Feature Codes...", "GRV", "", kNone, false, false, false,
     false},
    {C::AssemblyOrder, "ID_AssemblyOrder", "Assembly Order...", "GRV", "", kNone, false, false,
     false, false},
    {C::GRVTestCompile, "ID_GRVTestCompile", "GRV Pre-Compile...", "GRV", "", kNone, false, false,
     false, true},
    {C::Compile, "ID_Compile", "&Compile", "Sequence", "F9", QStyle::SP_MediaPlay, true, false,
     false, true},
    {C::Download, "ID_Download", "&Download", "Sequence", "Shift+F9", QStyle::SP_ArrowDown, true,
     false, false, false},
    {C::Labels, "ID_Labels", "Edit &Labels", "Sequence", "", kNone, false, false, false, false},
    {C::Simulate, "ID_Simulate", "S&imulate...", "Sequence", "", kNone, false, false, false, true},
    {C::TileHorizontally, "ID_TileHorizontally", "Tile &Horizontally", "Window", "", kNone, false,
     false, false, false},
    {C::TileVertically, "ID_TileVertically", "Tile &Vertically", "Window", "", kNone, false, false,
     false, false},
    {C::Cascade, "ID_Cascade", "&Cascade", "Window", "", kNone, false, false, false, false},
    {C::Default, "ID_Default", "Default", "Window", "", kNone, false, false, false, true},
    {C::SaveNewDefault, "ID_SaveNewDefault", "Save New Default", "Window", "", kNone, false, false,
     false, false},
    {C::MainToolbar, "ID_MainToolbar", "&Main Toolbar", "Tools", "", kNone, false, false, true,
     false},
    {C::NetlistToolbar, "ID_NetlistToolbar", "&Netlist Toolbar", "Tools", "", kNone, false, false,
     true, false},
    {C::ZOLTSettings, "ID_ZOLTSettings", "ZOLT &Settings...", "Tools", "", kNone, false, false,
     false, true},
    {C::ConfigureToolbars, "ID_ConfigureToolbars", "Configure Toolbars...", "Tools", "", kNone,
     false, false, false, false},
    {C::Help, "ID_Help", "ZOLT Help", "Help", "F1", QStyle::SP_DialogHelpButton, true, false, false,
     false},
    {C::QuickStart, "ID_QuickStart", "Quick Start Guide", "Help", "", kNone, false, false, false,
     false},
    {C::AnalyzerGuide, "ID_AnalyzerGuide", "Analyzer User Guide", "Help", "", kNone, false, false,
     false, false},
    {C::GRVHelp, "ID_GRVHelp", "GRV User Guide", "Help", "", kNone, false, false, false, false},
    {C::ApplicationNotes, "ID_ApplicationNotes", "Application Notes", "Help", "", kNone, false,
     false, false, false},
    {C::GroupsTutorial, "ID_GroupsTutorial", "Groups Tutorial", "Help", "", kNone, false, false,
     false, false},
    {C::WebSite, "ID_WebSite", "Thessor Web Site", "Help", "", kNone, false, false, false, true},
    {C::AboutZOLT, "ID_AboutZOLT", "About ZOLT", "Help", "", kNone, false, false, false, true},
}};

// A row out of place would give a handle another command's caption and id.
constexpr bool inHandleOrder() {
    for (int i = 0; i < kCommandCount; ++i)
        if (kCommands[static_cast<std::size_t>(i)].command != static_cast<Command>(i))
            return false;
    return true;
}
static_assert(inHandleOrder(), "the rows of kCommands follow the order of Command");

} // namespace

std::span<const CommandDef> Commands() {
    return kCommands;
}

const CommandDef& Definition(Command command) {
    return kCommands[static_cast<std::size_t>(command)];
}

std::optional<Command> CommandNamed(std::string_view id) {
    const auto it = std::find_if(kCommands.begin(), kCommands.end(),
                                 [id](const CommandDef& c) { return c.id == id; });
    return it == kCommands.end() ? std::nullopt : std::optional(it->command);
}

} // namespace zolt::shell
