#include "shell/table_model.h"

#include "core/netlist.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "fixture/fixture_table.h"
#include "shell/cell_delegate.h"
#include "tables/color_table.h"

#include <QApplication>
#include <QPalette>
#include <QScopedValueRollback>

namespace zolt::shell {

TableModel::TableModel(DataTable& table, QObject* parent)
    : QAbstractTableModel(parent), table_(table), editor_(table),
      captions_(table.Descriptor().Captions()),
      colorColumns_(table.Descriptor().ColumnsOfKind(CellKind::Color)) {
    table_.AddListener(*this);
}

TableModel::~TableModel() {
    table_.RemoveListener(*this);
}

void TableModel::TableAboutToChange(const GridChange& change) {
    using Kind = GridChange::Kind;
    if (change.kind == Kind::RowsInserted)
        beginInsertRows({}, change.firstRow - 1, change.lastRow - 1);
    else if (change.kind == Kind::RowsRemoved)
        beginRemoveRows({}, change.firstRow - 1, change.lastRow - 1);
    else if (change.kind == Kind::Reset)
        beginResetModel();
}

void TableModel::TableChanged(const GridChange& change) {
    using Kind = GridChange::Kind;
    // Rows above the open one move it.
    const int rows = change.lastRow - change.firstRow + 1;
    if (change.kind == Kind::RowsInserted) {
        if (editingLine_ >= change.firstRow - 1)
            editingLine_ += rows;
        endInsertRows();
    } else if (change.kind == Kind::RowsRemoved) {
        if (editingLine_ > change.lastRow - 1)
            editingLine_ -= rows;
        endRemoveRows();
    } else if (change.kind == Kind::Reset) {
        endResetModel();
    } else {
        emit dataChanged(index(change.firstRow - 1, change.firstColumn),
                         index(change.lastRow - 1, change.lastColumn));
    }
}

void TableModel::SetAllowAddNew(bool allow) {
    if (allow == allowAddNew_ || open_) {
        allowAddNew_ = allow;
        return;
    }
    const int line = NewRowLine();
    if (allow)
        beginInsertRows({}, line, line);
    else
        beginRemoveRows({}, line, line);
    allowAddNew_ = allow;
    if (allow)
        endInsertRows();
    else
        endRemoveRows();
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_.gridarray().Rows() + (hasNewRowLine() ? 1 : 0);
}

QString TableModel::display(int column, const std::string& text) const {
    const QString plain = QString::fromStdString(text);
    if (std::find(colorColumns_.begin(), colorColumns_.end(), column) == colorColumns_.end())
        return plain;
    const CNetList* main = table_.state().project().MainNetlist;
    const auto* colors = main ? main->TableAs<CColorTable>(table::Color) : nullptr;
    return QString::fromStdString(ShownColor(colors, text));
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_.gridColumns();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    // Views ask for "no cell" too (Ctrl+C with no current cell).
    if (!index.isValid())
        return {};
    const int column = index.column();
    // Columns nobody types (MAIN's side of a fixture) look like the frame.
    if (role == Qt::BackgroundRole && column >= table_.FieldCount())
        return QApplication::palette().button();
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    if (open_ && index.row() == editingLine_ &&
        (column < table_.FieldCount() || column < static_cast<int>(open_->cells.size())))
        return display(column, open_->Cell(column));
    if (index.row() >= NewRowLine())
        return {};
    const std::string text = table_.gridarray().Text(index.row() + 1, column);
    if (role == Qt::DisplayRole &&
        table_.Descriptor().Column(column).format == CellFormat::TwoDecimals &&
        vb::IsNumeric(std::string_view(text)))
        return QString::number(vb::Val(text), 'f', 2);
    return display(column, text);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return section < static_cast<int>(captions_.size())
                   ? QString::fromStdString(captions_[static_cast<std::size_t>(section)])
                   : QVariant(section);
    if (open_ && section == editingLine_)
        return QStringLiteral("\u270E");
    return section == NewRowLine() ? QStringLiteral("*") : QVariant(section + 1);
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags f = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const CFieldDef* field = table_.FieldDef(index.column() + 1);
    if (field && !field->ReadOnly())
        f |= Qt::ItemIsEditable;
    return f;
}

void TableModel::open(int line) {
    if (open_ && editingLine_ == line)
        return;
    const bool lineAppears = !hasNewRowLine();
    if (lineAppears)
        beginInsertRows({}, NewRowLine(), NewRowLine());
    if (line >= NewRowLine())
        open_ = table_.NewEditRow();
    else if (inserted_ && *inserted_ == line + 1)
        open_ = table_.NewEditRow();
    else
        open_ = table_.RowForEdit(line + 1);
    editingLine_ = line;
    if (lineAppears)
        endInsertRows();
    table_.state().SetGridEditing(true);
    emit headerDataChanged(Qt::Vertical, line, line);
    emit EditingChanged(true);
}

void TableModel::close() {
    const int line = editingLine_;
    const bool lineGoes = !allowAddNew_ && open_;
    if (lineGoes)
        beginRemoveRows({}, NewRowLine(), NewRowLine());
    open_.reset();
    if (lineGoes)
        endRemoveRows();
    inserted_.reset();
    editingLine_ = -1;
    table_.state().SetGridEditing(false);
    if (line >= 0)
        emit headerDataChanged(Qt::Vertical, line, line);
    emit EditingChanged(false);
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || index.column() >= table_.FieldCount())
        return false;
    // Passing through a cell without changing it starts no edit.
    if (!open_ && value.toString() == data(index, Qt::EditRole).toString())
        return true;
    const QScopedValueRollback checking(checkingCell_, true);
    open(index.row());
    open_->SetCell(index.column(), value.toString().toStdString());
    const bool isNew = !open_->row.has_value();
    const ErrorCode code = editor_.LeaveCell(*open_, index.column(), isNew);
    if (auto* fixture = dynamic_cast<CFixtureTable*>(&table_); fixture && fixture->ShowsMainSplit())
        fixture->UpdateRowSplits(*open_);
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    if (code == code::CellRefused) {
        AbandonOpenRow();
        return false;
    }
    return code == code::None;
}

