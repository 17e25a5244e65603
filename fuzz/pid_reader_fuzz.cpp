// Any bytes as a PID file: the import ends in a program or in a new empty one,
// and what it built can be written as a program file.
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/program_file.h"
#include "file/table_factory.h"
#include "import/pid_import.h"

#include <cstdlib>
#include <string_view>

namespace {

struct FixedClock final : zolt::Clock {
    zolt::LocalTime Now() const override { return {}; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zolt;
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state(Ports{ui, settings, frame, frame}, MakeTable);
    NewProject(state);
    const FixedClock clock;
    const Answer result =
        import::ImportPIDText(state, std::string_view(reinterpret_cast<const char*>(data), size),
                              import::ImportContext{clock, {}, "fuzz.zlf"});
    if (result != Answer::Yes && state.project().NetlistCollection.Count() != 1)
        std::abort(); // a failed import must leave MAIN alone
    if (result == Answer::Yes)
        (void)file::ProgramFileBytes(state, "fuzz.zlf");
    return 0;
}
