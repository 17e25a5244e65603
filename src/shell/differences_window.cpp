#include "shell/differences_window.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <map>

namespace zolt::shell {
namespace {

constexpr int kIndexRole = Qt::UserRole;

// The child of `parent` captioned `text`, made when there is none yet.
QTreeWidgetItem* Branch(QTreeWidgetItem* parent, const QString& text) {
    for (int i = 0; i < parent->childCount(); ++i)
        if (parent->child(i)->text(0) == text)
            return parent->child(i);
    auto* item = new QTreeWidgetItem(parent, {text});
    item->setData(0, kIndexRole, -1);
    return item;
}

} // namespace

DifferencesWindow::DifferencesWindow(const QString& title, const QString& heading,
                                     compare::Differences differences, ShowRow showRow,
                                     QWidget* parent)
    : QDialog(parent), differences_(std::move(differences)), showRow_(std::move(showRow)),
      list_(new QTreeWidget(this)), note_(new QLabel(this)) {
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* label = new QLabel(heading, this);
    label->setWordWrap(true);
    label->setBuddy(list_);
    list_->setHeaderHidden(true);
    list_->setUniformRowHeights(true);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    note_->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list_, 1);
    layout->addWidget(note_);

    // Netlists and tables in the order their first difference came.
    auto* root = list_->invisibleRootItem();
    QTreeWidgetItem* first = nullptr;
    for (std::size_t i = 0; i < differences_.size(); ++i) {
        const auto& d = differences_[i];
        QTreeWidgetItem* table =
            Branch(Branch(root, QString::fromStdString(d.where)), QString::fromStdString(d.table));
        auto* item = new QTreeWidgetItem(table, {QString::fromStdString(d.text)});
        item->setData(0, kIndexRole, static_cast<int>(i));
        if (!first)
            first = item;
    }
    list_->expandAll();
    if (first)
        list_->setCurrentItem(first);
    else
        note_->setText(tr("No differences."));
    connect(list_, &QTreeWidget::itemActivated, this, &DifferencesWindow::activate);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this] { note_->clear(); });
    resize(560, 360);
    list_->setFocus();
}

void DifferencesWindow::activate(QTreeWidgetItem* item) {
    const int index = item ? item->data(0, kIndexRole).toInt() : -1;
    if (index < 0)
        return;
    if (!showRow_(differences_[static_cast<std::size_t>(index)]))
        note_->setText(tr("No row of this program shows this difference."));
}

} // namespace zolt::shell
