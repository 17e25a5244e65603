#include "shell/debug_window.h"

namespace zolt::shell {

DebugWindow::DebugWindow() {
    setObjectName(QStringLiteral("frmA"));
    setWindowTitle(QStringLiteral("Debug Window"));
    setReadOnly(true);
    setMaximumBlockCount(5000);
    resize(600, 300);
}

} // namespace zolt::shell
