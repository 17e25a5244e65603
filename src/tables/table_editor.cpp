#include "tables/table_editor.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "core/utf8.h"
#include "tables/data_validation.h"

#include <algorithm>
#include <set>

namespace zolt {
namespace {

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        const auto end = text.find(separator, start);
        parts.push_back(
            text.substr(start, end == std::string::npos ? std::string::npos : end - start));
        if (end == std::string::npos)
            return parts;
        start = end + 1;
    }
}

} // namespace

bool ConfirmDiscardEdit(Ui& ui) {
    return ui.Message("New data will be lost.", "Editing in Process", Buttons::OkCancel) ==
           Answer::Ok;
}

std::string JoinCopyData(const std::vector<std::string>& copyData) {
    std::string text;
    for (std::size_t i = 0; i < copyData.size(); ++i) {
        if (i > 0)
            text += '~';
        text += copyData[i];
    }
    return text;
}

bool TableEditor::refused(TableCommand command) const {
    const auto refusal = table_.Refusal(command);
    if (refusal)
        table_.state().ui().Message(*refusal, kAppTitle, Buttons::Ok, Icon::Stop);
    return refusal.has_value();
}

void TableEditor::changed() const {
    table_.state().SetDirty(true);
}

void TableEditor::nameStep(const std::string& verb, bool several) const {
    // "Delete Pin Record?" names the record; tables without one use their kind.
    std::string noun = table_.Confirmations().deleteRecord;
    if (noun.starts_with("Delete ") && noun.ends_with("?"))
        noun = noun.substr(7, noun.size() - 8);
    else
        noun = GetTableName(table_.tableIndex()) + " Record";
    table_.state().history().NameStep(verb + " " + noun + (several ? "s" : ""));
}

void TableEditor::noRowSelected(const std::string& text) const {
    table_.state().ui().Message(text, "No Row Selected");
}

ErrorCode TableEditor::typeCells(EditRow& edit, int firstColumn,
                                 const std::vector<std::string>& values, bool newRow) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int column = firstColumn + static_cast<int>(i);
        if (column >= table_.FieldCount())
            break;
        // The grid locks a read-only column: what is typed there goes nowhere.
        if (const CFieldDef* field = table_.FieldDef(column + 1); field && field->ReadOnly())
            continue;
        // Each character goes through the column's key filter, as typing does.
        std::string text;
        for (char32_t key : utf8::CodePoints(values[i])) {
            if (table_.KeyPress(column, key, text) != 0)
                continue;
            utf8::Append(text, key);
        }
        edit.SetCell(column, text);
        if (const ErrorCode result = LeaveCell(edit, column, newRow); result != code::None)
            return result;
    }
    return code::None;
}

ErrorCode TableEditor::LeaveCell(EditRow& edit, int column, bool newRow) {
    if (table_.BeforeLeaveCell(column, edit) != code::None)
        return code::CellRefused;
    if (newRow && table_.BeforeLeaveNewCell(column, edit) != code::None)
        return code::CellRefused;
    std::string value = edit.Cell(column);
    ErrorCode result = table_.CheckField(column, value, 0, edit);
    edit.SetCell(column, value);
    if (result != code::None)
        result = table_.ResolveCellCode(column, result, edit);
    // Script and grid alike: what a stored cell brings with it (a sequence
    // command's default parameter and description) follows here.
    if (result == code::None)
        table_.AfterCellCommitted(column, edit);
    return result;
}

std::optional<int> TableEditor::BeginInsert(int row) {
    if (refused(TableCommand::Insert))
        return std::nullopt;
    Grid& grid = table_.gridarray();
    if (grid.Rows() == 0)
        return std::nullopt;
    if (row < 1 || row > grid.Rows()) {
        noRowSelected("Select row to insert new row above");
        return std::nullopt;
    }
    insertEmptyRow(row);
    return row;
}

void TableEditor::insertEmptyRow(int row) {
    nameStep("Insert");
    Grid& grid = table_.gridarray();
    grid.InsertRows(row, 1);
    table_.AfterRowsInserted(row, 1);
    changed();
}

std::optional<KeyOpening> TableEditor::BeginKeyRow(int key, int currentRow) {
    const auto start = table_.KeyRow(key, currentRow);
    if (!start)
        return std::nullopt;
    KeyOpening opening;
    if (refused(start->insertAt ? TableCommand::Insert : TableCommand::Add)) {
        opening.refused = true;
        return opening;
    }
    if (start->insertAt) {
        opening.insertedRow = std::clamp(*start->insertAt, 1, table_.gridarray().Rows() + 1);
        insertEmptyRow(*opening.insertedRow);
    }
    opening.edit = table_.NewEditRow();
    for (std::size_t c = 0; c < start->cells.size(); ++c)
        opening.edit.SetCell(static_cast<int>(c), start->cells[c]);
    opening.column = start->column;
    return opening;
}

