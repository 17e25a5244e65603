#include "shell/privilege_dialog.h"

#include "shell/ok_cancel_buttons.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace zolt::shell {

PrivilegeDialog::PrivilegeDialog(QWidget* parent)
    : QDialog(parent), user_(new QLineEdit(this)), password_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("frmPrivilege"));
    setWindowTitle(tr("Privileged Mode"));
    user_->setObjectName(QStringLiteral("txtUser"));
    password_->setObjectName(QStringLiteral("txtPassword"));
    password_->setEchoMode(QLineEdit::Password);
    auto* form = new QFormLayout;
    form->addRow(tr("&User Name:"), user_);
    form->addRow(tr("&Password:"), password_);
    auto* buttons = OkCancelButtons(*this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    user_->setMinimumWidth(200);
}

QString PrivilegeDialog::User() const {
    return user_->text();
}

QString PrivilegeDialog::Password() const {
    return password_->text();
}

} // namespace zolt::shell
