#include "core/app_info.h"
#include "core/heap_policy.h"
#include "platform/qt_settings_store.h"
#include "platform/qt_ui.h"
#include "shell/main_window.h"
#include "shell/single_instance.h"
#include "shell/splash_screen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QStyle>
#include <QTimer>

int main(int argc, char** argv) {
    zolt::KeepFreedHeapForReuse();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QString::fromUtf8(zolt::kAppTitle));
    QApplication::setWindowIcon(QApplication::style()->standardIcon(QStyle::SP_DriveNetIcon));

    zolt::shell::SingleInstance instance(zolt::shell::DefaultInstanceLockPath());
    if (!instance.IsFirst()) {
        QMessageBox::critical(nullptr, QStringLiteral("Error - ZOLT 6.0 Already Open"),
                              QStringLiteral("A version of ZOLT 6.0 is already open. Multiple "
                                             "sessions of ZOLT cannot be open at the same time."));
        return 0;
    }

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
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1) {
        const QString path = arguments.mid(1).join(QLatin1Char(' '));
        QTimer::singleShot(0, &window, [&window, path] { window.OpenFromCommandLine(path); });
    }
    return QApplication::exec();
}
