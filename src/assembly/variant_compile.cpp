#include "assembly/variant_compile.h"

#include "assembly/compile_progress.h"
#include "assembly/feature_codes.h"
#include "core/ports/ui.h"
#include "core/program_state.h"

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

VariantCompile::VariantCompile(ProgramState& state, CompileProgress& progress)
    : state_(state), progress_(progress), run_(state, progress) {}

VariantCompile::~VariantCompile() {
    Restore();
}

bool VariantCompile::Prepare() {
    for (const TableId id : kAllTables)
        if (const Table* table = state_.project().MainNetlist->GetTable(id))
            saved_.emplace_back(id, table->gridarray());
    for (std::size_t i = 1; i <= state_.project().NetlistCollection.Count(); ++i)
        netlists_.push_back(state_.project().NetlistCollection.Item(i)->get());

    // Without blocks nothing names the netlists to keep: the program compiles whole.
    const bool expands = run_.HasPatterns();
    progress_.Caption("Enter Pre-Compile Stage");
    if (!run_.PreCompile()) {
        progress_.Hide();
        Restore();
        return false;
    }
    if (expands) {
        progress_.Caption("Creating List of Netlists to Compile");
        run_.FilterNetlists();
        filtered_ = true;
    }
    progress_.Caption("Finished");
    progress_.Hide();
    return true;
}

void VariantCompile::Restore() {
    if (filtered_)
        run_.RestoreNetlists();
    filtered_ = false;
    for (auto& [id, rows] : saved_) {
        Table* table = state_.project().MainNetlist->GetTable(id);
        if (!table || table->gridarray() == rows)
            continue;
        table->gridarray() = std::move(rows);
    }
    saved_.clear();
}

std::string VariantCompile::Description() const {
    std::string text = "Feature Codes:";
    const char* separator = " ";
    for (const std::string& line : state_.project().SelectedFeatureCodes) {
        text += separator + FeatureCodeName(line);
        separator = ", ";
    }
    return text;
}

} // namespace zolt
