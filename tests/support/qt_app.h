#pragma once

#include <QApplication>

namespace zolt::test {

// The one application object Qt widgets need, made on first use.
inline QApplication& QtApp() {
    static int argc = 1;
    static char name[] = "zolt-tests";
    static char* argv[] = {name, nullptr};
    static QApplication app(argc, argv);
    return app;
}

} // namespace zolt::test
