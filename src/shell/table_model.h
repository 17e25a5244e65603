#pragma once

#include "tables/edit_row.h"
#include "tables/table_editor.h"

#include <QAbstractTableModel>
#include <optional>

namespace zolt::shell {

// A table's rows as the grid shows them, read straight from its row store, plus
// the new-row line at the end. The row being edited lives in an open EditRow
// until it is committed: leaving a cell checks the cell, committing checks the
// record, as the table's rules say. Whoever changes the rows (an edit here, undo,
// AutoGen, a paste), the views hear of exactly the rows that changed.
class TableModel : public QAbstractTableModel, private TableListener {
    Q_OBJECT
public:
    explicit TableModel(DataTable& table, QObject* parent = nullptr);
    ~TableModel() override;

    DataTable& table() const { return table_; }
    TableEditor& editor() { return editor_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Leaving a cell: false (the cell stays open) when its check fails.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    // The grid row (0-based) of the new-row line; past the rows when the
    // table takes no new rows (it has none then).
    int NewRowLine() const { return table_.gridarray().Rows(); }
    bool AllowsAddNew() const { return allowAddNew_; }
    void SetAllowAddNew(bool allow);
    bool IsEditing() const { return open_.has_value(); }
    // A cell's check is running: its box may let the user click elsewhere, and
    // the open row must outlive the check.
    bool IsCheckingCell() const { return checkingCell_; }
    int EditingRow() const { return editingLine_; }
    // Commits the open row; the code (None stored, or nothing was open).
    ErrorCode CommitOpenRow();
    // The column the last refused commit stopped at.
    int RefusedColumn() const { return refusedColumn_; }
    // Escape: the open edit is dropped, an inserted row taken out.
    void AbandonOpenRow();
    // The insert command above a grid row (0-based); false when refused.
    bool InsertAbove(int line);
    // An F-key on a row (1-based; 0 none): opens the row the key fills in and
    // gives the column typing goes on in; nullopt when the key opened nothing.
    std::optional<int> OpenKeyRow(int key, int currentRow);
    // A non-MAIN fixture's copy of MAIN's connector and pin follows MAIN.
    void Reload();

signals:
    void EditingChanged(bool editing);

private:
    void TableAboutToChange(const GridChange& change) override;
    void TableChanged(const GridChange& change) override;
    bool hasNewRowLine() const { return allowAddNew_ || open_.has_value(); }
    void open(int line);
    // A stored color number as its text.
    QString display(int column, const std::string& text) const;
    void close();
    void endRowEdit();

    DataTable& table_;
    TableEditor editor_;
    std::vector<std::string> captions_;
    std::optional<EditRow> open_;
    std::optional<int> inserted_; // 1-based row the insert command made
    std::vector<int> colorColumns_;
    bool allowAddNew_ = true;
    int editingLine_ = -1;
    int refusedColumn_ = 0;
    bool checkingCell_ = false;
};

} // namespace zolt::shell
