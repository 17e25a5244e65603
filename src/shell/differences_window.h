#pragma once

#include "compare/difference.h"

#include <QDialog>
#include <functional>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace zolt::shell {

// Differences of the open program from another program or a drawing, grouped
// by netlist and table. Enter or a double-click on one brings the row of the
// open program it is about to the front.
class DifferencesWindow : public QDialog {
    Q_OBJECT
public:
    // Shows the row of a difference; false when the open program has none.
    using ShowRow = std::function<bool(const compare::Difference&)>;

    DifferencesWindow(const QString& title, const QString& heading,
                      compare::Differences differences, ShowRow showRow, QWidget* parent = nullptr);

    QTreeWidget& list() const { return *list_; }
    QLabel& note() const { return *note_; }
    const compare::Differences& differences() const { return differences_; }

private:
    void activate(QTreeWidgetItem* item);

    compare::Differences differences_;
    ShowRow showRow_;
    QTreeWidget* list_;
    QLabel* note_;
};

} // namespace zolt::shell
