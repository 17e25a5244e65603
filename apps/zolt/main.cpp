#include "core/app_info.h"
#include "core/heap_policy.h"
#include "platform/qt_settings_store.h"
#include "platform/qt_ui.h"
#include "shell/main_window.h"
#include "shell/single_instance.h"
#include "shell/splash_screen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QTimer>

namespace {

// The drawing of the menu entry, embedded in the sizes of the icon theme.
QIcon ApplicationIcon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/%1x%1/apps/zolt.png").arg(size));
    return icon;
}

// The file named on the command line: its words joined, blanks included.
QString CommandLineFile() {
    return QApplication::arguments().mid(1).join(QLatin1Char(' ')).trimmed();
}

// A handed-over file waits while a box or dialog is open or a long job runs,
// and then brings the window to the front with it.
void OpenWhenIdle(zolt::shell::MainWindow& window, const QString& path) {
    if (QApplication::activeModalWidget() || QApplication::overrideCursor()) {
        QTimer::singleShot(250, &window, [&window, path] { OpenWhenIdle(window, path); });
        return;
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
    window.OpenFromCommandLine(path);
}

} // namespace

int main(int argc, char** argv) {
    zolt::KeepFreedHeapForReuse();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QString::fromUtf8(zolt::kAppTitle));
    QApplication::setWindowIcon(ApplicationIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("zolt"));

    zolt::shell::SingleInstance instance(zolt::shell::DefaultInstanceLockPath(),
                                         zolt::shell::DefaultInstanceServerName());
    const QString requested = CommandLineFile();
    if (!instance.IsFirst()) {
        // The working folder is this start's own: the running instance gets the whole path.
        if (!requested.isEmpty() && instance.HandOver(QFileInfo(requested).absoluteFilePath()))
            return 0;
        QMessageBox::critical(nullptr, QStringLiteral("Error - ZOLT 6.0 Already Open"),
                              QStringLiteral("A version of ZOLT 6.0 is already open. Multiple "
                                             "sessions of ZOLT cannot be open at the same time."));
        return 0;
    }

    // Files handed over while the splash shows open once the window is there.
    QStringList handedOver;
    QObject::connect(&instance, &zolt::shell::SingleInstance::FileHandedOver,
                     [&handedOver](const QString& path) { handedOver << path; });

    zolt::shell::SplashScreen splash;
    bool dismissed = false;
    QObject::connect(&splash, &zolt::shell::SplashScreen::Dismissed, [&] { dismissed = true; });
    splash.show();
    // The splash stays two seconds unless hidden; a click or key on it ends the program.
    QElapsedTimer shown;
    shown.start();
    while (shown.elapsed() < 2000 && splash.isVisible() && !dismissed)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    if (dismissed)
        return 0;

    zolt::QtSettingsStore settings;
    zolt::QtUi ui;
    zolt::shell::MainWindow window(ui, settings);
    ui.SetParent(&window);
    ui.OnPanelText([&window](int panel, const std::string& text) {
        window.SetPanelText(panel, QString::fromStdString(text));
    });
    ui.OnDebugLine([&window](const std::string& line) {
        window.AppendDebugLine(QString::fromStdString(line));
    });
    window.show();
    splash.close();
    if (!requested.isEmpty())
        QTimer::singleShot(0, &window,
                           [&window, requested] { window.OpenFromCommandLine(requested); });
    QObject::disconnect(&instance, nullptr, nullptr, nullptr);
    QObject::connect(&instance, &zolt::shell::SingleInstance::FileHandedOver, &window,
                     [&window](const QString& path) { OpenWhenIdle(window, path); });
    for (const QString& path : handedOver)
        QTimer::singleShot(0, &window, [&window, path] { OpenWhenIdle(window, path); });
    return QApplication::exec();
}
