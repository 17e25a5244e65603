#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/program_state.h"

#include <memory>

namespace zolt::file {

// A second program holding a copy of the open one, made from the bytes the
// program file would hold: whatever is done to the copy leaves the open
// program as it was. The copy's boxes reach the user; its settings, commands
// and windows go nowhere (its frame tells what they would have been), and it
// keeps no history.
class ProjectCopy {
public:
    // nullptr, after the reader's or writer's box, when the program cannot be copied.
    static std::unique_ptr<ProjectCopy> Of(ProgramState& original);

    ProgramState& state() { return state_; }
    const HeadlessFrame& frame() const { return frame_; }

    explicit ProjectCopy(ProgramState& original);

private:
    bool copyFrom(ProgramState& original);

    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
};

} // namespace zolt::file
