#pragma once

// Any bytes as a drawing: the reader gives a drawing or its reason, and a
// drawing goes into a new program or is refused by the tables, never further.
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"
#include "interchange/drawing_formats.h"
#include "interchange/netlist_fill.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace zolt::fuzz {

using DrawingReader = interchange::DrawingRead (*)(std::string_view,
                                                   const interchange::DrawingOptions&);

inline int FuzzDrawing(DrawingReader reader, const std::uint8_t* data, std::size_t size) {
    const interchange::DrawingRead read =
        reader(std::string_view(reinterpret_cast<const char*>(data), size), {});
    if (read.ok() == !read.error.empty())
        std::abort(); // a drawing, or a reason: never both, never neither
    if (!read.ok())
        return 0;
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state(Ports{ui, settings, frame, frame}, MakeTable);
    NewProject(state);
    (void)interchange::FillNetlist(state, *state.project().MainNetlist, read.drawing);
    return 0;
}

} // namespace zolt::fuzz
