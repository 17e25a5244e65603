#include "shell/cell_delegate.h"

#include "core/netlist.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"
#include "tables/code_table.h"
#include "tables/color_table.h"
#include "tables/component_table.h"
#include "tables/data_table.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace zolt::shell {
namespace {

const char* const kColumn = "zoltColumn";
const char* const kRow = "zoltRow";

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// The line edit of an editor: the editor itself, or the edit box of a drop-down.
QLineEdit* lineOf(QWidget* editor) {
    if (auto* combo = qobject_cast<QComboBox*>(editor))
        return combo->lineEdit();
    return qobject_cast<QLineEdit*>(editor);
}

} // namespace

CColorTable* CellDelegate::colors() const {
    const ProgramState& state = table_.state();
    return state.project().MainNetlist
               ? state.project().MainNetlist->TableAs<CColorTable>(table::Color)
               : nullptr;
}

CellKind CellDelegate::Kind(int column) const {
    const TableSpec& descriptor = table_.Descriptor();
    return column >= 0 && column < descriptor.ColumnCount() ? descriptor.Column(column).kind
                                                            : CellKind::Plain;
}

std::vector<std::string> CellDelegate::Items(int column) const {
    switch (Kind(column)) {
    case CellKind::Color:
        return colors() ? colors()->ValueItems() : std::vector<std::string>{"(none)"};
    case CellKind::List:
        if (const auto* components = dynamic_cast<const CComponentTable*>(&table_))
            return components->FillComponentValueItems();
        return CCodeTable::Codes();
    case CellKind::Command: {
        const ProgramState& state = table_.state();
        const auto* dictionary =
            state.project().MainNetlist
                ? state.project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList)
                : nullptr;
        return dictionary ? SortedCommandNames(*dictionary) : std::vector<std::string>{};
    }
    case CellKind::Plain:
        break;
    }
    return {};
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    const int column = index.column();
    QWidget* editor = nullptr;
    QLineEdit* edit = nullptr;
    if (Kind(column) == CellKind::Plain) {
        edit = new QLineEdit(parent);
        edit->setFrame(false);
        editor = edit;
    } else {
        auto* combo = new QComboBox(parent);
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        // Completion is the table's own: the box's must not fight it.
        combo->setCompleter(nullptr);
        for (const auto& item : Items(column))
            combo->addItem(qs(item));
        edit = combo->lineEdit();
        editor = combo;
    }
    edit->setProperty(kColumn, column);
    edit->setProperty(kRow, index.row());
    // Keys reach a drop-down first, which hands them to its edit box unfiltered.
    editor->setProperty(kColumn, column);
    editor->installEventFilter(const_cast<CellDelegate*>(this));
    if (edit != editor)
        edit->installEventFilter(const_cast<CellDelegate*>(this));
    return editor;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findText(text));
        combo->setEditText(text);
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const {
    const QLineEdit* edit = lineOf(editor);
    if (!edit || model->setData(index, edit->text(), Qt::EditRole))
        return;
    if (committing_)
        refused_ = true;
    else
        emit CellRefused(index);
}

bool CellDelegate::Commit(QWidget* editor) {
    if (committing_)
        return false;
    committing_ = true;
    refused_ = false;
    emit commitData(editor);
    committing_ = false;
    return !refused_;
}

std::string CellDelegate::rowCommand(QLineEdit* edit) const {
    const int row = edit->property(kRow).toInt();
    const QAbstractItemModel* model = nullptr;
    if (auto* owner = qobject_cast<QAbstractItemView*>(parent()))
        model = owner->model();
    return model ? model->index(row, sequence_column::Command).data().toString().toStdString()
                 : std::string();
}

bool CellDelegate::typeColor(QLineEdit* edit, int column, char32_t key, bool backspace,
                             bool slash) {
    const CColorTable* table = colors();
    if (!table)
        return false;
    ColorCell cell{edit->text().toStdString(),
                   edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition(), 0};
    if (!backspace && !slash) {
        QString rest = edit->text();
        if (edit->hasSelectedText())
            rest.remove(edit->selectionStart(), edit->selectedText().size());
        else
            rest = rest.left(edit->cursorPosition());
        if (table_.KeyPress(column, key, rest.toStdString()) != 0)
            return true;
        cell.text = (rest + QString::fromUcs4(&key, 1)).toStdString();
    }
    table->ProcessKeyPress(cell, backspace, slash);
    edit->setText(qs(cell.text));
    edit->setSelection(cell.selStart + cell.selLength, -cell.selLength);
    if (cell.selLength == 0)
        edit->setCursorPosition(cell.selStart);
    return true;
}

