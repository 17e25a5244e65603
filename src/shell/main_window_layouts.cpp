// The main window's window arrangement: tile, cascade, the factory layout
// and saving a new one.
#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/table_kinds.h"
#include "shell/main_window.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>

namespace zolt::shell {
namespace {

std::vector<QString> tableCaptions() {
    std::vector<QString> captions;
    for (const TableId n : kAllTables)
        captions.push_back(QString::fromStdString(TableCaption(n)));
    return captions;
}

} // namespace

void MainWindow::saveWindowLayout(const QMdiSubWindow& window) {
    if (window.property("zoltTableIndex").toInt() > 0)
        layouts_->Save(window,
                       window.widget() ? window.widget()->findChild<QTableView*>() : nullptr);
}

void MainWindow::saveAllWindowLayouts() {
    for (const QMdiSubWindow* w : mdi_->subWindowList())
        if (w->isVisible())
            saveWindowLayout(*w);
}

void MainWindow::arrange(Arrangement arrangement) {
    Arrange(*mdi_, arrangement);
    saveAllWindowLayouts();
}

void MainWindow::resetWindowLayouts() {
    // A missing or short file leaves every window where it is.
    if (layouts_->ResetAll(tableCaptions()))
        for (QMdiSubWindow* w : mdi_->subWindowList())
            if (w->isVisible())
                layouts_->Load(*w, w->widget() ? w->widget()->findChild<QTableView*>() : nullptr);
}

void MainWindow::saveNewDefaultLayout() {
    if (ui_.Message("Do you want to change table size and location defaults?", kAppTitle,
                    Buttons::OkCancel, Icon::Question) != Answer::Ok)
        return;
    // Windows of the first netlist give their present place; others keep theirs.
    std::vector<QRect> places;
    for (const TableId n : kAllTables) {
        const QMdiSubWindow* w = windows_->WindowOf(n, 0);
        const QString caption = QString::fromStdString(TableCaption(n));
        places.push_back(w ? w->geometry() : layouts_->Stored(caption, QRect(0, 0, 560, 330)));
    }
    if (!layouts_->SaveDefaults(places))
        ui_.Message(layouts_->DefaultsFile().toStdString() + " could not be written.", kAppTitle,
                    Buttons::Ok, Icon::Stop);
}

} // namespace zolt::shell
