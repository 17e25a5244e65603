#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"

namespace zolt::testing {

// A program with a new project open, answered from a script.
struct TestProject {
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state{Ports{ui, settings, frame, frame}, MakeTable};

    TestProject() { NewProject(state); }
};

} // namespace zolt::testing
