#pragma once

#include "shell/command_table.h"

#include <QWidget>

class QAction;
class QBoxLayout;
class QMenu;
class QTabBar;
class QToolBar;

namespace zolt::shell {

// The strip of netlist tabs, MAIN first, with the netlist toolbar beside or
// below it. Tabs scroll when they do not fit; the right button opens the
// netlist pop-up menu; Ctrl+PgDn and Ctrl+PgUp go to the next and the previous
// tab. The toolbar takes the room its buttons need, the tabs the rest.
class TabStrip : public QWidget {
    Q_OBJECT
public:
    explicit TabStrip(QWidget* parent = nullptr);

    QTabBar& Tabs() const { return *tabs_; }
    QToolBar& Toolbar() const { return *toolbar_; }
    // Gives a netlist toolbar command its short caption; the tip keeps the long one.
    static void UseShortCaption(QAction& action, Command command);
    void SetPopup(QMenu* popup) { popup_ = popup; }

    bool ToolbarBelow() const { return below_; }
    void SetToolbarBelow(bool below);
    bool ToolbarVisible() const;
    void SetToolbarVisible(bool visible);
    // Selects the tab `by` places on, around the ends, as a click on it would.
    void Step(int by);

signals:
    void TabClicked(int index);

private:
    QTabBar* tabs_;
    QToolBar* toolbar_;
    QBoxLayout* layout_;
    QMenu* popup_ = nullptr;
    void resizeEvent(QResizeEvent* event) override;
    void placeToolbar();

    bool below_ = false;
};

} // namespace zolt::shell
