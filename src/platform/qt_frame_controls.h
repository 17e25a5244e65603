#pragma once

#include "core/ports/frame_controls.h"

#include <QAction>
#include <QHash>
#include <QPointer>
#include <QString>
#include <QTabBar>
class QWidget;

namespace zolt {

// Commands as QActions by tool identifier, and the netlist tab bar.
class QtFrameControls final : public FrameControls {
public:
    QtFrameControls(QTabBar& tabs, QWidget& tabStrip) : tabs_(&tabs), strip_(&tabStrip) {}

    void AddCommand(const QString& id, QAction& action) { actions_.insert(id, &action); }
    QAction* Command(const QString& id) const { return actions_.value(id); }

    void EnableCommand(const std::string& id, bool enabled) override;
    bool IsCommandEnabled(const std::string& id) const override;
    void CheckCommand(const std::string& id, bool checked) override;
    bool IsCommandChecked(const std::string& id) const override;
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
    QHash<QString, QPointer<QAction>> actions_;
    QPointer<QTabBar> tabs_;
    QPointer<QWidget> strip_;
    QPointer<QWidget> captionWindow_;
};

// The tool identifiers a group identifier of the project logic stands for.
QStringList CommandGroup(const QString& id);

} // namespace zolt
