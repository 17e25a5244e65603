#include "assembly/compile_in_memory.h"

#include "assembly/variant_compile.h"
#include "compile/compile_driver.h"
#include "core/ports/clock.h"
#include "core/program_state.h"
#include "file/project_copy.h"
#include "file/scratch_folder.h"

#include <filesystem>

namespace zolt {

MemoryCompile CompileInMemory(ProgramState& state, CompileProgress& progress) {
    const file::ScratchFolder scratch;
    if (scratch.Path().empty())
        return {std::nullopt, "No folder for the compile could be made in " +
                                  std::filesystem::temp_directory_path().string() + "."};
    const auto copy = file::ProjectCopy::Of(state);
    if (!copy)
        return {};
    ProgramState& program = copy->state();
    const std::filesystem::path name =
        std::filesystem::path(state.document().CurrentFile).filename();
    program.document().CurrentFile =
        (scratch.Path() / (name.empty() ? std::filesystem::path("New.zlf") : name)).string();

    const CompileRoute route = ChooseCompileRoute(program);
    if (route == CompileRoute::Refused)
        return {};
    VariantCompile variant(program, progress);
    if (route == CompileRoute::Variant && !variant.Prepare())
        return {};
    compile::NXComp control;
    const SystemClock clock;
    compile::CompileDriver driver(variant.Program(), control, clock);
    driver.Load();
    if (route == CompileRoute::Variant) {
        driver.Note(variant.Description());
        driver.LookUpManualNetlistsIn(variant.Netlists());
    }
    const compile::CompileEnd end = driver.Run();
    if (end != compile::CompileEnd::Finished || control.ErrorCount() != 0)
        return {std::nullopt, driver.Results()};
    return {control.Image(), driver.Results()};
}

} // namespace zolt
