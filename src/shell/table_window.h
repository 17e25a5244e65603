#pragma once

#include <QWidget>
#include <vector>

class QPushButton;
class QTableView;

namespace zolt {
class DataTable;
}

namespace zolt::shell {

class TableModel;

// The window of one table: its grid, the buttons Add, Insert and Delete, and
// the keys of the grid (Ctrl+End, Ctrl+Insert, Ctrl+Delete, Escape, F5 to F8).
class TableWindow : public QWidget {
    Q_OBJECT
public:
    explicit TableWindow(DataTable& table, QWidget* parent = nullptr);

    DataTable& table() const;
    TableModel& model() const { return *model_; }
    QTableView& grid() const { return *grid_; }

    void AddLine();
    void InsertLine();
    void DeleteLine();
    void AbortEdit();
    void ClearTable();
    void PressFunctionKey(int key);
    // Rows picked by their selectors (1-based), in the order picked.
    std::vector<int> SelectedRows() const;
    // The row the cursor is on (1-based); 0 on the new-row line or nowhere.
    int CurrentRow() const;
    // Copy and cut of the selected rows into the clipboard text; empty when none.
    std::string CopySelection(bool cut);
    void Paste(const std::string& clipboard);
    // Hides the columns the project's settings leave out.
    void SetVisibleColumns();

    QSize sizeHint() const override;

signals:
    void RecordsChanged();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void onCurrentChanged(const QModelIndex& current, const QModelIndex& previous);
    void reopen(const QModelIndex& index);
    void editAt(int line, int column);
    void changed();

    TableModel* model_;
    QTableView* grid_;
    QPushButton* add_;
    QPushButton* insert_;
    QPushButton* delete_;
    bool moving_ = false;
};

} // namespace zolt::shell
