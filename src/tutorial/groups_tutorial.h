#pragma once

#include "tutorial/step_check.h"
#include "tutorial/tutorial_steps.h"

#include <string>
#include <vector>

namespace zolt {
class ProgramState;
class SettingsStore;
} // namespace zolt

namespace zolt::file {
class DocumentLifecycle;
} // namespace zolt::file

namespace zolt::tutorial {

inline constexpr const char* kTutorialCaption = "Groups Tutorial";

// The template the example starts from: "TutorialTemplate" of the "Tutorials"
// settings, else the blank template beside the program.
std::string TutorialTemplatePath(SettingsStore& settings, const std::string& dataDirectory);

// The start of `ID_GroupsTutorial`: only on the group method; closes the project
// by the Close road (which may ask to save), then opens a new, unnamed group
// method project from the template for the example. False when the tutorial
// cannot start; the project is then as the road left it.
bool OpenTutorialExample(ProgramState& state, file::DocumentLifecycle& document,
                         const std::string& templatePath);

// A walk through the steps while the user types in the real tables. The
// program's `TutorialActive` is set from construction until the walk ends.
class GroupsTutorial {
public:
    explicit GroupsTutorial(ProgramState& state,
                            std::vector<TutorialStep> steps = GroupsTutorialSteps());
    ~GroupsTutorial();
    GroupsTutorial(const GroupsTutorial&) = delete;
    GroupsTutorial& operator=(const GroupsTutorial&) = delete;

    int Index() const { return index_; }
    int Count() const { return static_cast<int>(steps_.size()); }
    bool IsLast() const { return index_ + 1 == Count(); }
    const TutorialStep& Step() const { return steps_.at(index_); }
    StepState Check() const;

    // Goes on when the tables hold the step; otherwise says what is missing and
    // stays. On the last step it finishes. True when it went on.
    bool Next();
    void Back();
    // Types the step for the user and goes on; false when a table refused it.
    bool Skip();
    void Quit();
    bool Finished() const { return finished_; }

private:
    void advance();

    ProgramState& state_;
    std::vector<TutorialStep> steps_;
    int index_ = 0;
    bool finished_ = false;
};

} // namespace zolt::tutorial
