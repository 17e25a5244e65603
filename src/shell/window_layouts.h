#pragma once

#include <QRect>
#include <QString>
#include <vector>

class QMdiArea;
class QMdiSubWindow;
class QTableView;

namespace zolt {
class SettingsStore;
}

namespace zolt::shell {

// The main window's place on a fresh home: most of the screen, centred, so the
// workspace holds the factory layout on any screen.
QRect StartPlace(const QRect& screen);

// A window's place moved and, if need be, shrunk so that all of it lies in `area`.
QRect FitInside(const QRect& place, const QSize& area);

// The arrangements of the Window menu over the workspace's shown windows, each
// window kept inside it: horizontally one above the other, vertically side by
// side (more rows or columns when the strips would get too thin), cascaded with
// sizes shrunk to what the workspace holds.
enum class Arrangement { TileHorizontally, TileVertically, Cascade };
void Arrange(QMdiArea& area, Arrangement arrangement);

// Each table window's place, size, state and column widths, kept in the
// settings section named after its caption, and the factory layout in
// ZOLT.DEF: one "left, top, width, height" line in pixels a table, 1 to 15.
class WindowLayouts {
public:
    WindowLayouts(SettingsStore& settings, QString defaultsFile)
        : settings_(settings), defaultsFile_(std::move(defaultsFile)) {}

    // Applies the window's stored layout, fitted into its workspace; a window
    // never placed keeps its design size.
    void Load(QMdiSubWindow& window, QTableView* grid) const;
    // Stores it; width and height only while the window is in its normal state.
    void Save(const QMdiSubWindow& window, const QTableView* grid);
    // The factory layout into the sections of the captions given (tables 1 to 15
    // in order); false when the file is missing or short, and nothing changes then.
    bool ResetAll(const std::vector<QString>& captions);
    // Writes ZOLT.DEF anew; false when it cannot be written.
    bool SaveDefaults(const std::vector<QRect>& places) const;
    // The place a caption's section holds, or `fallback`.
    QRect Stored(const QString& caption, const QRect& fallback) const;

    const QString& DefaultsFile() const { return defaultsFile_; }

private:
    SettingsStore& settings_;
    QString defaultsFile_;
};

} // namespace zolt::shell