void TableEditor::AbandonInsert(int insertedRow) {
    table_.gridarray().DeleteRows(insertedRow, 1);
    table_.AfterInsertAbandoned(insertedRow);
}

ErrorCode TableEditor::commit(EditRow& edit, std::optional<int> insertedRow, int* refusedColumn) {
    const bool isNew = !edit.row.has_value();
    if (isNew && !table_.CanCommitNewRow())
        return code::CellRefused;
    int column = 0;
    const ErrorCode result = table_.CheckRecord(column, 0, edit);
    if (result != code::None) {
        if (refusedColumn)
            *refusedColumn = column;
        return result;
    }
    nameStep(isNew ? "Add" : "Edit");
    Grid& grid = table_.gridarray();
    int target = 0;
    if (insertedRow)
        target = *insertedRow;
    else if (edit.row)
        target = *edit.row;
    else {
        target = grid.Rows() + 1;
        table_.ReDimGrid(target, table_.gridColumns());
    }
    for (int c = 0; c < table_.FieldCount(); ++c)
        grid.Set(target, c, Value(edit.Cell(c)));
    if (isNew)
        grid.Set(target, table_.NetlistColumn(),
                 Value(static_cast<std::int32_t>(table_.netlist() ? table_.netlist()->netlistIndex
                                                                  : 0)));
    table_.AfterCommit(target, edit);
    changed();
    return code::None;
}

ErrorCode TableEditor::typeAndCommit(EditRow edit, int firstColumn,
                                     const std::vector<std::string>& values,
                                     std::optional<int> insertedRow) {
    ProgramState& state = table_.state();
    state.SetGridEditing(true);
    ErrorCode result = typeCells(edit, firstColumn, values, !edit.row.has_value());
    if (result == code::None)
        result = commit(edit, insertedRow);
    if (result != code::None && insertedRow)
        AbandonInsert(*insertedRow); // as Escape in insert mode does
    state.SetGridEditing(false);
    return result;
}

ErrorCode TableEditor::AddRow(const std::vector<std::string>& values) {
    if (refused(TableCommand::Add))
        return code::CellRefused;
    return typeAndCommit(table_.NewEditRow(), 0, values, std::nullopt);
}

ErrorCode TableEditor::EditCell(int row, int column, const std::string& value) {
    return EditCells(row, column, {value});
}

ErrorCode TableEditor::EditCells(int row, int column, const std::vector<std::string>& values) {
    if (!table_.gridarray().Contains(row, 0))
        return code::CellRefused;
    return typeAndCommit(table_.RowForEdit(row), column, values, std::nullopt);
}

ErrorCode TableEditor::InsertRow(int row, const std::vector<std::string>& values) {
    if (!BeginInsert(row))
        return code::CellRefused;
    return typeAndCommit(table_.NewEditRow(), 0, values, row);
}

std::optional<ErrorCode> TableEditor::PressKey(int key, int currentRow,
                                               const std::vector<std::string>& values) {
    auto opening = BeginKeyRow(key, currentRow);
    if (!opening)
        return std::nullopt;
    if (opening->refused)
        return code::CellRefused;
    return typeAndCommit(std::move(opening->edit), opening->column, values, opening->insertedRow);
}

bool TableEditor::DeleteCurrent(int row) {
    if (refused(TableCommand::Delete))
        return false;
    if (table_.gridarray().Rows() == 0)
        return false;
    if (!table_.gridarray().Contains(row, 0)) {
        noRowSelected("Select row to delete");
        return false;
    }
    nameStep("Delete");
    return table_.DeleteRecord(row);
}

bool TableEditor::DeleteSelected(const std::vector<int>& rows) {
    if (refused(TableCommand::Delete))
        return false;
    if (table_.gridarray().Rows() == 0)
        return false;
    if (rows.empty()) {
        noRowSelected("Select row to delete");
        return false;
    }
    if (table_.state().ui().Message(table_.Confirmations().deleteRecords, kAppTitle,
                                    Buttons::OkCancel, Icon::Question) != Answer::Ok)
        return false;
    DeleteLines(rows);
    return true;
}

void TableEditor::DeleteLines(const std::vector<int>& rows) {
    // Highest first so that each deletion leaves the lower numbers valid; the
    // walk starts below 5000.
    constexpr int kCeiling = 5000;
    std::set<int, std::greater<>> order;
    for (const int r : rows)
        if (r < kCeiling && table_.gridarray().Contains(r, 0))
            order.insert(r);
    nameStep("Delete", order.size() > 1);
    std::vector<std::vector<std::string>> removed;
    for (const int r : order) {
        removed.push_back(table_.RowTexts(r));
        table_.gridarray().DeleteRows(r, 1);
    }
    changed();
    table_.AfterRowsDeleted(removed);
}

