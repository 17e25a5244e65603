#pragma once

#include <QWidget>

class QTextBrowser;

namespace zolt {

// The pages of ZOLT Help shown inside the program: no browser is needed for
// them, links between them stay here, web addresses go to the browser.
class HelpBrowser final : public QWidget {
public:
    HelpBrowser();
    // Shows a local page and brings the window to the front.
    void Show(const QString& path);
    const QTextBrowser& Browser() const { return *browser_; }

private:
    QTextBrowser* browser_ = nullptr;
};

} // namespace zolt
