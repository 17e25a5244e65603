#include "assembly/variant_compile.h"

#include "assembly/compile_progress.h"
#include "assembly/feature_codes.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "tables/message_table.h"

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

VariantCompile::VariantCompile(ProgramState& family, CompileProgress& progress)
    : family_(family), progress_(progress) {}

VariantCompile::~VariantCompile() = default;

bool VariantCompile::Prepare() {
    copy_ = file::ProjectCopy::Of(family_);
    if (!copy_)
        return false;
    ProgramState& variant = copy_->state();
    run_.emplace(variant, progress_);
    for (std::size_t i = 1; i <= variant.project().NetlistCollection.Count(); ++i)
        netlists_.push_back(variant.project().NetlistCollection.Item(i)->get());

    // Without blocks nothing names the netlists to keep: the program compiles whole.
    const bool expands = run_->HasPatterns();
    progress_.Caption("Enter Pre-Compile Stage");
    if (!run_->PreCompile()) {
        progress_.Hide();
        return false;
    }
    if (expands) {
        progress_.Caption("Creating List of Netlists to Compile");
        run_->FilterNetlists();
    }
    progress_.Caption("Finished");
    progress_.Hide();
    // From here on a change of the copy is the compile's.
    variant.SetDirty(false);
    return true;
}

ProgramState& VariantCompile::Program() {
    return copy_ ? copy_->state() : family_;
}

void VariantCompile::KeepCompileResults() {
    if (!copy_)
        return;
    const Project& variant = copy_->state().project();
    Project& family = family_.project();
    family_.frame().CommandsChanged();
    if (!copy_->state().IsDirty())
        return;
    family_.SetDirty(true);
    family.NeedsCompile = variant.NeedsCompile;
    family.CompiledDate = variant.CompiledDate;

    // MAIN compiled combined; only the family's own netlists take the build order.
    variant.NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        CNetList* own = netlist.get() == variant.MainNetlist
                            ? nullptr
                            : family.FindNetlist(netlist->NetlistName);
        const Table* wires = netlist->GetTable(table::Wire);
        Table* ownWires = own ? own->GetTable(table::Wire) : nullptr;
        if (wires && ownWires && ownWires->gridarray() != wires->gridarray())
            ownWires->gridarray() = wires->gridarray();
    });
    // Label files read by the compile are kept for the next session.
    const auto* labels = variant.MainNetlist->TableAs<CMessageTable>(table::Message);
    auto* ownLabels = family.MainNetlist->TableAs<CMessageTable>(table::Message);
    if (labels && ownLabels) {
        ownLabels->PLabelData() = labels->PLabelData();
        ownLabels->PLabel2Data() = labels->PLabel2Data();
    }
}

std::string VariantCompile::Description() const {
    std::string text = "Feature Codes:";
    const char* separator = " ";
    for (const std::string& line : family_.project().SelectedFeatureCodes) {
        text += separator + FeatureCodeName(line);
        separator = ", ";
    }
    return text;
}

} // namespace zolt
