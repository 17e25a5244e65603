#include "platform/qt_window_registry.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QVariant>

namespace zolt {
namespace {

const char* const kForm = "zoltFormName";
const char* const kTable = "zoltTableIndex";
const char* const kNetlist = "zoltNetlistIndex";
const char* const kId = "zoltWindowId";

int idOf(const QMdiSubWindow& w) {
    return w.property(kId).toInt();
}

} // namespace

void QtWindowRegistry::Tag(QMdiSubWindow& window, const QString& formName, TableId tableIndex,
                           int netlistIndex) {
    window.setProperty(kForm, formName);
    window.setProperty(kTable, ToInt(tableIndex));
    window.setProperty(kNetlist, netlistIndex);
    if (!window.property(kId).isValid())
        window.setProperty(kId, ++lastId_);
}

std::vector<WindowInfo> QtWindowRegistry::Windows() const {
    std::vector<WindowInfo> list;
    if (!area_)
        return list;
    const QMdiSubWindow* active = area_->activeSubWindow();
    for (QMdiSubWindow* w : area_->subWindowList()) {
        WindowInfo info;
        info.id = idOf(*w);
        info.formName = w->property(kForm).toString().toStdString();
        info.caption = w->windowTitle().toStdString();
        info.tableIndex = TableIdOf(w->property(kTable).toInt());
        if (info.tableIndex)
            info.kind = WindowKind::Table;
        info.netlistIndex = w->property(kNetlist).isValid() ? w->property(kNetlist).toInt() : -1;
        info.visible = w->isVisible();
        // A hidden window can stay the area's active one; it is not what the user works in.
        info.active = w == active && !w->isHidden();
        list.push_back(info);
    }
    return list;
}

QMdiSubWindow* QtWindowRegistry::find(int id) const {
    if (!area_)
        return nullptr;
    for (QMdiSubWindow* w : area_->subWindowList())
        if (idOf(*w) == id)
            return w;
    return nullptr;
}

void QtWindowRegistry::SetVisible(int id, bool visible) {
    if (QMdiSubWindow* w = find(id))
        w->setVisible(visible);
}

void QtWindowRegistry::BringToTop(int id) {
    if (QMdiSubWindow* w = find(id)) {
        w->show();
        area_->setActiveSubWindow(w);
        w->raise();
    }
}

void QtWindowRegistry::Unload(int id) {
    // At once, not later: the rows a table window shows go away right after
    // this, and nothing may read them in between (a closing cell editor would).
    if (QMdiSubWindow* w = find(id)) {
        area_->removeSubWindow(w);
        delete w;
    }
}

QMdiSubWindow* QtWindowRegistry::WindowOf(TableId tableIndex, int netlistIndex) const {
    if (!area_)
        return nullptr;
    for (QMdiSubWindow* w : area_->subWindowList())
        if (w->property(kTable).toInt() == ToInt(tableIndex) &&
            w->property(kNetlist).toInt() == netlistIndex)
            return w;
    return nullptr;
}

void QtWindowRegistry::ShowTable(TableId tableIndex, int netlistIndex) {
    QMdiSubWindow* w = WindowOf(tableIndex, netlistIndex);
    if (!w && maker_)
        w = maker_(tableIndex, netlistIndex);
    if (w)
        BringToTop(idOf(*w));
}

} // namespace zolt
