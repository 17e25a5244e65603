#include "shell/tab_strip.h"

#include <QAction>
#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>
#include <QToolBar>
#include <utility>

namespace zolt::shell {
namespace {

struct ShortCaption {
    Command command;
    const char* caption;
};

// Captions short enough for every table button to show at 1024 pixels.
constexpr ShortCaption kShortCaptions[] = {
    {Command::NewNetlistTab, "New Tab"},
    {Command::DeleteNetlistTab, "Delete Tab"},
    {Command::ViewAllTables, "View All"},
    {Command::HideAllTables, "Hide All"},
    {Command::Connectors, "Conn."},
    {Command::Switches, "Switch."},
    {Command::Wires, "Wires"},
    {Command::Pins, "Pins"},
    {Command::Splices, "Splices"},
    {Command::Components, "Comp."},
    {Command::TestParameters, "Test Par."},
    {Command::ReversiblePairs, "Rev. Pairs"},
    {Command::Groups, "Groups"},
    {Command::Fixture, "Fixture"},
    {Command::Colors, "Colors"},
};

} // namespace

TabStrip::TabStrip(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frmTabBar"));
    tabs_ = new QTabBar(this);
    tabs_->setObjectName(QStringLiteral("Tabs"));
    tabs_->setUsesScrollButtons(true);
    tabs_->setExpanding(false);
    tabs_->setDocumentMode(true);
    tabs_->setContextMenuPolicy(Qt::CustomContextMenu);
    tabs_->setMinimumWidth(200);
    toolbar_ = new QToolBar(this);
    toolbar_->setObjectName(QStringLiteral("NetlistToolbars"));
    toolbar_->setIconSize(QSize(16, 16));
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    // Tight buttons: the whole row fits beside a few tabs at 1200 pixels.
    toolbar_->setStyleSheet(QStringLiteral("QToolButton { padding: 1px 1px; }"));
    layout_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    layout_->setContentsMargins(4, 2, 4, 2);
    layout_->addWidget(tabs_, 1);
    layout_->addWidget(toolbar_, 0);
    connect(tabs_, &QTabBar::tabBarClicked, this, &TabStrip::TabClicked);
    // The keys of tabbed programs, wherever the focus is in the window.
    for (const auto& [key, by] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        shortcut->setContext(Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, by] { Step(by); });
    }
    connect(tabs_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (popup_)
            popup_->exec(tabs_->mapToGlobal(at));
    });
}

void TabStrip::Step(int by) {
    const int count = tabs_->count();
    if (count < 2)
        return;
    const int index = ((tabs_->currentIndex() + by) % count + count) % count;
    tabs_->setCurrentIndex(index);
    emit TabClicked(index);
}

void TabStrip::UseShortCaption(QAction& action, Command command) {
    for (const ShortCaption& c : kShortCaptions)
        if (c.command == command)
            action.setIconText(QString::fromUtf8(c.caption));
    action.setToolTip(action.text().remove(QLatin1Char('&')));
}

void TabStrip::SetToolbarBelow(bool below) {
    below_ = below;
    placeToolbar();
}

void TabStrip::placeToolbar() {
    // A window too narrow for tabs and buttons side by side puts the buttons under
    // the tabs rather than hide some of them behind the toolbar's overflow.
    const int needed = tabs_->minimumWidth() + toolbar_->sizeHint().width() +
                       layout_->contentsMargins().left() + layout_->contentsMargins().right() +
                       layout_->spacing();
    const bool under = below_ || (!toolbar_->isHidden() && width() < needed);
    layout_->setDirection(under ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void TabStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeToolbar();
}

bool TabStrip::ToolbarVisible() const {
    return !toolbar_->isHidden();
}
void TabStrip::SetToolbarVisible(bool visible) {
    toolbar_->setVisible(visible);
}

} // namespace zolt::shell
