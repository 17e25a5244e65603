#pragma once

#include "shell/toolbar_layout.h"

#include <QString>
#include <functional>
#include <map>
#include <string>

class QAction;
class QMainWindow;
class QToolBar;

namespace zolt::shell {

// The toolbars of the main window built from a `ToolbarLayout`: Main and the
// netlist toolbar the window owns, user toolbars made and removed here.
class ToolbarSet {
public:
    using ActionOf = std::function<QAction*(const std::string& id)>;
    using NetlistVisible = std::function<void(bool)>;

    ToolbarSet(QMainWindow& host, QToolBar& main, QToolBar& netlist, ActionOf actionOf,
               NetlistVisible showNetlist);

    enum class Loaded { FromFile, NoFile, Damaged };
    // Builds the toolbars from the layout file; without one, or with a damaged
    // one, from the factory set.
    Loaded Load(const QString& path);
    // False when the file cannot be written.
    bool Save(const QString& path) const;

    void Apply(const ToolbarLayout& layout);
    // The layout as the window shows it now, docking included.
    ToolbarLayout Current() const;
    QToolBar* Toolbar(const std::string& name) const;

    // LgTlbrImages and TlbrTextState ("1" no text, "2" beside, "3" under the images).
    void SetLargeImages(bool large);
    bool LargeImages() const { return large_; }
    void SetTextState(int state);
    int TextState() const { return textState_; }

private:
    void fill(QToolBar& toolbar, const ToolbarDef& def) const;
    void style(QToolBar& toolbar) const;
    bool shown(const ToolbarDef& def) const;

    QMainWindow& host_;
    QToolBar& main_;
    QToolBar& netlist_;
    ActionOf actionOf_;
    NetlistVisible showNetlist_;
    ToolbarLayout layout_;
    std::map<std::string, QToolBar*> user_;
    bool large_ = false;
    int textState_ = 2;
};

} // namespace zolt::shell
