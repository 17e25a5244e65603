#include "assembly/compile_in_memory.h"

#include "assembly/variant_compile.h"
#include "compile/program_compile.h"
#include "core/ports/clock.h"
#include "core/program_state.h"

namespace zolt {

MemoryCompile CompileInMemory(ProgramState& state, CompileProgress& progress) {
    const CompileRoute route = ChooseCompileRoute(state);
    if (route == CompileRoute::Refused)
        return {};
    compile::CompileRequest request;
    request.programFile =
        state.document().CurrentFile.empty() ? "New.zlf" : state.document().CurrentFile;
    request.settings = compile::CompileSettingsOf(state.params());
    request.now = SystemClock().Now();
    // Stored label data is used as it stands: a simulation asks nothing mid-way.
    request.useStoredLabels = true;
    compile::CompileResult result =
        route == CompileRoute::Variant
            ? CompileVariant(state.project(), Variant{state.project().SelectedFeatureCodes},
                             request, progress)
            : compile::Compile(state.project(), request);
    if (result.box)
        state.ui().Show(*result.box);
    if (result.end != compile::CompileEnd::Finished || result.errors != 0)
        return {std::nullopt, result.box ? std::string() : result.results};
    return {std::move(result.image), result.results};
}

} // namespace zolt
