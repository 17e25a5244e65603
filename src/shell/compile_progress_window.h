#pragma once

#include "assembly/compile_progress.h"

#include <QDialog>

class QLabel;
class QProgressBar;

namespace zolt::shell {

// The progress window of the test compile: its caption and bar, brought up to
// date at once because the work runs on the window's own thread.
class CompileProgressWindow final : public QDialog, public CompileProgress {
    Q_OBJECT
public:
    explicit CompileProgressWindow(QWidget* parent = nullptr);
    void Caption(const std::string& text) override;
    void SetRange(int minimum, int maximum) override;
    void SetPosition(int position) override;
    void Hide() override { hide(); }
    QString CaptionText() const;

private:
    QLabel* caption_;
    QProgressBar* bar_;
};

} // namespace zolt::shell
