#pragma once

#include "core/ports/detail_dialogs.h"

#include <QDialog>
#include <QPointer>

class QRadioButton;

namespace zolt::shell {

// The form of one new record ("Add New Connector", "Add New Wire"): a labelled
// box per shown field, a list to pick from where the field offers one.
class DetailFormDialog : public QDialog {
    Q_OBJECT
public:
    DetailFormDialog(const DetailForm& form, QWidget* parent = nullptr);
    // The texts of all fields as the user left them (hidden ones unchanged).
    std::vector<std::string> Texts() const;

private:
    DetailForm form_;
    std::vector<QWidget*> boxes_; // per field; nullptr where hidden
};

// "Delete Wire": the wire alone, or the wire with its uses.
class WireDeleteDialog : public QDialog {
    Q_OBJECT
public:
    WireDeleteDialog(const std::string& wire, QWidget* parent = nullptr);
    bool Multi() const;

private:
    QRadioButton* single_;
    QRadioButton* multi_;
};

// The detail dialogs of the desktop, modal over the main window.
class QtDetailDialogs final : public DetailDialogs {
public:
    explicit QtDetailDialogs(QWidget* parent) : parent_(parent) {}
    bool Fill(DetailForm& form) override;
    std::optional<bool> AskWireDelete(const std::string& wire) override;

private:
    QPointer<QWidget> parent_;
};

} // namespace zolt::shell
