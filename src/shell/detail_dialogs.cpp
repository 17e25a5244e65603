#include "shell/detail_dialogs.h"

#include "shell/ok_cancel_buttons.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

QDialogButtonBox* okCancel(QDialog* dialog) {
    QDialogButtonBox* buttons = OkCancelButtons(*dialog);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    return buttons;
}

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

DetailFormDialog::DetailFormDialog(const DetailForm& form, QWidget* parent)
    : QDialog(parent), form_(form) {
    setWindowTitle(qs(form.caption));
    auto* fields = new QFormLayout;
    fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    for (std::size_t i = 0; i < form.fields.size(); ++i) {
        const DetailField& field = form.fields[i];
        QWidget* box = nullptr;
        if (field.shown && !field.options.empty()) {
            auto* combo = new QComboBox(this);
            combo->setEditable(true);
            combo->setInsertPolicy(QComboBox::NoInsert);
            for (const auto& option : field.options)
                combo->addItem(qs(option));
            combo->setCurrentText(qs(field.text));
            combo->completer()->setCompletionMode(QCompleter::InlineCompletion);
            combo->completer()->setCaseSensitivity(Qt::CaseInsensitive);
            if (field.maxLength > 0)
                combo->lineEdit()->setMaxLength(field.maxLength);
            box = combo;
        } else if (field.shown) {
            auto* edit = new QLineEdit(qs(field.text), this);
            if (field.maxLength > 0)
                edit->setMaxLength(field.maxLength);
            box = edit;
        }
        if (box) {
            box->setObjectName(QStringLiteral("txtData%1").arg(i));
            box->setMinimumWidth(180);
            fields->addRow(qs(field.label) + QLatin1Char(':'), box);
        }
        boxes_.push_back(box);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(okCancel(this));
    // The name the grid offered is already there: typing starts in the first
    // box still empty, so that it never replaces that name.
    QWidget* start = nullptr;
    for (std::size_t i = 0; i < boxes_.size() && !start; ++i)
        if (boxes_[i] && form.fields[i].text.empty())
            start = boxes_[i];
    for (std::size_t i = 0; i < boxes_.size() && !start; ++i)
        start = boxes_[i];
    if (start) {
        start->setFocus();
        if (auto* edit = qobject_cast<QLineEdit*>(start))
            edit->selectAll();
    }
}

std::vector<std::string> DetailFormDialog::Texts() const {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        QWidget* box = boxes_[i];
        if (auto* edit = qobject_cast<QLineEdit*>(box))
            texts.push_back(edit->text().toStdString());
        else if (auto* combo = qobject_cast<QComboBox*>(box))
            texts.push_back(combo->currentText().toStdString());
        else
            texts.push_back(form_.fields[i].text);
    }
    return texts;
}

WireDeleteDialog::WireDeleteDialog(const std::string& wire, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmWireDelete"));
    setWindowTitle(QStringLiteral("Delete Wire"));
    auto* group = new QGroupBox(QStringLiteral("Delete wire %1").arg(qs(wire)), this);
    single_ = new QRadioButton(QStringLiteral("&Wire only"), group);
    single_->setObjectName(QStringLiteral("optSingle"));
    multi_ = new QRadioButton(QStringLiteral("Wire and its &uses (pins set to (none), splice "
                                             "and component rows deleted)"),
                              group);
    multi_->setObjectName(QStringLiteral("optMulti"));
    single_->setChecked(true);
    auto* options = new QVBoxLayout(group);
    options->addWidget(single_);
    options->addWidget(multi_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(group);
    layout->addWidget(okCancel(this));
    single_->setFocus();
}

bool WireDeleteDialog::Multi() const {
    return multi_->isChecked();
}

bool QtDetailDialogs::Fill(DetailForm& form) {
    DetailFormDialog dialog(form, parent_);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const auto texts = dialog.Texts();
    for (std::size_t i = 0; i < form.fields.size() && i < texts.size(); ++i)
        form.fields[i].text = texts[i];
    return true;
}

std::optional<bool> QtDetailDialogs::AskWireDelete(const std::string& wire) {
    WireDeleteDialog dialog(wire, parent_);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Multi();
}

} // namespace zolt::shell
