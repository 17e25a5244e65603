#include "shell/compile_progress_window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace zolt::shell {

CompileProgressWindow::CompileProgressWindow(QWidget* parent)
    : QDialog(parent), caption_(new QLabel(this)), bar_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("frmProgress"));
    setWindowTitle(QStringLiteral("GRV Test Compile"));
    setWindowFlags(windowFlags() & ~Qt::WindowCloseButtonHint);
    caption_->setMinimumWidth(360);
    bar_->setRange(0, 0);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption_);
    layout->addWidget(bar_);
}

void CompileProgressWindow::Caption(const std::string& text) {
    caption_->setText(QString::fromStdString(text));
    if (!isVisible())
        show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void CompileProgressWindow::SetRange(int minimum, int maximum) {
    bar_->setRange(minimum, maximum);
}

void CompileProgressWindow::SetPosition(int position) {
    bar_->setValue(position);
    if (position % 64 == 0)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QString CompileProgressWindow::CaptionText() const {
    return caption_->text();
}

} // namespace zolt::shell
