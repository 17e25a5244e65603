#include "shell/table_window.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "fixture/fixture_commands.h"
#include "fixture/fixture_table.h"
#include "shell/cell_delegate.h"
#include "shell/command_table.h"
#include "shell/mnemonics.h"
#include "shell/table_model.h"
#include "tables/code_table.h"
#include "tables/component_table.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

namespace zolt::shell {
namespace {

// Every table's row begins with its key: a new line is typed from there.
constexpr int kKeyColumn = 0;

QPushButton* makeButton(QWidget* parent, const char* name, const char* caption, const char* tip) {
    auto* button = new QPushButton(QString::fromUtf8(caption), parent);
    button->setObjectName(QString::fromUtf8(name));
    if (*tip)
        button->setToolTip(QString::fromUtf8(tip));
    button->setAutoDefault(false);
    // The grid keeps the keyboard: a click must not take the focus from it.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

// The open cell editor's line, if a cell is being typed.
QLineEdit* openCell(QTableView& grid) {
    QWidget* focus = QApplication::focusWidget();
    auto* edit = qobject_cast<QLineEdit*>(focus);
    return edit && grid.isAncestorOf(edit) ? edit : nullptr;
}

} // namespace

TableWindow::TableWindow(DataTable& table, QWidget* parent) : QWidget(parent) {
    setObjectName(QString::fromStdString(TableFormName(table.tableIndex())));
    model_ = new TableModel(table, this);
    model_->SetAllowAddNew(!table.Refusal(TableCommand::Add));
    grid_ = new QTableView(this);
    grid_->setObjectName(QStringLiteral("TDBGrid1"));
    grid_->setModel(model_);
    delegate_ = new CellDelegate(table, grid_);
    grid_->setItemDelegate(delegate_);
    grid_->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                           QAbstractItemView::EditKeyPressed);
    grid_->setSelectionBehavior(QAbstractItemView::SelectItems);
    grid_->setAlternatingRowColors(true);
    grid_->verticalHeader()->setDefaultSectionSize(22);
    grid_->verticalHeader()->setSectionsClickable(true);
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->horizontalHeader()->setHighlightSections(false);
    grid_->setContextMenuPolicy(Qt::CustomContextMenu);
    grid_->installEventFilter(this);
    connect(delegate_, &CellDelegate::CellRefused, this, &TableWindow::reopen);
    connect(delegate_, &CellDelegate::CellLeftByKey, this, &TableWindow::onCellLeftByKey);
    connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TableWindow::onCurrentChanged);
    connect(grid_->verticalHeader(), &QHeaderView::sectionClicked, this,
            [this](int line) { grid_->selectRow(line); });
    connect(model_, &QAbstractItemModel::modelReset, this, &TableWindow::SetVisibleColumns);
    connect(grid_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { ContextMenu().popup(grid_->viewport()->mapToGlobal(at)); });
    connect(model_, &TableModel::EditingChanged, this, &TableWindow::updateButtons);

    detailView_ = !table.Descriptor().HasColumnShown(ColumnShown::DetailView);
    buildButtons();
    avoidMenuMnemonics();
    buildContextMenu();
    setFocusProxy(grid_);
    SetVisibleColumns();
    setColumnWidths();
    updateButtons(false);
}

