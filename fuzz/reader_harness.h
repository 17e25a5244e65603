#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/program_file.h"
#include "file/table_factory.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zolt::fuzz {

// Reads one file's bytes into a fresh project, as opening it would, then
// builds the file the writer would save from what was read. `directory` takes
// the image a file may unpack. Odd sizes are read as `.grv`, even ones as `.zlf`,
// so that both kinds of program are exercised.
inline Answer ReadAndWrite(std::string_view bytes, const std::string& directory) {
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state(Ports{ui, settings, frame, frame}, MakeTable);
    NewProject(state);
    const std::string path = directory + (bytes.size() % 2 ? "/fuzz.grv" : "/fuzz.zlf");
    const Answer result = file::ReadProgramBytes(state, bytes, path);
    if (result == Answer::Yes)
        (void)file::ProgramFileBytes(state, path);
    return result;
}

} // namespace zolt::fuzz
