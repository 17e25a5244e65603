#include "file/edit_history.h"

#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/program_file.h"

namespace zolt::file {

EditHistory::EditHistory(ProgramState& state, std::string dataDirectory, std::size_t limit)
    : state_(state), dataDirectory_(std::move(dataDirectory)), limit_(limit) {}

std::string EditHistory::snapshot() const {
    if (!state_.FileOpen || !state_.MainNetlist)
        return {};
    return ProgramFileBytes(state_, state_.CurrentFile).value_or(std::string());
}

void EditHistory::Reset() {
    undo_.clear();
    redo_.clear();
    current_ = snapshot();
    saved_ = state_.IsDirty() ? std::string() : current_;
}

void EditHistory::MarkSaved() {
    current_ = snapshot();
    saved_ = current_;
}

bool EditHistory::Record() {
    std::string now = snapshot();
    if (now.empty() || now == current_)
        return false;
    undo_.push_back(std::move(current_));
    if (undo_.size() > limit_)
        undo_.pop_front();
    redo_.clear();
    current_ = std::move(now);
    return true;
}

bool EditHistory::restore(const std::string& bytes) {
    const std::string active = state_.ActiveNetlist ? state_.ActiveNetlist->NetlistName : kMain;
    const bool needsCompile = state_.NeedsCompile;
    state_.DestroyAll();
    ResetNetlistTabs(state_);
    state_.Params().LoadFilePropertyParameters();
    if (ReadProgramBytes(state_, bytes, state_.CurrentFile, nullptr, dataDirectory_) != 6)
        return false;
    std::string name = active;
    if (state_.FindNetlist(name))
        ActivateNetlist(state_, name);
    state_.SetDirty(bytes != saved_);
    state_.NeedsCompile = needsCompile || bytes != saved_;
    // A read can settle details a first write did not have (empty label stores
    // take their rows): what is in memory now is the step's state.
    const std::string settled = snapshot();
    if (bytes == saved_)
        saved_ = settled;
    current_ = settled;
    return true;
}

bool EditHistory::Undo() {
    if (undo_.empty())
        return false;
    std::string target = std::move(undo_.back());
    undo_.pop_back();
    redo_.push_back(std::move(current_));
    return restore(target);
}

bool EditHistory::Redo() {
    if (redo_.empty())
        return false;
    std::string target = std::move(redo_.back());
    redo_.pop_back();
    undo_.push_back(std::move(current_));
    return restore(target);
}

} // namespace zolt::file