void TableWindow::buildButtons() {
    const TableSpec& descriptor = table().Descriptor();
    auto* row = new QHBoxLayout;
    auto* ownRow = new QHBoxLayout;
    const LineButtonCaptions& lines = descriptor.lineButtons;
    const std::pair<const char*, const char*> lineButtons[] = {
        {"cmdAdd", lines.add}, {"cmdInsert", lines.insert}, {"cmdDelete", lines.remove}};
    for (const auto& [name, caption] : lineButtons)
        if (*caption)
            buttons_[QString::fromUtf8(name)] = makeButton(this, name, caption, "");
    if (QPushButton* b = Button(QStringLiteral("cmdAdd"))) {
        b->setToolTip(tr("Add Line (Ctrl + End)"));
        connect(b, &QPushButton::clicked, this, &TableWindow::AddLine);
        row->addWidget(b);
    }
    if (QPushButton* b = Button(QStringLiteral("cmdInsert"))) {
        b->setToolTip(tr("Insert Line (Ctrl + Ins)"));
        connect(b, &QPushButton::clicked, this, &TableWindow::InsertLine);
        row->addWidget(b);
    }
    if (QPushButton* b = Button(QStringLiteral("cmdDelete"))) {
        b->setToolTip(tr("Delete Line (Ctrl + Del)"));
        connect(b, &QPushButton::clicked, this, &TableWindow::DeleteLine);
        row->addWidget(b);
    }
    for (const TableButton& def : descriptor.buttons) {
        QPushButton* b = makeButton(this, def.name, def.caption, def.tip);
        buttons_[QString::fromUtf8(def.name)] = b;
        ownRow->addWidget(b);
        switch (def.action) {
        case ButtonAction::FunctionKey:
            connect(b, &QPushButton::clicked, this, [this, key = def.key] {
                grid_->setFocus();
                PressFunctionKey(key);
            });
            break;
        case ButtonAction::ShowTable:
            connect(b, &QPushButton::clicked, this,
                    [this, t = def.table] { emit ShowTableRequested(t); });
            break;
        case ButtonAction::Rename:
            connect(b, &QPushButton::clicked, this, &TableWindow::RenameBlock);
            break;
        case ButtonAction::ViewSelect:
            connect(b, &QPushButton::clicked, this, [this] { SetDetailView(!detailView_); });
            break;
        }
    }
    row->addStretch();
    ownRow->addStretch();
    buttonRows_ = new QBoxLayout(QBoxLayout::LeftToRight);
    buttonRows_->addLayout(row);
    buttonRows_->addLayout(ownRow);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    // An empty grid on a linked tab would look like a fixture still to be typed.
    if (const auto* fixture = dynamic_cast<const CFixtureTable*>(&table());
        fixture && fixture->gridMain() && fixture->ShowsMainSplit()) {
        auto* note = new QLabel(
            QString::fromStdString(fixture->Refusal(TableCommand::Add).value_or("")), this);
        note->setObjectName(QStringLiteral("lblLinkedToMain"));
        note->setWordWrap(true);
        layout->addWidget(note);
    }
    layout->addWidget(grid_, 1);
    layout->addLayout(buttonRows_);
}

void TableWindow::avoidMenuMnemonics() {
    // Alt and a menu's letter opens the menu, whichever window has the keys.
    std::vector<QPushButton*> ordered;
    for (const char* name : {"cmdAdd", "cmdInsert", "cmdDelete"})
        if (QPushButton* b = Button(QString::fromUtf8(name)))
            ordered.push_back(b);
    for (const TableButton& def : table().Descriptor().buttons)
        if (QPushButton* b = Button(QString::fromUtf8(def.name)))
            ordered.push_back(b);
    std::vector<std::string> captions;
    for (const QPushButton* b : ordered)
        captions.push_back(b->text().toStdString());
    const auto unique = UniqueMnemonics(captions, MenuBarMnemonics());
    for (std::size_t i = 0; i < ordered.size(); ++i)
        ordered[i]->setText(QString::fromStdString(unique[i]));
}

int TableWindow::buttonsInOneRow() const {
    int width = buttonRows_->spacing() + 8;
    for (int i = 0; i < buttonRows_->count(); ++i)
        width += buttonRows_->itemAt(i)->minimumSize().width();
    return width;
}

void TableWindow::resizeEvent(QResizeEvent* event) {
    // The table's own buttons go under the line buttons rather than be cut short.
    buttonRows_->setDirection(width() < buttonsInOneRow() ? QBoxLayout::TopToBottom
                                                          : QBoxLayout::LeftToRight);
    QWidget::resizeEvent(event);
}

