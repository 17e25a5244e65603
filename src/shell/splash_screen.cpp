#include "shell/splash_screen.h"

#include "core/app_info.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace zolt::shell {

QString SplashScreen::VersionText() {
    return QStringLiteral("%1.%2.%3 (Build %4)")
        .arg(kVersionMajor)
        .arg(kVersionMinor)
        .arg(kVersionRevision)
        .arg(kBuildNumber);
}

SplashScreen::SplashScreen() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmSplash"));
    setFixedSize(420, 220);
    setStyleSheet(QStringLiteral("background:#1d3557; color:white;"));
    auto* layout = new QVBoxLayout(this);
    auto* title = new QLabel(QStringLiteral("ZOLT"), this);
    title->setObjectName(QStringLiteral("ZOLTImage"));
    title->setStyleSheet(QStringLiteral("font-size:48px; font-weight:bold;"));
    title->setAlignment(Qt::AlignCenter);
    auto* subtitle = new QLabel(tr("Test program authoring for cable and harness analyzers"), this);
    subtitle->setAlignment(Qt::AlignCenter);
    auto* version = new QLabel(VersionText(), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    version->setAlignment(Qt::AlignCenter);
    layout->addStretch();
    layout->addWidget(title);
    layout->addWidget(subtitle);
    layout->addWidget(version);
    layout->addStretch();
}

void SplashScreen::mousePressEvent(QMouseEvent*) {
    emit Dismissed();
}
void SplashScreen::keyPressEvent(QKeyEvent*) {
    emit Dismissed();
}

} // namespace zolt::shell
