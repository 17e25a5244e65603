// The Help menu, the toolbar commands and About ZOLT.
#include "core/ports/ui.h"
#include "core/table_kinds.h"
#include "platform/data_locations.h"
#include "platform/qt_settings_store.h"
#include "settings/zolt_settings.h"
#include "shell/about_dialog.h"
#include "shell/customize_toolbars_dialog.h"
#include "shell/help_documents.h"
#include "shell/main_window.h"
#include "shell/tab_strip.h"
#include "shell/toolbar_set.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QToolBar>

namespace zolt::shell {

void MainWindow::UseDocumentViewer(std::unique_ptr<DocumentViewer> viewer) {
    viewer_ = std::move(viewer);
    help_ = std::make_unique<HelpViewer>(
        QDir(DataDirectory()).filePath(QStringLiteral("help")).toStdString(), *viewer_, ui_);
}

void MainWindow::bindHelpCommands() {
    CommandRegistry& r = commands_;
    r.Bind(Command::Help, [this] { showHelp(); });
    for (const HelpDocument& d : HelpDocuments())
        if (d.command != Command::Help)
            r.Bind(d.command, [this, &d] { help_->ShowDocument(d); });
    r.Bind(Command::WebSite, [this] { help_->ShowWebSite(); });
    r.Bind(Command::AboutZOLT, [this] { showAbout(); });
    r.Bind(
        Command::ConfigureToolbars, [this] { configureToolbars(); },
        [this] { return state_->document().FileOpen; });
    // The toolkit's own toolbar menu can hide the Main toolbar too.
    connect(mainToolbar_, &QToolBar::visibilityChanged, this, [this] { syncToolbarChecks(); });
}

// The page of the active table window, else the contents.
void MainWindow::showHelp() {
    const QMdiSubWindow* active = mdi_->activeSubWindow();
    const QVariant table = active ? active->property("zoltTableIndex") : QVariant();
    const auto kind = table.isValid() ? TableIdOf(table.toInt()) : std::nullopt;
    help_->ShowHelpPage(kind ? TableHelpPage(*kind) : FindHelpDocument(Command::Help)->page);
}

void MainWindow::configureToolbars() {
    CustomizeToolbarsDialog dialog(
        ToolbarOptions{toolbars_->Current(), toolbars_->LargeImages(), toolbars_->TextState()}, ui_,
        this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const ToolbarOptions chosen = dialog.Options();
    toolbars_->Apply(chosen.layout);
    toolbars_->SetLargeImages(chosen.largeImages);
    toolbars_->SetTextState(chosen.textState);
    syncToolbarChecks();
}

void MainWindow::syncToolbarChecks() {
    Action(Command::MainToolbar)->setChecked(!mainToolbar_->isHidden());
    Action(Command::NetlistToolbar)->setChecked(strip_->ToolbarVisible());
}

void MainWindow::showAbout() {
    std::vector<DataFolder> folders = {
        {tr("Program"), QCoreApplication::applicationDirPath()},
        {tr("Data files (ZOLT.DEV, ZOLT.MAC, Blank.zlt)"), DataDirectory()},
        {tr("Toolbars and default layout (ZOLT.atb, ZOLT.DEF)"),
         QFileInfo(WritableDataFile(QStringLiteral("ZOLT.atb"))).path()},
        {tr("Help"), QString::fromStdString(help_->Folder())},
        {tr("Settings"), QtSettingsStore::UserLocation()},
    };
    for (ParamKey key : settings::kDirectoryKeys)
        folders.push_back(
            {QString::fromUtf8(key.Name()), QString::fromStdString(state_->params().Text(key))});
    AboutDialog(folders, this).exec();
}

} // namespace zolt::shell
