#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/program_state.h"

#include <memory>

namespace zolt::file {

// A second program holding a copy of a project, made from the bytes the
// program file would hold: whatever is done to the copy leaves the project as
// it was. The copy's boxes go to the Ui it was given; its settings, commands
// and windows go nowhere, and it keeps no history.
class ProjectCopy {
public:
    // nullptr, after the reader's or writer's box, when the project cannot be copied.
    static std::unique_ptr<ProjectCopy> Of(const Project& project, Ui& ui);

    ProgramState& state() { return state_; }
    const Project& project() const { return state_.project(); }

    explicit ProjectCopy(Ui& ui);

private:
    bool copyFrom(const Project& project);

    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
};

} // namespace zolt::file