void TableWindow::buildContextMenu() {
    menu_ = new QMenu(this);
    menu_->setObjectName(QStringLiteral("mnuGrid"));
    // The entries carry the names of the frame's commands they stand for.
    const auto entry = [this](Command command) {
        const CommandDef& c = Definition(command);
        QAction* action = menu_->addAction(QString::fromUtf8(c.caption));
        action->setObjectName(QString::fromUtf8(c.id));
        return action;
    };
    connect(entry(Command::Cut), &QAction::triggered, this, [this] { clipboardCommand(true); });
    connect(entry(Command::Copy), &QAction::triggered, this, [this] { clipboardCommand(false); });
    connect(entry(Command::Paste), &QAction::triggered, this, [this] {
        const QString text = QApplication::clipboard()->text();
        if (QLineEdit* edit = openCell(*grid_);
            edit && !text.startsWith(QStringLiteral("$CopyData")))
            edit->insert(text);
        else
            Paste(text.toStdString());
    });
}

QAction* TableWindow::ContextAction(const QString& name) const {
    return menu_->findChild<QAction*>(name);
}

QMenu& TableWindow::ContextMenu() {
    const QLineEdit* edit = openCell(*grid_);
    const bool text = edit && edit->hasSelectedText();
    const bool oneRow = SelectedRows().size() == 1;
    const QList<QAction*> entries = menu_->actions(); // Cut, Copy, Paste
    entries[0]->setEnabled(text || oneRow);
    entries[1]->setEnabled(text || oneRow);
    entries[2]->setEnabled(!QApplication::clipboard()->text().isEmpty());
    return *menu_;
}

void TableWindow::clipboardCommand(bool cut) {
    if (QLineEdit* edit = openCell(*grid_); edit && edit->hasSelectedText()) {
        QApplication::clipboard()->setText(edit->selectedText());
        if (cut)
            edit->del();
        return;
    }
    const std::string data = CopySelection(cut);
    if (!data.empty())
        QApplication::clipboard()->setText(QString::fromStdString(data));
}

QPushButton* TableWindow::Button(const QString& name) const {
    const auto it = buttons_.find(name);
    return it == buttons_.end() ? nullptr : it->second;
}

void TableWindow::updateButtons(bool editing) {
    for (const auto& [name, button] : buttons_)
        button->setEnabled(!editing);
    // MAIN generates its own fixture; the other netlists show MAIN's beside theirs.
    // A greyed AutoGen says why in its tooltip.
    if (QPushButton* gen = Button(QStringLiteral("cmdAutoGen"))) {
        const auto* fixture = dynamic_cast<const CFixtureTable*>(&table());
        const auto refusal = fixture ? fixture->AutoGenRefusal() : std::nullopt;
        gen->setEnabled(!editing && fixture && !refusal);
        gen->setToolTip(refusal ? QString::fromStdString(*refusal)
                                : tr("Auto Generate the Fixture Table (F8)"));
    }
}

void TableWindow::setColumnWidths() {
    const QFontMetrics metrics = grid_->fontMetrics();
    const int digit = metrics.horizontalAdvance(QLatin1Char('W'));
    const QHeaderView& header = *grid_->horizontalHeader();
    for (int c = 0; c < model_->columnCount(); ++c) {
        const CFieldDef* field = table().FieldDef(c + 1);
        const int chars = field && field->MaxLength > 0 ? std::clamp(field->MaxLength, 4, 28) : 12;
        // The header's own measure: its font and margins, not the cells'. A hidden
        // column (MAIN's side of a fixture) has none and is measured by its font.
        const QString text = model_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
        const int caption = std::max(header.sectionSizeHint(c) + 8,
                                     header.fontMetrics().horizontalAdvance(text) + 28);
        grid_->setColumnWidth(c, std::max(caption, chars * digit * 3 / 4 + 16));
    }
}

DataTable& TableWindow::table() const {
    return model_->table();
}

QSize TableWindow::sizeHint() const {
    int width = grid_->verticalHeader()->sizeHint().width() + 40;
    for (int c = 0; c < model_->columnCount(); ++c)
        if (!grid_->isColumnHidden(c))
            width += grid_->columnWidth(c);
    return {std::clamp(std::max(width, buttonsInOneRow()), 380, 1000), 380};
}

