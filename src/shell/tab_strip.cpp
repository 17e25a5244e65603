#include "shell/tab_strip.h"

#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTabBar>
#include <QToolBar>

namespace zolt::shell {

TabStrip::TabStrip(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frmTabBar"));
    tabs_ = new QTabBar(this);
    tabs_->setObjectName(QStringLiteral("Tabs"));
    tabs_->setUsesScrollButtons(true);
    tabs_->setExpanding(false);
    tabs_->setDocumentMode(true);
    tabs_->setContextMenuPolicy(Qt::CustomContextMenu);
    toolbar_ = new QToolBar(this);
    toolbar_->setObjectName(QStringLiteral("NetlistToolbars"));
    toolbar_->setIconSize(QSize(16, 16));
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    layout_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    layout_->setContentsMargins(4, 2, 4, 2);
    layout_->addWidget(tabs_, 3);
    layout_->addWidget(toolbar_, 2);
    connect(tabs_, &QTabBar::tabBarClicked, this, &TabStrip::TabClicked);
    connect(tabs_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (popup_)
            popup_->exec(tabs_->mapToGlobal(at));
    });
}

void TabStrip::SetToolbarBelow(bool below) {
    below_ = below;
    layout_->setDirection(below ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

bool TabStrip::ToolbarVisible() const {
    return !toolbar_->isHidden();
}
void TabStrip::SetToolbarVisible(bool visible) {
    toolbar_->setVisible(visible);
}

} // namespace zolt::shell
