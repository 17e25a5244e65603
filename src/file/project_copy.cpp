#include "file/project_copy.h"

#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/table_factory.h"

namespace zolt::file {
namespace {

// The family form keeps every row a program of either kind may hold.
constexpr const char* kCopyPath = "copy.grv";

} // namespace

ProjectCopy::ProjectCopy(Ui& ui) : state_(Ports{ui, settings_, frame_, frame_}, MakeTable) {}

std::unique_ptr<ProjectCopy> ProjectCopy::Of(const Project& project, Ui& ui) {
    auto copy = std::make_unique<ProjectCopy>(ui);
    if (!copy->copyFrom(project))
        return nullptr;
    return copy;
}

bool ProjectCopy::copyFrom(const Project& from) {
    std::vector<const CParameter*> parameters;
    from.FileParameters.ForEach([&](const CParameter& p) { parameters.push_back(&p); });
    std::string stage;
    const auto bytes = ProjectFileBytes(from, parameters, {}, kCopyPath, &stage);
    if (!bytes) {
        state_.ui().Show(MessageBox{"Abort File Write", "WRITE FAILED AT: " + stage, Buttons::Ok,
                                    Icon::Stop, 1});
        return false;
    }
    LoadedProgram loaded = LoadProgram(*bytes, kCopyPath);
    if (AdoptLoadedProgram(state_, loaded) != Answer::Yes)
        return false;

    // What the file does not hold: this run's lists and compile facts.
    Project& to = state_.project();
    to.DeviceList = from.DeviceList;
    to.MacroList = from.MacroList;
    to.SelectedFeatureCodes = from.SelectedFeatureCodes;
    to.CompileLabels = from.CompileLabels;
    to.NeedsCompile = from.NeedsCompile;
    to.CompiledDate = from.CompiledDate;
    // The command dictionary as the project knows it, macros included.
    const Table* dictionary = from.MainNetlist->GetTable(table::SequenceList);
    if (Table* target = to.MainNetlist->GetTable(table::SequenceList); dictionary && target)
        target->gridarray() = dictionary->gridarray();
    state_.SetDirty(false);
    return true;
}

} // namespace zolt::file
