#pragma once

#include <QStyledItemDelegate>

namespace zolt {
class DataTable;
}

namespace zolt::shell {

// The cell editor of a table grid: each typed key goes through the column's
// key filter, and a cell whose check fails opens again with its text.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    CellDelegate(DataTable& table, QObject* parent) : QStyledItemDelegate(parent), table_(table) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

signals:
    void CellRefused(const QModelIndex& index) const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    DataTable& table_;
};

} // namespace zolt::shell
