#include "shell/cell_delegate.h"

#include "core/program_state.h"
#include "tables/data_table.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace zolt::shell {
namespace {
const char* const kColumn = "zoltColumn";
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    auto* edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setProperty(kColumn, index.column());
    edit->installEventFilter(const_cast<CellDelegate*>(this));
    return edit;
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const {
    const auto* edit = static_cast<QLineEdit*>(editor);
    if (!model->setData(index, edit->text(), Qt::EditRole))
        emit CellRefused(index);
}

bool CellDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* edit = qobject_cast<QLineEdit*>(object);
    if (edit && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const QString typed = key->text();
        const CFieldDef* field = table_.FieldDef(edit->property(kColumn).toInt() + 1);
        if (field && typed.size() == 1 && typed[0].unicode() >= 0x20 &&
            !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            // The text left beside the selection is what the key must fit into.
            QString rest = edit->text();
            if (edit->hasSelectedText())
                rest.remove(edit->selectionStart(), edit->selectedText().size());
            char32_t code = typed[0].unicode();
            ProgramState& state = table_.state();
            if (field->KeyPress(code, rest.toStdString(), state.Params(), state.ui()) != 0)
                return true;
            edit->insert(QString::fromUcs4(&code, 1));
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace zolt::shell
