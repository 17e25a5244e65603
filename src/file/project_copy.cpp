#include "file/project_copy.h"

#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/table_factory.h"

namespace zolt::file {
namespace {

// The family form keeps every row a program of either kind may hold.
constexpr const char* kCopyPath = "copy.grv";

} // namespace

ProjectCopy::ProjectCopy(ProgramState& original)
    : state_(Ports{original.ui(), settings_, frame_, frame_}, MakeTable) {}

std::unique_ptr<ProjectCopy> ProjectCopy::Of(ProgramState& original) {
    auto copy = std::make_unique<ProjectCopy>(original);
    if (!copy->copyFrom(original))
        return nullptr;
    return copy;
}

bool ProjectCopy::copyFrom(ProgramState& original) {
    std::string stage;
    const auto bytes = ProgramFileBytes(original, kCopyPath, &stage);
    if (!bytes) {
        original.ui().Show(MessageBox{"Abort File Write", "WRITE FAILED AT: " + stage, Buttons::Ok,
                                      Icon::Stop, 1});
        return false;
    }
    LoadedProgram loaded = LoadProgram(*bytes, kCopyPath);
    if (AdoptLoadedProgram(state_, loaded) != Answer::Yes)
        return false;

    // What the file does not hold: this run's lists, parameters and compile facts.
    const Project& from = original.project();
    Project& to = state_.project();
    to.DeviceList = from.DeviceList;
    to.MacroList = from.MacroList;
    to.SelectedFeatureCodes = from.SelectedFeatureCodes;
    to.CompileLabels = from.CompileLabels;
    to.NeedsCompile = from.NeedsCompile;
    to.CompiledDate = from.CompiledDate;
    // The command dictionary as the open program knows it, macros included.
    const Table* dictionary = from.MainNetlist->GetTable(table::SequenceList);
    if (Table* target = to.MainNetlist->GetTable(table::SequenceList); dictionary && target)
        target->gridarray() = dictionary->gridarray();
    for (const CParameter* parameter : original.Params().All())
        state_.Params().GetParam(parameter->Name) = *parameter;
    state_.document().CurrentFile = original.document().CurrentFile;
    state_.SetDirty(false);
    return true;
}

} // namespace zolt::file
