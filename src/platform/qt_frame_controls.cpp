#include "platform/qt_frame_controls.h"

#include <QColor>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWidget>

namespace zolt {

void QtFrameControls::CommandsChanged() {
    if (refresh_)
        refresh_();
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
