#include "assembly/grv_test_compile.h"

#include "assembly/compile_progress.h"
#include "assembly/pattern_compile.h"
#include "core/app_info.h"
#include "core/document.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/project_copy.h"
#include "sequence/program_kind.h"

#include <filesystem>
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

// The new program was not saved under a name of its own: it must not be saved
// over the family, so a later Save asks for a name as for a new program.
void leaveUnnamed(ProgramState& state) {
    Document& document = state.document();
    document.CurrentFile =
        (std::filesystem::path(document.CurrentFile).parent_path() / "New.zlf").string();
    state.SetDirty(true);
    state.frame().SetCaption(std::string("Thessor ") + kAppTitle + " - New.zlf");
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
    const std::unique_ptr<file::ProjectCopy> copy = file::ProjectCopy::Of(state.project(), ui);
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
    const std::string family = state.document().CurrentFile;
    state.document().GRVTestCompileSave = true;
    steps.saveAs();
    if (state.document().CurrentFile == family)
        leaveUnnamed(state);
    progress.Caption("Finished");
    progress.Hide();
    state.document().GRVTestCompileSave = false;
    return true;
}

} // namespace zolt
