#pragma once

#include "tables/table_descriptor.h"

#include <QStyledItemDelegate>
#include <string>
#include <vector>

class QLineEdit;

namespace zolt {
class DataTable;
class CColorTable;
} // namespace zolt

namespace zolt::shell {

// The cell editor of a table grid: each typed key goes through the table's key
// filter, lists drop down where a column offers them, and a cell whose check
// fails opens again with its text.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    CellDelegate(DataTable& table, QObject* parent) : QStyledItemDelegate(parent), table_(table) {}

    CellKind Kind(int column) const;
    // The list a column's drop-down offers; empty for a plain cell.
    std::vector<std::string> Items(int column) const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

    // Stores an open editor's text at once; false when the cell's check
    // refused it (the editor then stays open with what was typed).
    bool Commit(QWidget* editor);
    void Close(QWidget* editor) { emit closeEditor(editor, NoHint); }

signals:
    void CellRefused(const QModelIndex& index) const;
    // Tab, Backtab, Enter or Return left a cell whose text was stored.
    void CellLeftByKey(QWidget* editor, int key);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    CColorTable* colors() const;
    bool typeColor(QLineEdit* edit, int column, char32_t key, bool backspace, bool slash);
    bool typeCommand(QLineEdit* edit, const QString& typed);
    // A key refused because the cell is full: the status bar says how much it holds.
    void sayLengthLimit(int column, const QString& rest) const;
    // The command of the row being typed, for the parameter's key filter.
    std::string rowCommand(QLineEdit* edit) const;

    DataTable& table_;
    // A commit under way: a box it shows must not start a second one.
    bool committing_ = false;
    mutable bool refused_ = false;
};

} // namespace zolt::shell
