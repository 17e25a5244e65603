#pragma once

#include "core/ports/window_registry.h"

#include <QMdiArea>
#include <QPointer>
#include <functional>
class QMdiSubWindow;

namespace zolt {

// The table windows of the main window's workspace. A window carries its form
// name, table and netlist as properties, set by `Tag`, and an identifier.
class QtWindowRegistry final : public WindowRegistry {
public:
    // Makes the window of a table that has none yet; the shell supplies it.
    using WindowMaker = std::function<QMdiSubWindow*(TableId tableIndex, int netlistIndex)>;

    QtWindowRegistry(QMdiArea& area, WindowMaker maker) : area_(&area), maker_(std::move(maker)) {}

    void Tag(QMdiSubWindow& window, const QString& formName, TableId tableIndex, int netlistIndex);

    std::vector<WindowInfo> Windows() const override;
    void SetVisible(int id, bool visible) override;
    void BringToTop(int id) override;
    void Unload(int id) override;
    void ShowTable(TableId tableIndex, int netlistIndex) override;

    QMdiSubWindow* WindowOf(TableId tableIndex, int netlistIndex) const;

private:
    QMdiSubWindow* find(int id) const;

    QPointer<QMdiArea> area_;
    WindowMaker maker_;
    int lastId_ = 0;
};

} // namespace zolt
