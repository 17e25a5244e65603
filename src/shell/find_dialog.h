#pragma once

#include "tables/table_find.h"

#include <QDialog>
#include <QPointer>
#include <optional>
#include <vector>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace zolt::shell {

class TableWindow;

// The columns of a window's grid the user sees, in the order shown.
std::vector<int> VisibleColumns(const TableWindow& window);
// The cell the window's cursor is on; nullopt on the new-row line or nowhere.
std::optional<CellPosition> CurrentCell(const TableWindow& window);
// Puts the window's cursor on a cell and shows it.
void GoToCell(TableWindow& window, CellPosition cell, QWidget& searcher);

// "Find in Pins Table": the search of one table window, modeless over it. Its
// column list follows the window's table; Find Next goes on from the row the
// cursor is on.
class FindDialog : public QDialog {
    Q_OBJECT
public:
    explicit FindDialog(QWidget* parent = nullptr);

    // The window searched from now on; false (nothing changes) when its table has no Find.
    bool SetTarget(TableWindow& window);
    TableWindow* Target() const { return target_; }
    void FindNext();
    QString SearchText() const;

private:
    void modeChanged();

    QPointer<TableWindow> target_;
    std::vector<FindMode> modes_;
    SearchPass pass_;
    QComboBox* column_;
    QLineEdit* what_;
    QLineEdit* pin_;
    QPushButton* findNext_;
};

} // namespace zolt::shell
