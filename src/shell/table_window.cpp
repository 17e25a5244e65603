#include "shell/table_window.h"

#include "core/program_state.h"
#include "core/table_kinds.h"
#include "shell/cell_delegate.h"
#include "shell/table_model.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <set>

namespace zolt::shell {

TableWindow::TableWindow(DataTable& table, QWidget* parent) : QWidget(parent) {
    setObjectName(QString::fromStdString(TableFormName(table.TableIndex())));
    model_ = new TableModel(table, this);
    grid_ = new QTableView(this);
    grid_->setObjectName(QStringLiteral("TDBGrid1"));
    grid_->setModel(model_);
    auto* delegate = new CellDelegate(table, grid_);
    grid_->setItemDelegate(delegate);
    grid_->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                           QAbstractItemView::EditKeyPressed);
    grid_->setSelectionBehavior(QAbstractItemView::SelectItems);
    grid_->verticalHeader()->setDefaultSectionSize(22);
    grid_->verticalHeader()->setSectionsClickable(true);
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->installEventFilter(this);
    connect(delegate, &CellDelegate::CellRefused, this, &TableWindow::reopen);
    connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TableWindow::onCurrentChanged);
    connect(grid_->verticalHeader(), &QHeaderView::sectionClicked, this,
            [this](int line) { grid_->selectRow(line); });
    connect(model_, &QAbstractItemModel::modelReset, this, &TableWindow::SetVisibleColumns);

    add_ = new QPushButton(tr("&Add"), this);
    add_->setObjectName(QStringLiteral("cmdAdd"));
    insert_ = new QPushButton(tr("&Insert"), this);
    insert_->setObjectName(QStringLiteral("cmdInsert"));
    delete_ = new QPushButton(tr("&Delete"), this);
    delete_->setObjectName(QStringLiteral("cmdDelete"));
    connect(add_, &QPushButton::clicked, this, &TableWindow::AddLine);
    connect(insert_, &QPushButton::clicked, this, &TableWindow::InsertLine);
    connect(delete_, &QPushButton::clicked, this, &TableWindow::DeleteLine);
    connect(model_, &TableModel::EditingChanged, this, [this](bool editing) {
        for (QPushButton* b : {add_, insert_, delete_})
            b->setEnabled(!editing);
    });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add_);
    buttons->addWidget(insert_);
    buttons->addWidget(delete_);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(grid_, 1);
    layout->addLayout(buttons);
    SetVisibleColumns();
    for (int c = 0; c < table.FieldCount(); ++c)
        grid_->setColumnWidth(c, 110);
}

DataTable& TableWindow::table() const {
    return model_->table();
}

QSize TableWindow::sizeHint() const {
    int width = grid_->verticalHeader()->width() + 40;
    for (int c = 0; c < model_->columnCount(); ++c)
        if (!grid_->isColumnHidden(c))
            width += grid_->columnWidth(c);
    return {std::clamp(width, 320, 900), 360};
}

void TableWindow::SetVisibleColumns() {
    DataTable& t = table();
    CParamList& params = t.state().Params();
    for (int c = 0; c < model_->columnCount(); ++c) {
        bool hidden = c >= t.FieldCount();
        if (t.TableIndex() == table::Connector) {
            if (c == 2)
                hidden = params.Number("Switches") == 0;
            else if (c == 3 || c == 4)
                hidden = params.Number("LampPin") == 0;
            else if (c == 5)
                hidden = params.Number("GridLocation") == 0;
        }
        grid_->setColumnHidden(c, hidden);
    }
}

void TableWindow::changed() {
    model_->Reload();
    emit RecordsChanged();
}

void TableWindow::editAt(int line, int column) {
    const QModelIndex index = model_->index(line, column);
    grid_->setFocus();
    moving_ = true;
    grid_->setCurrentIndex(index);
    moving_ = false;
    grid_->edit(index);
}

void TableWindow::reopen(const QModelIndex& index) {
    // A failed check keeps the cell open with what was typed.
    QTimer::singleShot(0, this, [this, index] {
        if (model_->IsEditing())
            editAt(index.row(), index.column());
    });
}