ErrorCode TableModel::CommitOpenRow() {
    if (!open_)
        return code::None;
    const ErrorCode code = editor_.CommitRow(*open_, inserted_, refusedColumn_);
    if (code == code::CellRefused) {
        AbandonOpenRow();
        return code;
    }
    if (code != code::None)
        return code;
    close();
    Reload();
    endRowEdit();
    return code::None;
}

void TableModel::endRowEdit() {
    // The rows already follow the table; the views' cell editors and current
    // cell of the closed row go, as the grid has always done after a row.
    beginResetModel();
    endResetModel();
}

void TableModel::AbandonOpenRow() {
    if (inserted_)
        editor_.AbandonInsert(*inserted_);
    close();
    Reload();
    endRowEdit();
}

bool TableModel::InsertAbove(int line) {
    const auto row = editor_.BeginInsert(line + 1);
    if (!row)
        return false;
    inserted_ = row;
    open(*row - 1);
    inserted_ = row;
    return true;
}

std::optional<int> TableModel::OpenKeyRow(int key, int currentRow) {
    auto opening = editor_.BeginKeyRow(key, currentRow);
    if (!opening || opening->refused)
        return std::nullopt;
    if (opening->insertedRow) {
        Reload();
        inserted_ = opening->insertedRow;
        open(*opening->insertedRow - 1);
    } else {
        open(NewRowLine());
    }
    *open_ = std::move(opening->edit);
    emit dataChanged(index(editingLine_, 0), index(editingLine_, columnCount() - 1));
    return opening->column;
}

void TableModel::Reload() {
    if (auto* fixture = dynamic_cast<CFixtureTable*>(&table_); fixture && fixture->ShowsMainSplit())
        fixture->UpdateTableSplits();
}

} // namespace zolt::shell
