#include "shell/compiler_window.h"

#include "assembly/variant_compile.h"
#include "compile/compile_commands.h"
#include "core/program_state.h"
#include "shell/compile_progress_window.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

// The window shows first; the compile starts from the first tick after it.
constexpr int kStartDelayMs = 100;

} // namespace

CompilerWindow::CompilerWindow(ProgramState& state, const Clock& clock, QWidget* parent,
                               const VariantProgram* variant)
    : QDialog(parent), driver_(state, clock), variant_(variant), results_(new QPlainTextEdit(this)),
      close_(new QPushButton(QStringLiteral("&Close"), this)) {
    setObjectName(QStringLiteral("frmCompiler"));
    setWindowTitle(QStringLiteral("Compiler Results..."));
    results_->setObjectName(QStringLiteral("txtCompilerStatus"));
    results_->setReadOnly(true);
    results_->setLineWrapMode(QPlainTextEdit::NoWrap);
    close_->setObjectName(QStringLiteral("cmdOK"));
    close_->setEnabled(false);
    connect(close_, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(close_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(results_);
    layout->addLayout(buttons);
    resize(640, 420);

    driver_.resultsChanged = [this](const std::string& text) {
        results_->setPlainText(QString::fromStdString(text));
        results_->verticalScrollBar()->setValue(results_->verticalScrollBar()->maximum());
        QCoreApplication::processEvents();
    };
    driver_.Load();
}

void CompilerWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (started_)
        return;
    started_ = true;
    QTimer::singleShot(kStartDelayMs, this, &CompilerWindow::run);
}

void CompilerWindow::run() {
    outcome_ = variant_ ? driver_.Run(variant_->project(), variant_->Request(driver_.Request()))
                        : driver_.Run();
    if (*outcome_ == compile::CompileEnd::Aborted) {
        // A label rule stopped it after its box: the window goes as if closed.
        accept();
        return;
    }
    close_->setEnabled(true);
    close_->setFocus();
}

void RunLabelsCommand(ProgramState& state, SettingsStore& settings) {
    compile::CreateLabels(state.ui(), settings,
                          [](const std::string& program, const std::vector<std::string>& args) {
                              QStringList list;
                              for (const auto& a : args)
                                  list << QString::fromStdString(a);
                              return QProcess::startDetached(QString::fromStdString(program), list);
                          });
}

void RunCompileCommand(ProgramState& state, const Clock& clock, const std::function<void()>& saveAs,
                       QWidget* parent) {
    if (state.document().CurrentFile.empty())
        saveAs();
    if (state.document().CurrentFile.empty())
        return;
    const CompileRoute route = ChooseCompileRoute(state);
    if (route == CompileRoute::Refused)
        return;
    CompileProgressWindow progress(parent);
    std::unique_ptr<VariantProgram> variant;
    if (route == CompileRoute::Variant) {
        variant = VariantProgram::Of(state.project(), Variant{state.project().SelectedFeatureCodes},
                                     state.ui(), progress);
        if (!variant)
            return;
    }
    CompilerWindow window(state, clock, parent, variant.get());
    window.exec();
}

} // namespace zolt::shell
