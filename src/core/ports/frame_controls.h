#pragma once

#include <string>

namespace zolt {

// The parts of the main frame that the project logic drives: command
// enablement by identifier and the netlist tab bar.
class FrameControls {
public:
    virtual ~FrameControls() = default;
    virtual void EnableCommand(const std::string& id, bool enabled) = 0;
    virtual bool IsCommandEnabled(const std::string& id) const = 0;
    // The check mark of a command such as ID_Sequence.
    virtual void CheckCommand(const std::string& id, bool checked) = 0;
    virtual bool IsCommandChecked(const std::string& id) const = 0;
    virtual void SetCaption(const std::string& caption) = 0;

    virtual int TabCount() const = 0;
    virtual std::string TabCaption(int position) const = 0;
    virtual void AddTab(const std::string& caption) = 0;
    virtual void RemoveTab(int position) = 0;
    virtual void SetTabCaption(int position, const std::string& caption) = 0;
    virtual void SetCurrentTab(int position) = 0;
    virtual int CurrentTab() const = 0;
    // Caption colour of the current tab as 0xRRGGBB; -1 for the default colour.
    virtual void SetTabCaptionColor(int position, int rgb) = 0;
    virtual void SetTabBarVisible(bool visible) = 0;
};

// Command identifiers the project logic enables and disables.
namespace cmd {
inline constexpr const char* DeleteNetlistTab = "ID_DeleteNetlistTab";
inline constexpr const char* RenameNetlistTab = "ID_RenameNetlistTab";
inline constexpr const char* Save = "ID_Save";
inline constexpr const char* AbortEdit = "ID_AbortEdit";
inline constexpr const char* Compile = "ID_Compile";
inline constexpr const char* Download = "ID_Download";
inline constexpr const char* Sequence = "ID_Sequence";
// The window-arranging commands, switched together.
inline constexpr const char* WindowArrange = "ID_WindowArrange";
// The commands that open the tables of a netlist, switched together.
inline constexpr const char* TableCommands = "ID_TableCommands";
} // namespace cmd

} // namespace zolt
