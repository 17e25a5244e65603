#include "assembly/variant_compile.h"

#include "assembly/compile_progress.h"
#include "assembly/feature_codes.h"
#include "core/headless/scripted_ui.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"

#include <filesystem>

namespace zolt {

CompileRoute ChooseCompileRoute(ProgramState& state) {
    const AssemblyData& a = state.project().Assembly;
    const bool hasAssemblyData = !a.FeatureCodeData.empty() || a.AssemblyOrderList.Count() > 0 ||
                                 a.NetlistInfoList.Count() > 0;
    if (!hasAssemblyData)
        return CompileRoute::AsItStands;
    // The ticked codes by name: one deleted or renamed since drops out, and the
    // netlists follow the edits made since.
    std::vector<std::string> ticked;
    for (const std::string& line : state.project().SelectedFeatureCodes)
        ticked.push_back(FeatureCodeName(line));
    const std::vector<std::string> selected = SelectFeatureCodeLines(a.FeatureCodeData, ticked);
    if (!selected.empty()) {
        state.project().SelectedFeatureCodes = selected;
        return CompileRoute::Variant;
    }
    const std::string name =
        std::filesystem::path(state.document().CurrentFile).filename().string();
    state.ui().Show(MessageBox{"Attempting to Compile GRV Data",
                               name + " currently contains GRV data. Please run GRV Test Compile "
                                      "first before compiling further.",
                               Buttons::Ok, Icon::Warning});
    return CompileRoute::Refused;
}

std::string DescriptionOf(const Variant& variant) {
    std::string text = "Feature Codes:";
    const char* separator = " ";
    for (const std::string& line : variant.featureCodes) {
        text += separator + FeatureCodeName(line);
        separator = ", ";
    }
    return text;
}

VariantProgram::VariantProgram(std::unique_ptr<file::ProjectCopy> copy, CompileProgress& progress,
                               const Variant& variant)
    : copy_(std::move(copy)), progress_(progress), run_(copy_->state(), progress),
      variant_(variant) {}

std::unique_ptr<VariantProgram> VariantProgram::Of(const Project& family, const Variant& variant,
                                                   Ui& ui, CompileProgress& progress) {
    auto copy = file::ProjectCopy::Of(family, ui);
    if (!copy)
        return nullptr;
    copy->state().project().SelectedFeatureCodes = variant.featureCodes;
    auto program = std::make_unique<VariantProgram>(std::move(copy), progress, variant);
    const bool prepared = program->prepare();
    progress.Hide();
    if (!prepared)
        return nullptr;
    return program;
}

bool VariantProgram::prepare() {
    const Project& variant = copy_->project();
    variant.NetlistCollection.ForEach(
        [&](const std::unique_ptr<CNetList>& netlist) { netlists_.push_back(netlist.get()); });
    // Without blocks nothing names the netlists to keep: the program compiles whole.
    const bool expands = run_.HasPatterns();
    progress_.Caption("Enter Pre-Compile Stage");
    if (!run_.PreCompile())
        return false;
    if (expands) {
        progress_.Caption("Creating List of Netlists to Compile");
        run_.FilterNetlists();
    }
    progress_.Caption("Finished");
    return true;
}

compile::CompileRequest VariantProgram::Request(compile::CompileRequest request) const {
    request.note = DescriptionOf(variant_);
    request.manualNetlists = netlists_;
    return request;
}

compile::CompileResult CompileVariant(const Project& family, const Variant& variant,
                                      const compile::CompileRequest& request,
                                      CompileProgress& progress) {
    // The pre-compile's boxes all end it: the first is the result's.
    ScriptedUi boxes;
    const auto program = VariantProgram::Of(family, variant, boxes, progress);
    if (!program) {
        compile::CompileResult refused;
        refused.end = compile::CompileEnd::Aborted;
        if (!boxes.ShownBoxes().empty())
            refused.box = boxes.ShownBoxes().front();
        return refused;
    }
    return compile::Compile(program->project(), program->Request(request));
}

} // namespace zolt
