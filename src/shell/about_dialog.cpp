#include "shell/about_dialog.h"

#include "core/app_info.h"
#include "import/zip_archive.h"
#include "shell/splash_screen.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

struct Library {
    QString name;
    QString version;
    QString licence;
    QString licenceUrl;
};

QString compiler() {
#if defined(__clang__)
    return QStringLiteral("Clang ") + QString::fromLatin1(__clang_version__);
#elif defined(__GNUC__)
    return QStringLiteral("GCC ") + QString::fromLatin1(__VERSION__);
#else
    return QStringLiteral("an unknown compiler");
#endif
}

std::vector<Library> libraries() {
    return {
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion()),
         QStringLiteral("GNU Lesser General Public License v3"),
         QStringLiteral("https://www.gnu.org/licenses/lgpl-3.0.html")},
        {QStringLiteral("libzip"), QString::fromStdString(import::ZipLibraryVersion()),
         QStringLiteral("BSD 3-Clause License"), QStringLiteral("https://libzip.org/license/")},
        {QStringLiteral("zlib (through libzip)"), QString(), QStringLiteral("zlib License"),
         QStringLiteral("https://zlib.net/zlib_license.html")},
        {QStringLiteral("C++ standard library"), QString(),
         QStringLiteral("GNU GPL v3 with the GCC Runtime Library Exception"),
         QStringLiteral("https://www.gnu.org/licenses/gcc-exception-3.1.html")},
    };
}

} // namespace

QString AboutDialog::Body(const std::vector<DataFolder>& folders) {
    QString html = QStringLiteral("<h2>%1</h2><p>Version %2<br>Built with %3 against Qt %4</p>")
                       .arg(QString::fromUtf8(kAppTitle), SplashScreen::VersionText(),
                            compiler().toHtmlEscaped(), QStringLiteral(QT_VERSION_STR));
    html += QStringLiteral("<h3>Libraries</h3><table cellspacing=4>");
    for (const Library& l : libraries())
        html += QStringLiteral("<tr><td>%1</td><td>%2</td><td><a href=\"%3\">%4</a></td></tr>")
                    .arg(l.name.toHtmlEscaped(), l.version.toHtmlEscaped(), l.licenceUrl,
                         l.licence.toHtmlEscaped());
    html += QStringLiteral("</table><h3>Folders in use</h3><table cellspacing=4>");
    for (const DataFolder& f : folders)
        html += QStringLiteral("<tr><td>%1</td><td>%2</td></tr>")
                    .arg(f.use.toHtmlEscaped(), f.path.toHtmlEscaped());
    html += QStringLiteral("</table>");
    return html;
}

AboutDialog::AboutDialog(const std::vector<DataFolder>& folders, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About ZOLT"));
    auto* layout = new QVBoxLayout(this);
    auto* body = new QTextBrowser(this);
    body->setObjectName(QStringLiteral("txtAbout"));
    body->setOpenExternalLinks(true);
    body->setHtml(Body(folders));
    body->setMinimumSize(680, 420);
    layout->addWidget(body);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}

} // namespace zolt::shell
