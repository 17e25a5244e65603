#include "shell/find_dialog.h"

#include "core/program_state.h"
#include "shell/table_model.h"
#include "shell/table_window.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace zolt::shell {

std::vector<int> VisibleColumns(const TableWindow& window) {
    const QTableView& grid = window.grid();
    std::vector<int> columns;
    for (int c = 0; c < window.model().columnCount(); ++c)
        if (!grid.isColumnHidden(c))
            columns.push_back(c);
    std::ranges::sort(columns, [&grid](int a, int b) {
        return grid.horizontalHeader()->visualIndex(a) < grid.horizontalHeader()->visualIndex(b);
    });
    return columns;
}

std::optional<CellPosition> CurrentCell(const TableWindow& window) {
    const int row = window.CurrentRow();
    if (row == 0)
        return std::nullopt;
    return CellPosition{row, window.grid().currentIndex().column()};
}

void GoToCell(TableWindow& window, CellPosition cell, QWidget& searcher) {
    const QModelIndex index = window.model().index(cell.row - 1, cell.column);
    window.grid().setCurrentIndex(index);
    window.grid().scrollTo(index);
    // The found cell is what the user looks for: the dialog steps out of its way,
    // below the cell or else above it.
    const QRect visual = window.grid().visualRect(index);
    const QRect found(window.grid().viewport()->mapToGlobal(visual.topLeft()), visual.size());
    const QRect frame = searcher.frameGeometry();
    if (!searcher.isVisible() || !frame.intersects(found))
        return;
    const QScreen* screen = searcher.screen();
    const QRect room = screen ? screen->availableGeometry() : QRect();
    const QPoint below(frame.left(), found.bottom() + 8);
    const QPoint above(frame.left(), found.top() - 8 - frame.height());
    const bool fitsBelow = room.isNull() || below.y() + frame.height() <= room.bottom();
    searcher.move(fitsBelow ? below : above);
}

FindDialog::FindDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFind"));
    setModal(false);
    column_ = new QComboBox(this);
    column_->setObjectName(QStringLiteral("cmbColumn"));
    what_ = new QLineEdit(this);
    what_->setObjectName(QStringLiteral("txtFindWhat"));
    pin_ = new QLineEdit(this);
    pin_->setObjectName(QStringLiteral("txtPins"));
    pin_->setPlaceholderText(tr("Pin"));
    findNext_ = new QPushButton(tr("&Find Next"), this);
    findNext_->setObjectName(QStringLiteral("cmdFindNext"));
    findNext_->setDefault(true);
    auto* close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));

    auto* texts = new QHBoxLayout;
    texts->addWidget(what_, 2);
    texts->addWidget(pin_, 1);
    auto* fields = new QFormLayout;
    fields->addRow(tr("Search column:"), column_);
    fields->addRow(tr("Find What:"), texts);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(findNext_);
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons);

    connect(findNext_, &QPushButton::clicked, this, &FindDialog::FindNext);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(new QShortcut(QKeySequence(Qt::Key_F3), this), &QShortcut::activated, this,
            &FindDialog::FindNext);
    connect(column_, &QComboBox::currentIndexChanged, this, &FindDialog::modeChanged);
    // Other texts start another search from where the cursor is.
    const auto restart = [this] {
        pass_.Restart();
        modeChanged();
    };
    connect(what_, &QLineEdit::textChanged, this, restart);
    connect(pin_, &QLineEdit::textChanged, this, restart);
}

bool FindDialog::SetTarget(TableWindow& window) {
    const FindForm* form = FindFormOf(window.table());
    if (!form)
        return false;
    target_ = &window;
    setWindowTitle(QString::fromStdString(form->caption));
    modes_ = form->modes;
    const QSignalBlocker block(column_);
    column_->clear();
    for (const FindMode& mode : modes_)
        column_->addItem(QString::fromStdString(mode.name));
    column_->setCurrentIndex(0);
    pass_.Restart();
    modeChanged();
    what_->setFocus();
    what_->selectAll();
    return true;
}

void FindDialog::modeChanged() {
    const int index = column_->currentIndex();
    const bool pinMode = index >= 0 && static_cast<std::size_t>(index) < modes_.size() &&
                         modes_[index].columns.size() == 2;
    pin_->setEnabled(pinMode);
    findNext_->setEnabled(!what_->text().trimmed().isEmpty() &&
                          (!pinMode || !pin_->text().trimmed().isEmpty()));
}

QString FindDialog::SearchText() const {
    return what_->text();
}

void FindDialog::FindNext() {
    const int index = column_->currentIndex();
    if (!target_ || !findNext_->isEnabled() || index < 0 || target_->model().IsEditing())
        return;
    DataTable& table = target_->table();
    const FindRequest request{modes_[static_cast<std::size_t>(index)], what_->text().toStdString(),
                              pin_->text().toStdString(), VisibleColumns(*target_)};
    if (const auto match =
            pass_.FindNext(table.state().ui(), ShownCells(table, table.state().project()), request,
                           target_->CurrentRow()))
        GoToCell(*target_, *match, *this);
    else
        activateWindow(); // the end box took the keyboard; Enter searches again
}

} // namespace zolt::shell
