// The commands of the GRV menu: feature codes, the assembly order and the test
// compile of a `.grv` program.
#include "assembly/grv_test_compile.h"
#include "core/document.h"
#include "shell/compile_progress_window.h"
#include "shell/feature_code_dialogs.h"
#include "shell/main_window.h"
#include "shell/test_ordering_dialog.h"

namespace zolt::shell {

bool MainWindow::routeAssemblyCommand(const QString& id) {
    if (id == QLatin1String("ID_FeatureCodes")) {
        EditFeatureCodesDialog(*state_, this).exec();
    } else if (id == QLatin1String("ID_AssemblyOrder")) {
        TestOrderingDialog(*state_, this).exec();
    } else if (id == QLatin1String("ID_GRVTestCompile")) {
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
    } else {
        return false;
    }
    return true;
}

} // namespace zolt::shell
