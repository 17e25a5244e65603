#include "shell/name_toolbar_dialog.h"

#include "core/ports/ui.h"
#include "shell/command_table.h"
#include "shell/ok_cancel_buttons.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace zolt::shell {

QString PlainCaption(const char* caption) {
    return QString::fromUtf8(caption).remove(QLatin1Char('&'));
}

NameToolbarDialog::NameToolbarDialog(const ToolbarLayout& existing, Ui& ui, QWidget* parent)
    : QDialog(parent), existing_(existing), ui_(ui) {
    setObjectName(QStringLiteral("dlgNameToolbar"));
    setWindowTitle(tr("New Toolbar"));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("txtToolbarName"));
    name_->setMaxLength(40);
    form->addRow(tr("Toolbar &name:"), name_);
    layout->addLayout(form);
    auto* label = new QLabel(tr("&Commands on the toolbar:"), this);
    commands_ = new QListWidget(this);
    commands_->setObjectName(QStringLiteral("lstCommands"));
    label->setBuddy(commands_);
    for (const CommandDef& c : Commands()) {
        const QString menu = *c.menu ? QString::fromUtf8(c.menu) : tr("Toolbar");
        auto* item =
            new QListWidgetItem(menu + QStringLiteral(": ") + PlainCaption(c.caption), commands_);
        item->setData(Qt::UserRole, QString::fromUtf8(c.id));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    commands_->setMinimumHeight(320);
    layout->addWidget(label);
    layout->addWidget(commands_);
    auto* buttons = OkCancelButtons(*this);
    layout->addWidget(buttons);
}

ToolbarDef NameToolbarDialog::Toolbar() const {
    ToolbarDef def{ToolbarKind::User, name_->text().trimmed().toStdString(), true, {}};
    for (int row = 0; row < commands_->count(); ++row)
        if (const QListWidgetItem* item = commands_->item(row); item->checkState() == Qt::Checked)
            def.tools.push_back({item->data(Qt::UserRole).toString().toStdString(), true});
    return def;
}

void NameToolbarDialog::accept() {
    const ToolbarDef def = Toolbar();
    std::string refusal;
    if (def.name.empty())
        refusal = "Enter a name for the new toolbar.";
    else if (existing_.NameTaken(def.name))
        refusal = "A toolbar named \"" + def.name + "\" already exists.";
    else if (def.tools.empty())
        refusal = "Choose at least one command for the toolbar.";
    if (!refusal.empty()) {
        ui_.Message(refusal, "New Toolbar", Buttons::Ok, Icon::Information);
        // Back to what needs fixing.
        if (def.tools.empty() && !def.name.empty() && !existing_.NameTaken(def.name))
            commands_->setFocus();
        else
            name_->setFocus();
        return;
    }
    QDialog::accept();
}

} // namespace zolt::shell
