#include "shell/window_layouts.h"

#include "core/ports/settings_store.h"
#include "core/value.h"

#include <QFile>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>
#include <QTextStream>
#include <algorithm>
#include <vector>

namespace zolt::shell {
namespace {

std::string columnKey(int column) {
    return "DBGrid Column" + std::to_string(column) + " Width";
}

int number(SettingsStore& settings, const std::string& section, const std::string& key,
           int fallback) {
    const auto text = settings.Read(section, key);
    return text ? static_cast<int>(Value(*text).number().value_or(fallback)) : fallback;
}

// The smallest strip a tiled window is given before the strips wrap.
constexpr int kMinStripHeight = 160;
constexpr int kMinStripWidth = 260;
constexpr int kCascadeStep = 24;

} // namespace

QRect StartPlace(const QRect& screen) {
    const int marginX = screen.width() / 40;
    const int marginY = screen.height() / 40;
    return screen.adjusted(marginX, marginY, -marginX, -marginY);
}

QRect FitInside(const QRect& place, const QSize& area) {
    if (area.isEmpty())
        return place;
    const int width = std::min(place.width(), area.width());
    const int height = std::min(place.height(), area.height());
    return {std::clamp(place.x(), 0, area.width() - width),
            std::clamp(place.y(), 0, area.height() - height), width, height};
}

void Arrange(QMdiArea& area, Arrangement arrangement) {
    std::vector<QMdiSubWindow*> shown;
    for (QMdiSubWindow* w : area.subWindowList(QMdiArea::StackingOrder))
        if (w->isVisible() && !w->isMinimized())
            shown.push_back(w);
    if (shown.empty())
        return;
    const QSize room = area.viewport()->size();
    const int n = static_cast<int>(shown.size());
    for (QMdiSubWindow* w : shown)
        if (w->isMaximized())
            w->showNormal();
    if (arrangement == Arrangement::Cascade) {
        const int offset = kCascadeStep * (n - 1);
        const QSize most(std::max(room.width() - offset, room.width() / 2),
                         std::max(room.height() - offset, room.height() / 2));
        for (int i = 0; i < n; ++i) {
            QMdiSubWindow* w = shown[static_cast<std::size_t>(i)];
            const QSize size = w->size().boundedTo(most);
            const int step = std::min(kCascadeStep * i, std::max(0, offset));
            w->setGeometry(FitInside(QRect(QPoint(step, step), size), room));
            w->raise();
        }
        return;
    }
    const bool stacked = arrangement == Arrangement::TileHorizontally;
    // Strips across the workspace, wrapped into more of them when too thin.
    const int fit = stacked ? std::max(1, room.height() / kMinStripHeight)
                            : std::max(1, room.width() / kMinStripWidth);
    const int strips = std::min(n, fit);
    const int lanes = (n + strips - 1) / strips;
    const int rows = stacked ? strips : lanes;
    const int columns = stacked ? lanes : strips;
    for (int i = 0; i < n; ++i) {
        const int row = stacked ? i % rows : i / columns;
        const int column = stacked ? i / rows : i % columns;
        const QRect cell(room.width() * column / columns, room.height() * row / rows,
                         room.width() * (column + 1) / columns - room.width() * column / columns,
                         room.height() * (row + 1) / rows - room.height() * row / rows);
        QMdiSubWindow* w = shown[static_cast<std::size_t>(i)];
        w->setMinimumSize(0, 0);
        w->setGeometry(cell);
    }
}

QRect WindowLayouts::Stored(const QString& caption, const QRect& fallback) const {
    const std::string section = caption.toStdString();
    return {number(settings_, section, "Form Left", fallback.x()),
            number(settings_, section, "Form Top", fallback.y()),
            number(settings_, section, "Form Width", fallback.width()),
            number(settings_, section, "Form Height", fallback.height())};
}

void WindowLayouts::Load(QMdiSubWindow& window, QTableView* grid) const {
    const std::string section = window.windowTitle().toStdString();
    const QMdiArea* area = window.mdiArea();
    const QRect place = Stored(window.windowTitle(), window.geometry());
    // A window never placed keeps the free spot the workspace found for it.
    if (settings_.Read(section, "Form Left") || !area)
        window.setGeometry(area ? FitInside(place, area->viewport()->size()) : place);
    else
        window.resize(window.size().boundedTo(area->viewport()->size()));
    if (grid)
        for (int c = 0; c < grid->model()->columnCount(); ++c)
            grid->setColumnWidth(c, number(settings_, section, columnKey(c), grid->columnWidth(c)));
    if (number(settings_, section, "Window State", 0) == 2)
        window.showMaximized();
}

void WindowLayouts::Save(const QMdiSubWindow& window, const QTableView* grid) {
    const std::string section = window.windowTitle().toStdString();
    const bool normal = !window.isMaximized() && !window.isMinimized();
    const QRect g = window.geometry();
    settings_.Write(section, "Form Left", std::to_string(g.x()));
    settings_.Write(section, "Form Top", std::to_string(g.y()));
    if (normal) {
        settings_.Write(section, "Form Width", std::to_string(g.width()));
        settings_.Write(section, "Form Height", std::to_string(g.height()));
    }
    settings_.Write(section, "Window State",
                    window.isMaximized()   ? "2"
                    : window.isMinimized() ? "1"
                                           : "0");
    if (grid)
        for (int c = 0; c < grid->model()->columnCount(); ++c)
            settings_.Write(section, columnKey(c), std::to_string(grid->columnWidth(c)));
}

bool WindowLayouts::ResetAll(const std::vector<QString>& captions) {
    QFile file(defaultsFile_);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    std::vector<QRect> places;
    QTextStream in(&file);
    while (!in.atEnd() && places.size() < captions.size()) {
        const QStringList parts = in.readLine().split(QLatin1Char(','));
        if (parts.size() != 4)
            return false;
        int v[4];
        for (int i = 0; i < 4; ++i) {
            bool ok = false;
            v[i] = static_cast<int>(parts[i].trimmed().toDouble(&ok));
            if (!ok)
                return false;
        }
        places.emplace_back(v[0], v[1], v[2], v[3]);
    }
    if (places.size() < captions.size())
        return false;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const std::string section = captions[i].toStdString();
        settings_.Write(section, "Form Left", std::to_string(places[i].x()));
        settings_.Write(section, "Form Top", std::to_string(places[i].y()));
        settings_.Write(section, "Form Width", std::to_string(places[i].width()));
        settings_.Write(section, "Form Height", std::to_string(places[i].height()));
    }
    return true;
}

bool WindowLayouts::SaveDefaults(const std::vector<QRect>& places) const {
    QFile file(defaultsFile_);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text | QIODevice::Truncate))
        return false;
    QTextStream out(&file);
    for (const QRect& r : places)
        out << r.x() << ", " << r.y() << ", " << r.width() << ", " << r.height() << "\n";
    return out.status() == QTextStream::Ok;
}

} // namespace zolt::shell
