#pragma once

#include <QDialog>

class QLineEdit;

namespace zolt::shell {

// frmPrivilege: a user name and a password. It says nothing of whether they
// were right; the caller judges them once the dialog is accepted.
class PrivilegeDialog : public QDialog {
    Q_OBJECT
public:
    explicit PrivilegeDialog(QWidget* parent = nullptr);
    QString User() const;
    QString Password() const;
    QLineEdit& userBox() const { return *user_; }
    QLineEdit& passwordBox() const { return *password_; }

private:
    QLineEdit* user_;
    QLineEdit* password_;
};

} // namespace zolt::shell
