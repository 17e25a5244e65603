#include "platform/qt_frame_controls.h"

#include <QAction>
#include <QColor>
#include <QSignalBlocker>
#include <QStringList>
#include <QTabBar>
#include <QWidget>

namespace zolt {

QStringList CommandGroup(const QString& id) {
    if (id == QLatin1String(cmd::WindowArrange))
        return {"ID_TileHorizontally", "ID_TileVertically", "ID_Cascade", "ID_Default",
                "ID_SaveNewDefault"};
    if (id == QLatin1String(cmd::TableCommands))
        return {"ID_Wires",           "ID_Pins",       "ID_Splices",  "ID_Components",
                "ID_ReversiblePairs", "ID_Connectors", "ID_Switches", "ID_Groups",
                "ID_TestParameters",  "ID_Colors",     "ID_Cascade",  "ID_TileHorizontally",
                "ID_TileVertically"};
    return {id};
}

void QtFrameControls::EnableCommand(const std::string& id, bool enabled) {
    for (const QString& one : CommandGroup(QString::fromStdString(id)))
        if (QAction* action = actions_.value(one))
            action->setEnabled(enabled);
}

bool QtFrameControls::IsCommandEnabled(const std::string& id) const {
    const QAction* action = actions_.value(QString::fromStdString(id));
    return action && action->isEnabled();
}

void QtFrameControls::CheckCommand(const std::string& id, bool checked) {
    if (QAction* action = actions_.value(QString::fromStdString(id)))
        action->setChecked(checked);
}

bool QtFrameControls::IsCommandChecked(const std::string& id) const {
    const QAction* action = actions_.value(QString::fromStdString(id));
    return action && action->isChecked();
}

void QtFrameControls::SetCaption(const std::string& caption) {
    if (captionWindow_)
        captionWindow_->setWindowTitle(QString::fromStdString(caption));
}

int QtFrameControls::TabCount() const {
    return tabs_ ? tabs_->count() : 0;
}

std::string QtFrameControls::TabCaption(int position) const {
    return tabs_ ? tabs_->tabText(position).toStdString() : std::string();
}

void QtFrameControls::AddTab(const std::string& caption) {
    if (!tabs_)
        return;
    // The project logic activates the netlist itself; the tab bar must not echo it.
    const QSignalBlocker quiet(tabs_);
    tabs_->addTab(QString::fromStdString(caption));
}

void QtFrameControls::RemoveTab(int position) {
    if (!tabs_)
        return;
    const QSignalBlocker quiet(tabs_);
    tabs_->removeTab(position);
}

void QtFrameControls::SetTabCaption(int position, const std::string& caption) {
    if (tabs_)
        tabs_->setTabText(position, QString::fromStdString(caption));
}

void QtFrameControls::SetCurrentTab(int position) {
    if (!tabs_)
        return;
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(position);
}

int QtFrameControls::CurrentTab() const {
    return tabs_ ? tabs_->currentIndex() : -1;
}

void QtFrameControls::SetTabCaptionColor(int position, int rgb) {
    if (tabs_)
        tabs_->setTabTextColor(position,
                               rgb < 0 ? QColor() : QColor::fromRgb(static_cast<QRgb>(rgb)));
}

void QtFrameControls::SetTabBarVisible(bool visible) {
    if (strip_)
        strip_->setVisible(visible);
}

} // namespace zolt
