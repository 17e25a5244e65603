// The main of test programs that need widgets: one application object that
// lives exactly as long as the tests.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Widget tests never need a screen, listing them (at build time) included.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int result = 0;
    {
        QApplication app(argc, argv);
        result = RUN_ALL_TESTS();
    }
    // Qt 6.4 keeps a keyboard device in a global static that outlives the
    // application and crashes when exit destroys it; nothing is left to clean up.
    std::fflush(nullptr);
    std::_Exit(result);
}
