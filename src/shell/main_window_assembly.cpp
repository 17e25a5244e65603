// The commands of the GRV menu: feature codes, the assembly order and the test
// compile of a `.grv` program.
#include "assembly/grv_test_compile.h"
#include "core/document.h"
#include "sequence/program_kind.h"
#include "shell/compile_progress_window.h"
#include "shell/feature_code_dialogs.h"
#include "shell/main_window.h"
#include "shell/test_ordering_dialog.h"

namespace zolt::shell {

void MainWindow::bindAssemblyCommands() {
    const auto grv = [this] { return state_->document().FileOpen && IsGrvProgram(*state_); };
    commands_.Bind(
        Command::FeatureCodes, [this] { EditFeatureCodesDialog(*state_, this).exec(); }, grv);
    commands_.Bind(
        Command::AssemblyOrder, [this] { TestOrderingDialog(*state_, this).exec(); }, grv);
    commands_.Bind(
        Command::GRVTestCompile, [this] { grvTestCompile(); }, grv);
}

void MainWindow::grvTestCompile() {
    CompileProgressWindow progress(this);
    TestCompileSteps steps;
    steps.saveChanges = [this] { return document_->PromptSaveChanges(true, false, false); };
    steps.selectFeatureCodes = [this] {
        return SelectFeatureCodesDialog(*state_, this).exec() == QDialog::Accepted;
    };
    steps.saveAs = [this] { document_->SaveAs(); };
    const std::string family = state_->document().CurrentFile;
    if (RunGRVTestCompile(*state_, progress, steps)) {
        // The family is no longer open, also when its new program is still unnamed.
        if (state_->document().LockedFile == family && state_->document().CurrentFile != family)
            document_->RemoveLockFile(family);
        afterDocumentChange();
    }
    // The pre-compile rewrote the tables under the open windows.
    state_->ShowRecordCount(true);
}

} // namespace zolt::shell
