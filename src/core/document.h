#pragma once

#include <string>

namespace zolt {

// The program file the project belongs to, as the document commands see it.
class Document {
public:
    bool FileOpen = false;
    std::string CurrentFile;
    // The file whose lock this program holds; empty when none.
    std::string LockedFile;
    bool FileInUseCancelled = false;
    // The next save gives the file the family extension (.grv).
    bool ConvertToGRV = false;
    bool GRVTestCompileSave = false;

    // Edited since the last save; set through ProgramState::SetDirty, which also
    // marks the project for compiling and the Save command.
    bool IsDirty() const { return dirty_; }

private:
    friend class ProgramState;
    bool dirty_ = false;
};

} // namespace zolt
