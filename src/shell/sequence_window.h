#pragma once

#include <QSplitter>

class QTableWidget;

namespace zolt {
class CSequenceTable;
class CSystemSequenceTable;
} // namespace zolt

namespace zolt::shell {

class TableWindow;

// The read-only list of the analyzer's commands: name, parameter range and
// description. Enter moves on as Tab does.
class SequenceListWindow : public QWidget {
    Q_OBJECT
public:
    explicit SequenceListWindow(const CSystemSequenceTable& dictionary, QWidget* parent = nullptr);
    QTableWidget& list() const { return *list_; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QTableWidget* list_;
};

// The sequence window: the sequence table beside the list of instructions.
class SequenceWindow : public QSplitter {
    Q_OBJECT
public:
    SequenceWindow(CSequenceTable& sequence, const CSystemSequenceTable* dictionary,
                   QWidget* parent = nullptr);
    TableWindow& table() const { return *table_; }
    SequenceListWindow* instructions() const { return list_; }
    QSize sizeHint() const override;

private:
    TableWindow* table_;
    SequenceListWindow* list_ = nullptr;
};

} // namespace zolt::shell
