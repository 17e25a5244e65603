#include "tutorial/groups_tutorial.h"

#include "core/ports/settings_store.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/blank_template.h"
#include "file/document_lifecycle.h"

#include <filesystem>

namespace zolt::tutorial {

std::string TutorialTemplatePath(SettingsStore& settings, const std::string& dataDirectory) {
    const std::string chosen = settings.ReadOr("Tutorials", "TutorialTemplate", "");
    if (!chosen.empty())
        return chosen;
    return (std::filesystem::path(dataDirectory) / file::kBlankTemplate).string();
}

bool OpenTutorialExample(ProgramState& state, file::DocumentLifecycle& document,
                         const std::string& templatePath) {
    if (state.params().Text(param::Group) != "True") {
        state.ui().Message("The tutorial is only currently implemented for Group method.",
                           "Abort Operation");
        return false;
    }
    // Checked before the user's project is closed: a missing template costs nothing.
    std::error_code ec;
    if (!std::filesystem::exists(templatePath, ec)) {
        state.ui().Message(templatePath + " not found", "Abort Operation");
        return false;
    }
    document.Close();
    if (state.document().FileOpen)
        return false;
    document.NewFromTemplate(templatePath);
    if (!state.document().FileOpen)
        return false;
    state.params().SetVal(param::Group, Value(true));
    state.SetDirty(false);
    return true;
}

GroupsTutorial::GroupsTutorial(ProgramState& state, std::vector<TutorialStep> steps)
    : state_(state), steps_(std::move(steps)) {
    state_.session().TutorialActive = true;
}

GroupsTutorial::~GroupsTutorial() {
    // A finished walk may outlive the program state (its window goes later).
    if (!finished_)
        state_.session().TutorialActive = false;
}

StepState GroupsTutorial::Check() const {
    return CheckStep(Step(), state_);
}

void GroupsTutorial::advance() {
    if (IsLast()) {
        Quit();
        return;
    }
    ++index_;
}

bool GroupsTutorial::Next() {
    if (finished_)
        return false;
    const StepState now = Check();
    if (!now.done) {
        state_.ui().Message(now.hint, kTutorialCaption, Buttons::Ok, Icon::Information);
        return false;
    }
    advance();
    return true;
}

void GroupsTutorial::Back() {
    if (!finished_ && index_ > 0)
        --index_;
}

bool GroupsTutorial::Skip() {
    if (finished_ || !FillStep(Step(), state_))
        return false;
    advance();
    return true;
}

void GroupsTutorial::Quit() {
    finished_ = true;
    state_.session().TutorialActive = false;
}

} // namespace zolt::tutorial
