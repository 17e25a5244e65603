// The settings commands: File Settings, Properties and ZOLT Settings, and the
// table look they keep.
#include "shell/command_table.h"
#include "shell/file_settings_dialog.h"
#include "shell/main_window.h"
#include "shell/properties_dialog.h"
#include "shell/table_appearance.h"
#include "shell/table_window.h"
#include "shell/zolt_settings_dialog.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabWidget>

namespace zolt::shell {

void MainWindow::bindSettingsCommands() {
    const auto open = [this] { return state_->document().FileOpen; };
    commands_.Bind(
        Command::Settings, [this] { FileSettingsDialog(*state_, this).exec(); }, open);
    commands_.Bind(
        Command::Properties, [this] { PropertiesDialog(*state_, this).exec(); }, open);
    commands_.Bind(Command::ZOLTSettings, [this] { openZoltSettings(false); });
    // The connector windows show the columns the switches, lamp and grid settings ask for;
    // the group method closes the windows of the wires method, whose commands it greys.
    state_->params().OnFilePropertiesSaved([this] {
        for (QMdiSubWindow* w : mdi_->subWindowList()) {
            for (TableWindow* table : w->findChildren<TableWindow*>())
                table->SetVisibleColumns();
            const auto shown = TableIdOf(w->property("zoltTableIndex").toInt());
            if (groupMethod() && shown && KindOf(*shown).wiresMethod && w->isVisible())
                w->close();
        }
        UpdateControls();
    });
}

void MainWindow::openZoltSettings(bool onDirectories) {
    ZoltSettingsDialog dialog(
        *state_,
        [this](const settings::TableAppearance& look) { ApplyTableAppearance(*mdi_, look); }, this);
    if (onDirectories)
        dialog.pages().setCurrentIndex(ZoltSettingsDialog::Directories);
    dialog.exec();
}

void MainWindow::applyTableAppearance(QWidget& content) {
    ApplyTableAppearance(content, settings::LoadTableAppearance(settings_));
}

} // namespace zolt::shell
