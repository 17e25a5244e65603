// Any bytes as a drawing: the reader gives a drawing or its reason, and a
// drawing goes into a new program or is refused by the tables, never further.
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"
#include "interchange/kicad_reader.h"
#include "interchange/netlist_fill.h"

#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zolt;
    const interchange::DrawingRead read = interchange::ReadKicadNetlist(
        std::string_view(reinterpret_cast<const char*>(data), size), {});
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
