#pragma once

#include <string>
#include <vector>

namespace zolt {

// The state of this run's editing, never stored with the program.
struct EditingSession {
    // A grid cell is being edited; set through ProgramState::SetGridEditing,
    // which also switches the commands that may not run meanwhile.
    bool GridEditing = false;
    bool ForceFormClose = false;
    bool SequenceSelecting = false;
    bool SequenceVisible = false;
    bool TutorialActive = false;
    bool PrivilegedMode = false;
    bool UseLayoutDefaults = true;
    bool DebugLogOn = false;
    // The rows last copied or cut, one text line each.
    std::vector<std::string> CopyData;
};

} // namespace zolt