void CellDelegate::sayLengthLimit(int column, const QString& rest) const {
    const CFieldDef* field = table_.FieldDef(column + 1);
    if (!field || field->MaxLength <= 0 || rest.size() < field->MaxLength)
        return;
    const TableSpec& descriptor = table_.Descriptor();
    const std::string caption = column < descriptor.ColumnCount()
                                    ? descriptor.Column(column).caption
                                    : std::string("This cell");
    const int limit = field->MaxLength;
    table_.state().SetStatusText(caption + " takes at most " + std::to_string(limit) +
                                 (limit == 1 ? " character" : " characters"));
}

bool CellDelegate::typeCommand(QLineEdit* edit, const QString& typed) {
    QString prefix = edit->text();
    if (edit->hasSelectedText())
        prefix.truncate(edit->selectionStart());
    else
        prefix.truncate(edit->cursorPosition());
    prefix += typed;
    const auto completion = CompleteCommandPrefix(Items(sequence_column::Command),
                                                  edit->text().toStdString(), prefix.toStdString());
    if (!completion.found)
        table_.state().ui().Beep();
    edit->setText(qs(completion.text));
    edit->setSelection(completion.selStart + completion.selLength, -completion.selLength);
    return true;
}

bool CellDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* edit = lineOf(qobject_cast<QWidget*>(object));
    if (!edit || !edit->property(kColumn).isValid())
        return QStyledItemDelegate::eventFilter(object, event);
    if (event->type() == QEvent::FocusOut) {
        // A box or list over the grid leaves the cell open as it is: it is
        // still being typed, and its check runs once, when it is left.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (committing_ || reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
            return false;
    }
    if (event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(object, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        // The cell is checked here and now; only a cell that passed is left.
        QWidget* editor =
            qobject_cast<QComboBox*>(edit->parentWidget()) ? edit->parentWidget() : edit;
        if (Commit(editor))
            emit CellLeftByKey(editor, key->key());
        else if (!committing_)
            edit->selectAll();
        return true;
    }
    default:
        break;
    }
    const int column = edit->property(kColumn).toInt();
    const CellKind kind = Kind(column);
    const QString typed = key->text();
    const bool plainKey = typed.size() == 1 && typed[0].unicode() >= 0x20 &&
                          !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (kind == CellKind::Color && key->key() == Qt::Key_Backspace)
        return typeColor(edit, column, 0, true, false);
    if (plainKey) {
        char32_t code = typed[0].unicode();
        if (kind == CellKind::Color)
            return typeColor(edit, column, code, false, code == U'/');
        if (kind == CellKind::Command)
            return typeCommand(edit, typed.toUpper());
        if (auto* sequence = dynamic_cast<CSequenceTable*>(&table_)) {
            const auto* dictionary =
                table_.state().project().MainNetlist->TableAs<CSystemSequenceTable>(
                    table::SequenceList);
            const int type = dictionary ? dictionary->GetCommandType(rowCommand(edit)) : -1;
            const int filtered = sequence->KeyPress(column, type, static_cast<int>(code));
            if (filtered == 0) {
                table_.state().ui().Beep();
                return true;
            }
            code = static_cast<char32_t>(filtered);
        }
        // The text left beside the selection is what the key must fit into.
        QString rest = edit->text();
        if (edit->hasSelectedText())
            rest.remove(edit->selectionStart(), edit->selectedText().size());
        if (table_.KeyPress(column, code, rest.toStdString()) != 0) {
            sayLengthLimit(column, rest);
            return true;
        }
        edit->insert(QString::fromUcs4(&code, 1));
        return true;
    }
    // Tab, Enter and Escape of a drop-down's edit box belong to the drop-down.
    if (auto* combo = qobject_cast<QComboBox*>(edit->parentWidget()))
        return QStyledItemDelegate::eventFilter(combo, event);
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace zolt::shell
