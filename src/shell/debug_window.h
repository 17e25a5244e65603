#pragma once

#include <QPlainTextEdit>

namespace zolt::shell {

// "Debug Window": the log lines the program writes while logging is on.
class DebugWindow : public QPlainTextEdit {
    Q_OBJECT
public:
    DebugWindow();
    void Append(const QString& line) { appendPlainText(line); }
};

} // namespace zolt::shell