void TableWindow::SetVisibleColumns() {
    const DataTable& t = table();
    const Project& project = t.state().project();
    const auto* fixture = dynamic_cast<const CFixtureTable*>(&t);
    for (int c = 0; c < model_->columnCount(); ++c) {
        const ColumnSpec& column = t.Descriptor().Column(c);
        bool shown = ShownBySettings(column, project);
        if (column.shown == ColumnShown::MainSplit)
            shown = fixture && fixture->ShowsMainSplit();
        else if (column.shown == ColumnShown::DetailView)
            shown = detailView_;
        grid_->setColumnHidden(c, !shown);
    }
    for (const TableButton& def : t.Descriptor().buttons)
        if (def.parameter)
            if (QPushButton* button = Button(QString::fromUtf8(def.name)))
                button->setVisible(ShownBySettings(def, project));
}

void TableWindow::SetDetailView(bool on) {
    if (!table().Descriptor().HasColumnShown(ColumnShown::DetailView))
        return;
    detailView_ = on;
    if (QPushButton* b = Button(QStringLiteral("cmdViewSelect")))
        b->setText(on ? QStringLiteral("<<") : QStringLiteral(">>"));
    SetVisibleColumns();
    if (QWidget* frame = parentWidget(); frame && frame->isVisible())
        frame->adjustSize();
    emit DetailViewChanged(on);
}

void TableWindow::changed() {
    model_->Reload();
    emit RecordsChanged();
}

void TableWindow::editAt(int line, int column) {
    const QModelIndex index = model_->index(line, column);
    grid_->setFocus();
    moving_ = true;
    grid_->setCurrentIndex(index);
    moving_ = false;
    grid_->edit(index);
}

int TableWindow::nextColumn(int column, int step) const {
    for (int c = column + step; c >= 0 && c < table().FieldCount(); c += step)
        if (!grid_->isColumnHidden(c) && (model_->flags(model_->index(0, c)) & Qt::ItemIsEditable))
            return c;
    return -1;
}

void TableWindow::onCellLeftByKey(QWidget* editor, int key) {
    const QModelIndex index = grid_->currentIndex();
    const int step = key == Qt::Key_Backtab ? -1 : 1;
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const int next = enter || !index.isValid() ? -1 : nextColumn(index.column(), step);
    if (step < 0 && next < 0)
        return;
    delegate_->Close(editor);
    if (next >= 0)
        editAt(index.row(), next);
    else
        commitRow(); // Enter, or Tab past the last cell of the row
}

void TableWindow::ShowCell(int row, int column) {
    if (model_->IsEditing())
        return;
    const int line = row <= 0 ? model_->NewRowLine() : std::min(row - 1, model_->NewRowLine());
    const QModelIndex index = model_->index(line, column);
    moving_ = true;
    grid_->setCurrentIndex(index);
    moving_ = false;
    grid_->scrollTo(index);
    grid_->setFocus();
}

void TableWindow::goToNewRow() {
    if (!model_->AllowsAddNew())
        return;
    const int first = nextColumn(-1, 1);
    moving_ = true;
    grid_->setCurrentIndex(model_->index(model_->NewRowLine(), std::max(first, 0)));
    moving_ = false;
}

void TableWindow::commitRow() {
    if (!model_->IsEditing() || model_->IsCheckingCell())
        return;
    const int line = model_->EditingRow();
    if (model_->CommitOpenRow() == code::None) {
        emit RecordsChanged();
        goToNewRow();
        // A dialog the row's checks opened took the keyboard with it; the cell
        // editor it would hand it back to is gone.
        grid_->setFocus();
    } else if (model_->IsEditing()) {
        // The row stays open, typing goes on in the cell its check refused.
        editAt(line, refusedColumn());
    }
}

int TableWindow::refusedColumn() const {
    const int column = model_->RefusedColumn();
    return grid_->isColumnHidden(column) ? std::max(nextColumn(-1, 1), 0) : column;
}

