#pragma once

#include <string>

namespace zolt {

// The parts of the main frame that the project logic drives: its caption and
// the netlist tab bar. Which commands can be used the frame works out itself
// from the program state; the logic only says when that state changed.
class FrameControls {
public:
    virtual ~FrameControls() = default;
    // The state the commands' enabled and checked marks follow has changed.
    virtual void CommandsChanged() = 0;
    virtual void SetCaption(const std::string& caption) = 0;

    virtual int TabCount() const = 0;
    virtual std::string TabCaption(int position) const = 0;
    virtual void AddTab(const std::string& caption) = 0;
    virtual void RemoveTab(int position) = 0;
    virtual void SetTabCaption(int position, const std::string& caption) = 0;
    virtual void SetCurrentTab(int position) = 0;
    virtual int CurrentTab() const = 0;
    // Caption colour of the current tab as 0xRRGGBB; -1 for the default colour.
    virtual void SetTabCaptionColor(int position, int rgb) = 0;
    virtual void SetTabBarVisible(bool visible) = 0;
};

} // namespace zolt
