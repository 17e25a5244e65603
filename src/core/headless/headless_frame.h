#pragma once

#include "core/ports/frame_controls.h"
#include "core/ports/window_registry.h"

#include <string>
#include <vector>

namespace zolt {

// The main frame without a screen: remembers tabs and table windows, so that
// batch runs and tests see the same effects the desktop shows. It has no
// commands to bring up to date.
class HeadlessFrame final : public FrameControls, public WindowRegistry {
public:
    void CommandsChanged() override {}
    void SetCaption(const std::string& caption) override { caption_ = caption; }
    const std::string& Caption() const { return caption_; }

    int TabCount() const override { return static_cast<int>(tabs_.size()); }
    std::string TabCaption(int position) const override;
    void AddTab(const std::string& caption) override;
    void RemoveTab(int position) override;
    void SetTabCaption(int position, const std::string& caption) override;
    void SetCurrentTab(int position) override { current_ = position; }
    int CurrentTab() const override { return current_; }
    void SetTabCaptionColor(int position, int rgb) override;
    int TabCaptionColor(int position) const;
    void SetTabBarVisible(bool visible) override { tabBarVisible_ = visible; }
    bool TabBarVisible() const { return tabBarVisible_; }

    std::vector<WindowInfo> Windows() const override { return windows_; }
    void SetVisible(int id, bool visible) override;
    void BringToTop(int id) override;
    void Unload(int id) override;
    void ShowTable(TableId tableIndex, int netlistIndex) override;

private:
    struct Tab {
        std::string caption;
        int color = -1;
    };
    WindowInfo* find(int id);

    std::string caption_;
    std::vector<Tab> tabs_;
    std::vector<WindowInfo> windows_;
    int current_ = -1;
    int nextId_ = 1;
    bool tabBarVisible_ = false;
};

} // namespace zolt
