#pragma once

#include <cstddef>
#include <deque>
#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::file {

// Undo and redo of every edit. The project is remembered as the bytes of its
// program file after each finished gesture, so any edit (a cell, rows, a
// paste, AutoGen, netlists added, renamed or deleted) goes back the same way,
// and the document is clean exactly when it equals what was last saved.
class EditHistory {
public:
    EditHistory(ProgramState& state, std::string dataDirectory, std::size_t limit = 100);

    // A project was opened or closed: the history starts anew from it.
    void Reset();
    // The project was saved: this state is the clean one.
    void MarkSaved();
    // After a user gesture: remembers the project if it changed. True when it did.
    bool Record();

    bool CanUndo() const { return !undo_.empty(); }
    bool CanRedo() const { return !redo_.empty(); }
    // Puts the project back one step; false when there is none or it failed.
    bool Undo();
    bool Redo();

private:
    std::string snapshot() const;
    bool restore(const std::string& bytes);

    ProgramState& state_;
    std::string dataDirectory_;
    std::size_t limit_;
    std::string current_;
    std::string saved_;
    std::deque<std::string> undo_;
    std::deque<std::string> redo_;
};

} // namespace zolt::file
