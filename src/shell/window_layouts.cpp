#include "shell/window_layouts.h"

#include "core/ports/settings_store.h"
#include "core/value.h"

#include <QFile>
#include <QHeaderView>
#include <QMdiSubWindow>
#include <QTableView>
#include <QTextStream>

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

} // namespace

QRect WindowLayouts::Stored(const QString& caption, const QRect& fallback) const {
    const std::string section = caption.toStdString();
    return {number(settings_, section, "Form Left", fallback.x()),
            number(settings_, section, "Form Top", fallback.y()),
            number(settings_, section, "Form Width", fallback.width()),
            number(settings_, section, "Form Height", fallback.height())};
}

void WindowLayouts::Load(QMdiSubWindow& window, QTableView* grid) const {
    const std::string section = window.windowTitle().toStdString();
    window.setGeometry(Stored(window.windowTitle(), window.geometry()));
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