void TableWindow::reopen(const QModelIndex& index) {
    // A failed check keeps the cell open with what was typed.
    QTimer::singleShot(0, this, [this, index] {
        if (model_->IsEditing())
            editAt(index.row(), index.column());
    });
}

void TableWindow::showCellStatus(const QModelIndex& current) {
    // A side of a component: the status bar names that side of the device.
    const auto* components = dynamic_cast<const CComponentTable*>(&table());
    if (!components)
        return;
    if (!current.isValid() || (current.column() != component_column::Wire1 &&
                               current.column() != component_column::Wire2)) {
        // The side's name belongs to its cell: it goes when the cursor does.
        if (std::exchange(sideShown_, false))
            table().state().ClearStatusText();
        return;
    }
    sideShown_ = true;
    const std::string type =
        model_->index(current.row(), component_column::DeviceType).data().toString().toStdString();
    table().state().SetStatusText(components->SideStatus(vb::Trim(type), current.column()));
}

void TableWindow::onCurrentChanged(const QModelIndex& current, const QModelIndex& previous) {
    showCellStatus(current);
    if (moving_ || !model_->IsEditing() || model_->IsCheckingCell() || !previous.isValid() ||
        current.row() == previous.row())
        return;
    const int line = model_->EditingRow();
    const ErrorCode code = model_->CommitOpenRow();
    if (code != code::None && model_->IsEditing()) {
        // The row stays open until it validates, in the cell its check refused.
        QTimer::singleShot(0, this,
                           [this, line, column = refusedColumn()] { editAt(line, column); });
        return;
    }
    emit RecordsChanged();
    // The rows were read again: the cursor goes where the user sent it.
    moving_ = true;
    grid_->setCurrentIndex(model_->index(current.row(), current.column()));
    moving_ = false;
}

int TableWindow::CurrentRow() const {
    const QModelIndex index = grid_->currentIndex();
    return index.isValid() && index.row() < model_->NewRowLine() ? index.row() + 1 : 0;
}

bool TableWindow::IsTyping() const {
    return model_->IsEditing() || openCell(*grid_);
}

bool TableWindow::CommitEditing() {
    if (QLineEdit* edit = openCell(*grid_)) {
        QWidget* editor =
            qobject_cast<QComboBox*>(edit->parentWidget()) ? edit->parentWidget() : edit;
        if (!delegate_->Commit(editor))
            return false;
        delegate_->Close(editor);
    }
    if (!model_->IsEditing())
        return true;
    commitRow();
    return !model_->IsEditing();
}

void TableWindow::SelectRows(int first, int last) {
    if (model_->IsEditing() || model_->NewRowLine() == 0)
        return;
    const int top = std::clamp(first, 1, model_->NewRowLine()) - 1;
    const int bottom = std::clamp(last, first, model_->NewRowLine()) - 1;
    const int column = std::max(nextColumn(-1, 1), 0);
    moving_ = true;
    grid_->setCurrentIndex(model_->index(top, column));
    moving_ = false;
    grid_->selectionModel()->select(
        QItemSelection(model_->index(top, 0), model_->index(bottom, model_->columnCount() - 1)),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    grid_->scrollTo(model_->index(top, column));
    grid_->setFocus();
}

std::vector<int> TableWindow::SelectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : grid_->selectionModel()->selectedRows())
        if (index.row() < model_->NewRowLine())
            rows.push_back(index.row() + 1);
    return rows;
}

bool TableWindow::refused(int command) const {
    const auto refusal = table().Refusal(static_cast<TableCommand>(command));
    if (refusal)
        table().state().ui().Message(*refusal, kAppTitle, Buttons::Ok, Icon::Stop);
    return refusal.has_value();
}

void TableWindow::AddLine() {
    if (model_->IsEditing() || refused(static_cast<int>(TableCommand::Add)))
        return;
    editAt(model_->NewRowLine(), 0);
}

void TableWindow::InsertLine() {
    if (model_->IsEditing() || refused(static_cast<int>(TableCommand::Insert)) ||
        model_->NewRowLine() == 0)
        return;
    const QModelIndex index = grid_->currentIndex();
    const int line = index.isValid() ? index.row() : -1;
    if (model_->InsertAbove(line))
        editAt(line, kKeyColumn);
}

