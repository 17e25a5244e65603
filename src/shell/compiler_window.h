#pragma once

#include "compile/compile_driver.h"

#include <QDialog>
#include <functional>

class QPlainTextEdit;
class QPushButton;

namespace zolt {
class Clock;
class VariantProgram;
class ProgramState;
class SettingsStore;
class Ui;
} // namespace zolt

namespace zolt::shell {

// "Compiler Results...": compiles the program once it is on the screen and shows
// the results as they come; Close is usable when the run has ended.
class CompilerWindow : public QDialog {
    Q_OBJECT
public:
    // With `variant`, the pre-compiled variant of a family is compiled; the
    // family takes only the compile's results.
    CompilerWindow(ProgramState& state, const Clock& clock, QWidget* parent = nullptr,
                   const VariantProgram* variant = nullptr);

    QPlainTextEdit& results() const { return *results_; }
    QPushButton& closeButton() const { return *close_; }
    // How the run ended; nullopt while it has not run.
    std::optional<compile::CompileEnd> outcome() const { return outcome_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void run();

    compile::CompileDriver driver_;
    const VariantProgram* variant_;
    QPlainTextEdit* results_;
    QPushButton* close_;
    bool started_ = false;
    std::optional<compile::CompileEnd> outcome_;
};

// Compile: a program without a file is saved first through `saveAs`.
void RunCompileCommand(ProgramState& state, const Clock& clock, const std::function<void()>& saveAs,
                       QWidget* parent);
// Edit Labels: the label application, as the settings name it.
void RunLabelsCommand(ProgramState& state, SettingsStore& settings);

} // namespace zolt::shell
