#include "platform/option_prompt_dialog.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zolt {

OptionPromptDialog::OptionPromptDialog(const OptionPrompt& prompt, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(QString::fromStdString(prompt.prompt.caption));
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(QString::fromStdString(prompt.prompt.text), this);
    text_ = new QLineEdit(QString::fromStdString(prompt.prompt.defaultText), this);
    text_->setObjectName(QStringLiteral("txtText"));
    text_->selectAll();
    label->setBuddy(text_);
    layout->addWidget(label);
    layout->addWidget(text_);

    auto* box = new QGroupBox(QString::fromStdString(prompt.optionsTitle), this);
    auto* boxLayout = new QVBoxLayout(box);
    options_ = new QButtonGroup(this);
    for (std::size_t i = 0; i < prompt.options.size(); ++i) {
        auto* option = new QRadioButton(QString::fromStdString(prompt.options[i]), box);
        option->setObjectName(QStringLiteral("optOption%1").arg(i));
        option->setChecked(static_cast<int>(i) == prompt.initial);
        options_->addButton(option, static_cast<int>(i));
        boxLayout->addWidget(option);
    }
    box->setVisible(!prompt.options.empty());
    layout->addWidget(box);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(320);
    text_->setFocus();
}

PromptAnswer OptionPromptDialog::Result() const {
    return {text_->text().toStdString(), std::max(0, options_->checkedId())};
}

} // namespace zolt
