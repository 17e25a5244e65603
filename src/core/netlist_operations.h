#pragma once

#include "core/edit_history.h"

#include <cstddef>
#include <string>

namespace zolt {

class CNetList;
class ProgramState;
struct Project;

// The netlist commands of the main frame and the tab logic behind them. Every
// question goes through the Ui port, every window effect through the frame ports.

inline constexpr const char* kManualNetlists = "MANUAL NETLISTS";
inline constexpr const char* kMain = "MAIN";
// The program file counts the netlists besides MAIN, and places every netlist
// by its position, in 16 bits.
inline constexpr std::size_t kMaxNetlists = 32768;

// What typing into the netlist name box leaves of a text: no blank, "!", double
// or single quote, and capitals when `upperCase` is on.
std::string FilterNetlistNameTyping(const std::string& typed, bool upperCase);

// MAIN and the manual netlist: neither Rename nor Delete applies to them.
bool IsFixedNetlist(const ProgramState& state, const CNetList& netlist);

// Asks for a new name (old name empty) or a new name for `oldName`; empty when
// the user cancelled or, renaming, left the name as it was.
std::string AskNetlistName(ProgramState& state, const std::string& oldName);
// A new netlist of that (trimmed) name: its number in MAIN's list and its tables.
CNetList& AddNetlistToProject(Project& project, const std::string& name);
// The whole road of a new netlist with a given name: number, tables, tab, activation.
void AddNetlist(ProgramState& state, std::string name);
// The tabs of a project just opened: MAIN, then each netlist in the project's
// order, each activated as it comes; MAIN active at the end.
void ShowNetlistTabs(ProgramState& state);
// `ID_NewNetlistTab`: asks, checks against the compile labels, adds, marks the project changed.
void NewNetlistCommand(ProgramState& state);
// `ID_RenameNetlistTab` on the selected tab.
void RenameNetlistCommand(ProgramState& state);
// Asks which netlist to delete and checks it may go; empty when none.
std::string AskDeleteNetlist(ProgramState& state);
void DeleteNetList(ProgramState& state, const std::string& name);
// Takes a netlist out of the project whole: its windows closed, its tab and its
// line of MAIN's netlist list gone, MAIN active when it was. Empty when none.
DetachedNetlist DetachNetlist(ProgramState& state, const std::string& name);
// Puts a detached netlist back where it was and makes it the active one.
void AttachNetlist(ProgramState& state, DetachedNetlist detached);
// The rename itself: the collection, MAIN's netlist list and the tab.
void RenameNetlistEntry(ProgramState& state, const std::string& oldName,
                        const std::string& newName);
// `ID_DeleteNetlistTab`.
void DeleteNetlistCommand(ProgramState& state);
// Makes a netlist the active one; false (with "Netlist Not Found!") when there is none.
bool ActivateNetlist(ProgramState& state, std::string& name);
// The tab position of a netlist, compared trimmed and in upper case; -1 when none.
int FindNetlistTab(const ProgramState& state, const std::string& name);
// The tab bar as a project starts: the MAIN tab alone, current, the bar hidden.
void ResetNetlistTabs(ProgramState& state);
// A project holding MAIN only, its tables empty, as a document starts.
void NewProject(ProgramState& state);
// The fixed test parameter rows a new program starts with, numbered 1 to 15,
// each with the project's `TestVoltage`, `TestCurrent` and `Threshold` (both thresholds).
void FillDefaultTestParameters(ProgramState& state);
// The same for the rows 1 to 15 that have no number yet; rows that have one are kept.
void FillMissingTestParameters(ProgramState& state);
inline constexpr int kTestParameterRows = 15;

} // namespace zolt
