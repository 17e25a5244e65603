#pragma once

#include "core/ports/frame_controls.h"

#include <QPointer>
#include <QString>
#include <QTabBar>
#include <functional>
class QWidget;

namespace zolt {

// The netlist tab bar and the caption; the commands are brought up to date by
// whoever listens to `OnCommandsChanged`.
class QtFrameControls final : public FrameControls {
public:
    QtFrameControls(QTabBar& tabs, QWidget& tabStrip) : tabs_(&tabs), strip_(&tabStrip) {}

    void OnCommandsChanged(std::function<void()> refresh) { refresh_ = std::move(refresh); }
    void CommandsChanged() override;
    void SetCaption(const std::string& caption) override;
    // The window whose caption the project sets.
    void SetCaptionWindow(QWidget& window) { captionWindow_ = &window; }

    int TabCount() const override;
    std::string TabCaption(int position) const override;
    void AddTab(const std::string& caption) override;
    void RemoveTab(int position) override;
    void SetTabCaption(int position, const std::string& caption) override;
    void SetCurrentTab(int position) override;
    int CurrentTab() const override;
    void SetTabCaptionColor(int position, int rgb) override;
    void SetTabBarVisible(bool visible) override;

private:
    std::function<void()> refresh_;
    QPointer<QTabBar> tabs_;
    QPointer<QWidget> strip_;
    QPointer<QWidget> captionWindow_;
};

} // namespace zolt
