#pragma once

#include <QApplication>

namespace zolt::test {

// The application object of the test program (made by its main).
inline QApplication& QtApp() {
    return *static_cast<QApplication*>(QApplication::instance());
}

} // namespace zolt::test
