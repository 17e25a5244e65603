#include "shell/toolbar_set.h"

#include <QAction>
#include <QFile>
#include <QMainWindow>
#include <QSaveFile>
#include <QToolBar>
#include <algorithm>
#include <map>

namespace zolt::shell {

ToolbarSet::ToolbarSet(QMainWindow& host, QToolBar& main, QToolBar& netlist, ActionOf actionOf,
                       NetlistVisible showNetlist)
    : host_(host), main_(main), netlist_(netlist), actionOf_(std::move(actionOf)),
      showNetlist_(std::move(showNetlist)), layout_(FactoryToolbarLayout()) {}

ToolbarSet::Loaded ToolbarSet::Load(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Apply(FactoryToolbarLayout());
        return Loaded::NoFile;
    }
    const auto layout = ReadToolbarLayout(file.readAll().toStdString());
    Apply(layout.value_or(FactoryToolbarLayout()));
    return layout ? Loaded::FromFile : Loaded::Damaged;
}

bool ToolbarSet::Save(const QString& path) const {
    // Written whole or not at all: a half file would cost the user every toolbar.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QByteArray::fromStdString(WriteToolbarLayout(Current())));
    return file.commit();
}

void ToolbarSet::Apply(const ToolbarLayout& layout) {
    for (auto& [name, toolbar] : user_)
        if (!std::ranges::any_of(layout.toolbars, [&](const ToolbarDef& t) {
                return t.kind == ToolbarKind::User && t.name == name;
            })) {
            host_.removeToolBar(toolbar);
            toolbar->deleteLater();
            toolbar = nullptr;
        }
    std::erase_if(user_, [](const auto& entry) { return entry.second == nullptr; });
    layout_ = layout;
    for (const ToolbarDef& def : layout_.toolbars) {
        QToolBar* toolbar = Toolbar(def.name);
        if (def.kind == ToolbarKind::User && !toolbar) {
            toolbar = new QToolBar(QString::fromStdString(def.name), &host_);
            // The docking state knows toolbars by object name.
            toolbar->setObjectName(QStringLiteral("UserToolbar:") +
                                   QString::fromStdString(def.name));
            host_.addToolBar(toolbar);
            user_[def.name] = toolbar;
        }
        fill(*toolbar, def);
    }
    if (!layout_.dockState.empty())
        host_.restoreState(QByteArray::fromBase64(QByteArray::fromStdString(layout_.dockState)));
    for (const ToolbarDef& def : layout_.toolbars) {
        if (def.kind == ToolbarKind::Netlist)
            showNetlist_(def.visible);
        else
            Toolbar(def.name)->setVisible(def.visible);
    }
}

ToolbarLayout ToolbarSet::Current() const {
    ToolbarLayout layout = layout_;
    for (ToolbarDef& def : layout.toolbars)
        def.visible = shown(def);
    layout.dockState = host_.saveState().toBase64().toStdString();
    return layout;
}

QToolBar* ToolbarSet::Toolbar(const std::string& name) const {
    for (const ToolbarDef& def : layout_.toolbars)
        if (def.name == name && def.kind != ToolbarKind::User)
            return def.kind == ToolbarKind::Main ? &main_ : &netlist_;
    const auto it = user_.find(name);
    return it == user_.end() ? nullptr : it->second;
}

void ToolbarSet::SetLargeImages(bool large) {
    large_ = large;
    for (const ToolbarDef& def : layout_.toolbars)
        if (def.kind != ToolbarKind::Netlist)
            style(*Toolbar(def.name));
}

void ToolbarSet::SetTextState(int state) {
    textState_ = state >= 1 && state <= 3 ? state : 2;
    SetLargeImages(large_);
}

void ToolbarSet::fill(QToolBar& toolbar, const ToolbarDef& def) const {
    toolbar.clear();
    for (const ToolbarTool& tool : def.tools)
        if (QAction* action = actionOf_(tool.command); action && tool.shown)
            toolbar.addAction(action);
    if (def.kind != ToolbarKind::Netlist)
        style(toolbar);
}

void ToolbarSet::style(QToolBar& toolbar) const {
    toolbar.setIconSize(large_ ? QSize(32, 32) : QSize(20, 20));
    toolbar.setToolButtonStyle(textState_ == 1   ? Qt::ToolButtonIconOnly
                               : textState_ == 3 ? Qt::ToolButtonTextUnderIcon
                                                 : Qt::ToolButtonTextBesideIcon);
}

bool ToolbarSet::shown(const ToolbarDef& def) const {
    const QToolBar* toolbar = Toolbar(def.name);
    return toolbar && !toolbar->isHidden();
}

} // namespace zolt::shell
