#pragma once

#include "core/table_kinds.h"

#include <QWidget>
#include <map>
#include <vector>

class QBoxLayout;
class QMenu;
class QAction;
class QPushButton;
class QTableView;

namespace zolt {
class DataTable;
}

namespace zolt::shell {

class TableModel;
class CellDelegate;

// The window of one table: its grid, the buttons Add, Insert and Delete and
// the table's own buttons (F-keys and the like), the keys of the grid
// (Ctrl+End, Ctrl+Insert, Ctrl+Delete, Escape, F5 to F8) and its right-button menu.
class TableWindow : public QWidget {
    Q_OBJECT
public:
    explicit TableWindow(DataTable& table, QWidget* parent = nullptr);

    DataTable& table() const;
    TableModel& model() const { return *model_; }
    QTableView& grid() const { return *grid_; }
    CellDelegate& delegate() const { return *delegate_; }
    // A button by its name ("cmdAdd", "cmdNext", …); nullptr when the window has none.
    QPushButton* Button(const QString& name) const;

    void AddLine();
    void InsertLine();
    void DeleteLine();
    void AbortEdit();
    void ClearTable();
    void PressFunctionKey(int key);
    // The manual netlists' rename of the block under the cursor.
    void RenameBlock();
    // Rows picked by their selectors (1-based), in the order picked.
    std::vector<int> SelectedRows() const;
    // The row the cursor is on (1-based); 0 on the new-row line or nowhere.
    int CurrentRow() const;
    // Stores the row being typed, the open cell first, through their checks;
    // false (after their box) when a check refused it and the row stays open.
    bool CommitEditing();
    // A row or a cell is being typed.
    bool IsTyping() const;
    // Selects rows `first` to `last` (from 1, clamped to the rows there are)
    // and puts the cursor on the first.
    void SelectRows(int first, int last);
    // Copy and cut of the selected rows into the clipboard text; empty when none.
    std::string CopySelection(bool cut);
    void Paste(const std::string& clipboard);
    // Plain text from the clipboard goes into the current cell as typing would.
    void PasteText(const QString& text);
    // Puts the cursor on a cell without opening it (row 0: the new-row line);
    // an open edit keeps the cursor where it is.
    void ShowCell(int row, int column);
    // Shows the columns the table and the project's settings call for.
    void SetVisibleColumns();

    // The sequence's description columns ("<<" narrow, ">>" detailed).
    bool DetailView() const { return detailView_; }
    void SetDetailView(bool on);

    // The right-button menu of the grid, its entries brought up to date.
    QMenu& ContextMenu();
    QAction* ContextAction(const QString& name) const;

    QSize sizeHint() const override;

signals:
    // Ctrl+S pressed in the grid or its open cell.
    void SaveRequested();
    void RecordsChanged();
    // A button asks for the window of another table.
    void ShowTableRequested(zolt::TableId tableIndex);
    void DetailViewChanged(bool on);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildButtons();
    void buildContextMenu();
    void setColumnWidths();
    bool refused(int command) const;
    void autoGen();
    void clipboardCommand(bool cut);
    void onCurrentChanged(const QModelIndex& current, const QModelIndex& previous);
    void showCellStatus(const QModelIndex& current);
    void reopen(const QModelIndex& index);
    void editAt(int line, int column);
    // The buttons' Alt letters give way to the menu bar's and to each other.
    void avoidMenuMnemonics();
    // Where typing goes on after a refused row: the cell the check stopped at.
    int refusedColumn() const;
    void onCellLeftByKey(QWidget* editor, int key);
    // The next cell to type in the row, leftwards for step -1; -1 when none.
    int nextColumn(int column, int step) const;
    // Commits the open row; stored, the cursor goes on to the new-row line.
    void commitRow();
    void goToNewRow();
    void changed();
    void updateButtons(bool editing);
    // The width the line buttons and the table's own buttons need side by side.
    int buttonsInOneRow() const;

    TableModel* model_;
    QTableView* grid_;
    CellDelegate* delegate_;
    std::map<QString, QPushButton*> buttons_;
    QMenu* menu_ = nullptr;
    QBoxLayout* buttonRows_ = nullptr;
    bool moving_ = false;
    // The status bar shows the name of a component's side.
    bool sideShown_ = false;
    bool detailView_ = true;
};

} // namespace zolt::shell
