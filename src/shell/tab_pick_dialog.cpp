#include "shell/tab_pick_dialog.h"

#include "shell/ok_cancel_buttons.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace zolt::shell {

TabPickDialog::TabPickDialog(const file::TabOffer& offer, const QString& formName, QWidget* parent)
    : QDialog(parent) {
    setObjectName(formName);
    setWindowTitle(QString::fromStdString(offer.caption));
    auto* prompt = new QLabel(QString::fromStdString(offer.prompt), this);
    tabs_ = new QListWidget(this);
    tabs_->setObjectName(QStringLiteral("lstTab"));
    prompt->setBuddy(tabs_);
    for (const std::string& tab : offer.tabs)
        tabs_->addItem(QString::fromStdString(tab));
    tabs_->setCurrentRow(0);
    auto* buttons = OkCancelButtons(*this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setEnabled(tabs_->currentItem() != nullptr);
    connect(tabs_, &QListWidget::currentItemChanged, ok,
            [ok](QListWidgetItem* current) { ok->setEnabled(current != nullptr); });
    connect(tabs_, &QListWidget::itemActivated, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(tabs_);
    layout->addWidget(buttons);
    setMinimumWidth(360);
}

std::optional<std::string> TabPickDialog::Picked() const {
    const QListWidgetItem* item = tabs_->currentItem();
    if (!item)
        return std::nullopt;
    return item->text().toStdString();
}

std::optional<std::string> PickTab(const file::TabOffer& offer, const QString& formName,
                                   QWidget* parent) {
    TabPickDialog dialog(offer, formName, parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Picked();
}

} // namespace zolt::shell
