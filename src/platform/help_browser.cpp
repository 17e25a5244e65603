#include "platform/help_browser.h"

#include <QAction>
#include <QKeySequence>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace zolt {

HelpBrowser::HelpBrowser() {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("ZOLT Help"));
    // Help stays open beside the program but never keeps it running.
    setAttribute(Qt::WA_QuitOnClose, false);
    browser_ = new QTextBrowser(this);
    browser_->setOpenExternalLinks(true);
    auto* tools = new QToolBar(this);
    QAction* back = tools->addAction(tr("&Back"), browser_, &QTextBrowser::backward);
    back->setShortcut(QKeySequence::Back);
    QAction* forward = tools->addAction(tr("&Forward"), browser_, &QTextBrowser::forward);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto* close = new QAction(this);
    close->setShortcut(Qt::Key_Escape);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
        const QString title = browser_->documentTitle();
        // The pages' titles name ZOLT Help themselves.
        setWindowTitle(title.isEmpty() ? tr("ZOLT Help") : title);
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tools);
    layout->addWidget(browser_);
    resize(760, 620);
}

void HelpBrowser::Show(const QString& path) {
    browser_->setSource(QUrl::fromLocalFile(path));
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

} // namespace zolt
