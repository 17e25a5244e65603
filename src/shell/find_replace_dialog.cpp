#include "shell/find_replace_dialog.h"

#include "core/program_state.h"
#include "shell/find_dialog.h"
#include "shell/table_model.h"
#include "shell/table_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace zolt::shell {

FindReplaceDialog::FindReplaceDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFindReplace"));
    setWindowTitle(tr("Replace"));
    setModal(false);
    find_ = new QLineEdit(this);
    find_->setObjectName(QStringLiteral("txtFind"));
    replace_ = new QLineEdit(this);
    replace_->setObjectName(QStringLiteral("txtReplace"));
    auto* findNext = new QPushButton(tr("Find &Next (F3)"), this);
    findNext->setObjectName(QStringLiteral("cmdFindNext"));
    findNext->setDefault(true);
    auto* replace = new QPushButton(tr("&Replace"), this);
    replace->setObjectName(QStringLiteral("cmdReplace"));
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* fields = new QFormLayout;
    fields->addRow(tr("Find What:"), find_);
    fields->addRow(tr("Replace With:"), replace_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(findNext);
    buttons->addWidget(replace);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons);

    connect(findNext, &QPushButton::clicked, this, &FindReplaceDialog::FindNext);
    connect(replace, &QPushButton::clicked, this, &FindReplaceDialog::Replace);
    connect(cancel, &QPushButton::clicked, this, &QDialog::close);
    connect(new QShortcut(QKeySequence(Qt::Key_F3), this), &QShortcut::activated, this,
            &FindReplaceDialog::FindNext);
    connect(find_, &QLineEdit::textChanged, this, [this] { pass_.Restart(); });
}

void FindReplaceDialog::SetTarget(TableWindow& window) {
    target_ = &window;
    moveFirst_ = true;
    pass_.Restart();
    find_->setFocus();
    find_->selectAll();
}

void FindReplaceDialog::SetSearchText(const QString& text) {
    find_->setText(text);
    find_->selectAll();
}

void FindReplaceDialog::FindNext() {
    if (!target_ || find_->text().trimmed().isEmpty() || target_->model().IsEditing())
        return;
    const std::optional<CellPosition> from = moveFirst_ ? std::nullopt : CurrentCell(*target_);
    moveFirst_ = false;
    DataTable& table = target_->table();
    if (const auto match =
            pass_.FindNextCell(table.state().ui(), ShownCells(table, table.state().project()),
                               VisibleColumns(*target_), from, find_->text().toStdString()))
        GoToCell(*target_, *match, *this);
}

void FindReplaceDialog::Replace() {
    if (!target_ || replace_->text().isEmpty() || target_->model().IsEditing())
        return;
    if (const auto cell = CurrentCell(*target_)) {
        // A refused text has shown its box and left the cell as it was.
        target_->model().editor().EditCell(cell->row, cell->column, replace_->text().toStdString());
        emit Edited();
        GoToCell(*target_, *cell, *this);
    }
    FindNext();
}

} // namespace zolt::shell