void TableWindow::onCurrentChanged(const QModelIndex& current, const QModelIndex& previous) {
    if (moving_ || !model_->IsEditing() || !previous.isValid() || current.row() == previous.row())
        return;
    const int line = model_->EditingRow();
    const int code = model_->CommitOpenRow();
    if (code != 0 && model_->IsEditing()) {
        // The row stays open until it validates.
        QTimer::singleShot(0, this, [this, line] { editAt(line, 0); });
        return;
    }
    emit RecordsChanged();
}

int TableWindow::CurrentRow() const {
    const QModelIndex index = grid_->currentIndex();
    return index.isValid() && index.row() < model_->NewRowLine() ? index.row() + 1 : 0;
}

std::vector<int> TableWindow::SelectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : grid_->selectionModel()->selectedRows())
        if (index.row() < model_->NewRowLine())
            rows.push_back(index.row() + 1);
    return rows;
}

void TableWindow::AddLine() {
    if (model_->IsEditing())
        return;
    editAt(model_->NewRowLine(), 0);
}

void TableWindow::InsertLine() {
    if (model_->IsEditing() || model_->NewRowLine() == 0)
        return;
    const QModelIndex index = grid_->currentIndex();
    const int line = index.isValid() ? index.row() : -1;
    if (model_->InsertAbove(line))
        editAt(line, 0);
}

void TableWindow::DeleteLine() {
    if (model_->IsEditing() || model_->NewRowLine() == 0)
        return;
    const auto selected = SelectedRows();
    const bool done = selected.empty() ? model_->editor().DeleteCurrent(CurrentRow())
                                       : model_->editor().DeleteSelected(selected);
    if (done)
        changed();
}

void TableWindow::AbortEdit() {
    if (model_->IsEditing()) {
        model_->AbandonOpenRow();
        grid_->setCurrentIndex(model_->index(std::max(0, model_->NewRowLine() - 1), 0));
    }
}

void TableWindow::ClearTable() {
    if (!model_->IsEditing() && model_->editor().ClearTable())
        changed();
}

void TableWindow::PressFunctionKey(int key) {
    if (model_->IsEditing())
        return;
    const auto start = table().KeyRow(key, CurrentRow());
    if (!start)
        return;
    model_->OpenNewRow(start->cells, start->insertAt);
    editAt(model_->EditingRow(), start->column);
}

std::string TableWindow::CopySelection(bool cut) {
    const auto rows = SelectedRows();
    if (rows.empty())
        return {};
    const auto data = cut ? model_->editor().CutLines(rows) : model_->editor().CopyLines(rows);
    if (cut)
        changed();
    return JoinCopyData(data);
}

void TableWindow::Paste(const std::string& clipboard) {
    if (model_->IsEditing())
        return;
    const int row = CurrentRow();
    const auto result =
        model_->editor().Paste(clipboard, row > 0 ? std::optional<int>(row) : std::nullopt);
    changed();
    if (result.outcome == PasteResult::Outcome::Stopped)
        grid_->setCurrentIndex(model_->index(result.failedRow - 1, result.failedColumn));
}

bool TableWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == grid_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool ctrl = key->modifiers() & Qt::ControlModifier;
        if (key->key() == Qt::Key_Escape && model_->IsEditing()) {
            AbortEdit();
            return true;
        }
        if (ctrl && key->key() == Qt::Key_End && !model_->IsEditing()) {
            AddLine();
            return true;
        }
        if (ctrl && key->key() == Qt::Key_Insert) {
            InsertLine();
            return true;
        }
        if (ctrl && key->key() == Qt::Key_Delete) {
            DeleteLine();
            return true;
        }
        if (key->key() >= Qt::Key_F5 && key->key() <= Qt::Key_F8) {
            PressFunctionKey(key->key() - Qt::Key_F5 + 5);
            return true;
        }
        // Enter on the grid (not in a cell editor) commits the open row.
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && model_->IsEditing()) {
            const int code = model_->CommitOpenRow();
            if (code == 0) {
                emit RecordsChanged();
                editAt(model_->NewRowLine(), 0);
            }
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace zolt::shell
