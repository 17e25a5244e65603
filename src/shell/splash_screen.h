#pragma once

#include <QWidget>

namespace zolt::shell {

// The start-up window with the product's name and version. A click or a key on
// it ends the program, as it always has.
class SplashScreen : public QWidget {
    Q_OBJECT
public:
    SplashScreen();
    static QString VersionText();

signals:
    void Dismissed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace zolt::shell
