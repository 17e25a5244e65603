#include "shell/table_appearance.h"

#include "core/table_kinds.h"
#include "shell/sequence_window.h"
#include "shell/table_window.h"
#include "tables/data_table.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>
#include <QTableWidget>

namespace zolt::shell {

QFont StyleFont(const settings::TextStyle& style) {
    QFont font = QApplication::font();
    if (!style.family.empty())
        font.setFamily(QString::fromStdString(style.family));
    if (style.pointSize > 0)
        font.setPointSize(style.pointSize);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    return font;
}

void ApplyTextStyle(QWidget& view, const settings::TextStyle& style) {
    const QFont font = StyleFont(style);
    view.setFont(font);
    QPalette palette = QApplication::palette();
    if (!style.foreground.empty())
        palette.setColor(QPalette::Text, QColor(QString::fromStdString(style.foreground)));
    if (!style.background.empty())
        palette.setColor(QPalette::Base, QColor(QString::fromStdString(style.background)));
    view.setPalette(palette);
    if (auto* table = qobject_cast<QTableView*>(&view))
        table->verticalHeader()->setDefaultSectionSize(
            std::max(22, QFontMetrics(font).height() + 6));
}

void ApplyTableAppearance(QWidget& content, const settings::TableAppearance& appearance) {
    QList<TableWindow*> windows = content.findChildren<TableWindow*>();
    if (auto* window = qobject_cast<TableWindow*>(&content))
        windows.append(window);
    for (TableWindow* window : windows) {
        const TableId kind = window->table().tableIndex();
        const bool sequenceText = kind == table::Sequence || kind == table::Message;
        ApplyTextStyle(window->grid(),
                       sequenceText ? appearance.sequenceText : appearance.netlistTables);
    }
    for (SequenceListWindow* list : content.findChildren<SequenceListWindow*>())
        ApplyTextStyle(list->list(), appearance.sequenceText);
}

void ApplyTableAppearance(QMdiArea& workspace, const settings::TableAppearance& appearance) {
    for (QMdiSubWindow* w : workspace.subWindowList())
        if (w->widget())
            ApplyTableAppearance(*w->widget(), appearance);
}

} // namespace zolt::shell
