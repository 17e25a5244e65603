#include "platform/qt_document_viewer.h"

#include "platform/help_browser.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace zolt {

QtDocumentViewer::QtDocumentViewer() = default;

QtDocumentViewer::~QtDocumentViewer() = default;

ViewFailure QtDocumentViewer::Open(const std::string& target) {
    const QString text = QString::fromStdString(target);
    const bool web =
        text.startsWith(QLatin1String("http://")) || text.startsWith(QLatin1String("https://"));
    if (!web) {
        // The desktop's opener only says yes or no: tell the file's own faults apart first.
        const QFileInfo file(text);
        if (!file.absoluteDir().exists())
            return ViewFailure::PathNotFound;
        if (!file.exists())
            return ViewFailure::FileNotFound;
        if (!file.isReadable())
            return ViewFailure::AccessDenied;
    }
    const QString suffix = QFileInfo(text).suffix().toLower();
    if (!web && (suffix == QLatin1String("html") || suffix == QLatin1String("htm"))) {
        if (!browser_)
            browser_ = std::make_unique<HelpBrowser>();
        browser_->Show(QFileInfo(text).absoluteFilePath());
        return ViewFailure::None;
    }
    const QUrl url = web ? QUrl(text) : QUrl::fromLocalFile(QFileInfo(text).absoluteFilePath());
    return QDesktopServices::openUrl(url) ? ViewFailure::None : ViewFailure::NoAssociation;
}

} // namespace zolt
