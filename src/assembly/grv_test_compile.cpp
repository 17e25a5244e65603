#include "assembly/grv_test_compile.h"

#include "assembly/compile_progress.h"
#include "assembly/pattern_compile.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/project_copy.h"
#include "sequence/program_kind.h"

#include <memory>

namespace zolt {
namespace {

// The pointer is the hourglass for the whole run, whichever way it ends.
class BusyPointer {
public:
    explicit BusyPointer(Ui& ui) : ui_(ui) { ui_.SetBusy(true); }
    ~BusyPointer() { ui_.SetBusy(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Ui& ui_;
};

// The new program is the family with MAIN's tables as the pre-compile left
// them: combining and expanding change nothing else.
void takeMainTables(ProgramState& family, const ProgramState& variant) {
    for (const TableId id : kAllTables) {
        const Table* from = variant.project().MainNetlist->GetTable(id);
        Table* to = family.project().MainNetlist->GetTable(id);
        if (from && to && to->gridarray() != from->gridarray())
            to->gridarray() = from->gridarray();
    }
    family.SetDirty(true);
}

} // namespace

bool RunGRVTestCompile(ProgramState& state, CompileProgress& progress,
                       const TestCompileSteps& steps) {
    Ui& ui = state.ui();
    if (!IsGrvProgram(state)) {
        ui.Show(MessageBox{"Unable To Run GRV Test Compile",
                           "You must have a ZOLT-GRV file open to run the GRV Test Compile. "
                           "Please save your current file as a ZOLT-GRV file, and then re-run "
                           "GRV Test Compile.",
                           Buttons::OkCancel, Icon::Warning, 1});
        return false;
    }
    if (steps.saveChanges() == Answer::Cancel)
        return false;
    if (!steps.selectFeatureCodes())
        return false;

    // Pre-compiled on a copy: a refused run leaves the family as it was.
    const std::unique_ptr<file::ProjectCopy> copy = file::ProjectCopy::Of(state);
    if (!copy)
        return false;
    const BusyPointer busy(ui);
    PatternCompile run(copy->state(), progress);
    progress.Caption("Enter Pre-Compile Stage");
    if (!run.PreCompile()) {
        progress.Hide();
        return false;
    }
    progress.Caption("Creating List of Netlists to Compile");
    takeMainTables(state, copy->state());
    state.project().Assembly.Clear();
    ui.Show(MessageBox{"Save New Test Program",
                       "GRV Test Compile has expanded all patterns within your sequence table.\n"
                       "To save and use this data, please select or enter a name for the new "
                       "test program that will be created.",
                       Buttons::Ok, Icon::Information, 1});
    state.document().GRVTestCompileSave = true;
    steps.saveAs();
    progress.Caption("Finished");
    progress.Hide();
    state.document().GRVTestCompileSave = false;
    return true;
}

} // namespace zolt
