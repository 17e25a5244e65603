#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

namespace zolt::test {

// Key presses delivered straight to a widget, as the keyboard would.
inline void Key(QWidget* target, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(target, &release);
}

inline void Type(QWidget* target, const QString& text) {
    for (const QChar c : text)
        Key(target, c.toUpper().unicode(), Qt::NoModifier, QString(c));
}

} // namespace zolt::test
