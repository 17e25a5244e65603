#pragma once

#include "tables/table_find.h"

#include <QDialog>
#include <QPointer>

class QLineEdit;
class QPushButton;

namespace zolt::shell {

class TableWindow;

// Find and replace over one table window, modeless: Find Next (F3) walks the
// cells from the cursor, Replace types the new text into the cursor's cell as
// the user would, then finds the next one.
class FindReplaceDialog : public QDialog {
    Q_OBJECT
public:
    explicit FindReplaceDialog(QWidget* parent = nullptr);

    // The window searched from now on; the next search starts at its first cell.
    void SetTarget(TableWindow& window);
    TableWindow* Target() const { return target_; }
    void FindNext();
    void Replace();
    // What was last searched for elsewhere is where a replace starts.
    void SetSearchText(const QString& text);

signals:
    // A replace was typed into the table (or refused): what it changed is one
    // step of the edit history.
    void Edited();

private:
    QPointer<TableWindow> target_;
    SearchPass pass_;
    bool moveFirst_ = true;
    QLineEdit* find_;
    QLineEdit* replace_;
};

} // namespace zolt::shell