void TableWindow::DeleteLine() {
    if (model_->IsEditing() || model_->NewRowLine() == 0)
        return;
    const auto selected = SelectedRows();
    const bool done = selected.empty() ? model_->editor().DeleteCurrent(CurrentRow())
                                       : model_->editor().DeleteSelected(selected);
    if (done)
        changed();
}

void TableWindow::AbortEdit() {
    if (model_->IsEditing() && !model_->IsCheckingCell()) {
        model_->AbandonOpenRow();
        grid_->setCurrentIndex(model_->index(std::max(0, model_->NewRowLine() - 1), 0));
    }
}

void TableWindow::ClearTable() {
    if (!model_->IsEditing() && model_->editor().ClearTable())
        changed();
}

void TableWindow::autoGen() {
    const auto* fixture = dynamic_cast<const CFixtureTable*>(&table());
    if (!fixture)
        return;
    if (const auto refusal = fixture->AutoGenRefusal()) {
        table().state().SetStatusText(*refusal);
        return;
    }
    AutoGenCommand(table().state());
    changed();
}

void TableWindow::PressFunctionKey(int key) {
    if (model_->IsEditing())
        return;
    if (key == key::F8 && table().tableIndex() == table::Fixture) {
        autoGen();
        return;
    }
    // On the new row the key works from the last stored row, as on a row below it.
    const QModelIndex current = grid_->currentIndex();
    const int row = current.isValid() ? current.row() + 1 : 0;
    if (const auto column = model_->OpenKeyRow(key, row))
        editAt(model_->EditingRow(), *column);
}

void TableWindow::RenameBlock() {
    auto* codes = dynamic_cast<CCodeTable*>(&table());
    const int row = CurrentRow();
    if (!codes || model_->IsEditing() || row == 0)
        return;
    codes->Rename(row);
    changed();
}

std::string TableWindow::CopySelection(bool cut) {
    const auto rows = SelectedRows();
    if (rows.empty())
        return {};
    const auto data = cut ? model_->editor().CutLines(rows) : model_->editor().CopyLines(rows);
    if (cut)
        changed();
    return JoinCopyData(data);
}

void TableWindow::Paste(const std::string& clipboard) {
    if (model_->IsEditing())
        return;
    const int row = CurrentRow();
    const auto result =
        model_->editor().Paste(clipboard, row > 0 ? std::optional<int>(row) : std::nullopt);
    changed();
    if (result.outcome == PasteResult::Outcome::Stopped)
        grid_->setCurrentIndex(model_->index(result.failedRow - 1, result.failedColumn));
}

void TableWindow::PasteText(const QString& text) {
    const QModelIndex index = grid_->currentIndex();
    if (!index.isValid())
        return;
    grid_->edit(index);
    if (auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget()))
        editor->insert(text);
}

bool TableWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == grid_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool ctrl = key->modifiers() & Qt::ControlModifier;
        if (key->key() == Qt::Key_Escape && model_->IsEditing()) {
            AbortEdit();
            return true;
        }
        // Reaches here only while Save is greyed: a clean project with a cell being typed.
        if (ctrl && key->key() == Qt::Key_S) {
            emit SaveRequested();
            return true;
        }
        if (ctrl && key->key() == Qt::Key_End && !model_->IsEditing()) {
            AddLine();
            return true;
        }
        if (ctrl && key->key() == Qt::Key_Insert) {
            InsertLine();
            return true;
        }
        if (ctrl && key->key() == Qt::Key_Delete) {
            DeleteLine();
            return true;
        }
        if (key->key() >= Qt::Key_F5 && key->key() <= Qt::Key_F8) {
            PressFunctionKey(key->key() - Qt::Key_F5 + 5);
            return true;
        }
        // Enter on the grid (not in a cell editor) commits the open row.
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && model_->IsEditing()) {
            commitRow();
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace zolt::shell