bool TableEditor::fixedRows() const {
    return table_.Refusal(TableCommand::Insert).has_value() &&
           table_.Refusal(TableCommand::Delete).has_value();
}

std::vector<std::string> TableEditor::CopyLines(const std::vector<int>& rows) {
    // Cut and copy of a table of fixed rows take a cell's text, never whole lines.
    if (fixedRows())
        return {};
    std::vector<std::string> data{"$CopyData", std::to_string(ToInt(table_.tableIndex()))};
    std::vector<std::string> cells;
    for (const int r : rows) {
        if (!table_.gridarray().Contains(r, 0))
            continue;
        for (auto& text : table_.RowTexts(r))
            cells.push_back(std::move(text));
    }
    data.push_back(std::to_string(cells.size()));
    data.insert(data.end(), cells.begin(), cells.end());
    table_.state().session().CopyData = data;
    return data;
}

std::vector<std::string> TableEditor::CutLines(const std::vector<int>& rows) {
    auto data = CopyLines(rows);
    if (!data.empty())
        DeleteLines(rows);
    return data;
}

PasteResult TableEditor::Paste(const std::string& clipboard, std::optional<int> currentRow) {
    PasteResult result;
    const auto parts = Split(clipboard, '~');
    if (parts.empty() || parts[0] != "$CopyData") {
        result.outcome = PasteResult::Outcome::NotCopyData;
        return result;
    }
    if (parts.size() < 2 || parts[1] != std::to_string(ToInt(table_.tableIndex()))) {
        table_.state().ui().Message("Invalid Data type for table selected", "Paste Aborted",
                                    Buttons::Ok, Icon::Stop);
        result.outcome = PasteResult::Outcome::WrongTable;
        return result;
    }
    if (refused(TableCommand::Insert)) {
        result.outcome = PasteResult::Outcome::WrongTable;
        return result;
    }
    nameStep("Paste", true);
    Grid& grid = table_.gridarray();
    const int columns = table_.FieldCount();
    int target = currentRow && grid.Contains(*currentRow, 0) ? *currentRow : grid.Rows() + 1;
    for (std::size_t first = 3; columns > 0 && first < parts.size();
         first += static_cast<std::size_t>(columns)) {
        if (!table_.CanCommitNewRow())
            break;
        grid.InsertRows(target, 1);
        for (int c = 0; c < columns; ++c) {
            const std::size_t i = first + static_cast<std::size_t>(c);
            grid.Set(target, c, Value(i < parts.size() ? parts[i] : std::string()));
        }
        grid.Set(target, table_.NetlistColumn(),
                 Value(static_cast<std::int32_t>(table_.netlist() ? table_.netlist()->netlistIndex
                                                                  : 0)));
        EditRow edit = table_.RowForEdit(target);
        int column = 0;
        const ErrorCode found = table_.CheckRecord(column, 0, edit);
        if (found != code::None) {
            result.outcome = PasteResult::Outcome::Stopped;
            result.code = found;
            result.failedRow = target;
            result.failedColumn = column;
            break;
        }
        // Rewrites of the record check (empty numbers made "0") are kept.
        for (int c = 0; c < columns; ++c)
            grid.Set(target, c, Value(edit.Cell(c)));
        ++result.rows;
        ++target;
    }
    changed();
    return result;
}

bool TableEditor::ClearTable() {
    if (refused(TableCommand::Clear))
        return false;
    if (table_.state().ui().Message(table_.Confirmations().clearTable, kAppTitle, Buttons::OkCancel,
                                    Icon::Question) != Answer::Ok)
        return false;
    std::string name = table_.Confirmations().clearTable;
    if (name.ends_with('?'))
        name.pop_back();
    table_.state().history().NameStep(name);
    table_.ReDimGrid(0, table_.gridColumns());
    changed();
    return true;
}

void TableEditor::AddRowFromDetail(const std::vector<std::string>& texts) {
    nameStep("Add");
    Grid& grid = table_.gridarray();
    const int row = grid.Rows() + 1;
    table_.ReDimGrid(row, table_.gridColumns());
    // A detail dialog fills the typed columns only.
    for (int c = 0; c < table_.FieldCount() && c < static_cast<int>(texts.size()); ++c)
        grid.Set(row, c, Value(texts[static_cast<std::size_t>(c)]));
    grid.Set(
        row, table_.NetlistColumn(),
        Value(static_cast<std::int32_t>(table_.netlist() ? table_.netlist()->netlistIndex : 0)));
    changed();
}

} // namespace zolt
