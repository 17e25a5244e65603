#include "shell/sequence_window.h"

#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"
#include "shell/table_window.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableWidget>
#include <QVBoxLayout>

namespace zolt::shell {

SequenceListWindow::SequenceListWindow(const CSystemSequenceTable& dictionary, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("frmSequenceListTable"));
    setWindowTitle(QStringLiteral("Sequence Instruction List"));
    const Grid& grid = dictionary.gridarray();
    list_ = new QTableWidget(grid.Rows(), 3, this);
    list_->setObjectName(QStringLiteral("TDBGrid1"));
    list_->setHorizontalHeaderLabels(
        {QStringLiteral("Command"), QStringLiteral("Parameter"), QStringLiteral("Description")});
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->verticalHeader()->setVisible(false);
    list_->verticalHeader()->setDefaultSectionSize(22);
    list_->horizontalHeader()->setStretchLastSection(true);
    for (int r = 1; r <= grid.Rows(); ++r) {
        using C = CSystemSequenceTable::Column;
        const auto text = [&](int c) { return QString::fromStdString(vb::Trim(grid.Text(r, c))); };
        const QString low = text(C::Low);
        const QString high = text(C::High);
        const QString range = low.isEmpty() && high.isEmpty() ? QString() : low + " - " + high;
        list_->setItem(r - 1, 0, new QTableWidgetItem(text(C::Name)));
        list_->setItem(r - 1, 1, new QTableWidgetItem(range));
        auto* description = new QTableWidgetItem(text(C::Description));
        // A description cut off by the column is read whole from its tip.
        description->setToolTip(description->text());
        list_->setItem(r - 1, 2, description);
    }
    list_->setColumnWidth(0, 90);
    list_->setColumnWidth(1, 80);
    // Room for the descriptions to be read beside the sequence.
    setMinimumWidth(380);
    list_->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(list_);
}

bool SequenceListWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == list_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QApplication::sendEvent(list_, &tab);
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

SequenceWindow::SequenceWindow(CSequenceTable& sequence, const CSystemSequenceTable* dictionary,
                               QWidget* parent)
    : QSplitter(Qt::Horizontal, parent) {
    setObjectName(QStringLiteral("frmSequenceSplitter"));
    table_ = new TableWindow(sequence, this);
    addWidget(table_);
    if (dictionary) {
        list_ = new SequenceListWindow(*dictionary, this);
        addWidget(list_);
    }
    setStretchFactor(0, 3);
    setStretchFactor(1, 2);
    setChildrenCollapsible(false);
    setFocusProxy(table_);
}

QSize SequenceWindow::sizeHint() const {
    const QSize t = table_->sizeHint();
    return {std::min(t.width() + (list_ ? 420 : 0), 1180), 520};
}

} // namespace zolt::shell
