#include "tables/data_table.h"

#include "core/app_info.h"
#include "core/parameters.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "tables/data_validation.h"

namespace zolt {

namespace {

int typedColumns(const TableSpec& descriptor) {
    int count = 0;
    while (count < descriptor.ColumnCount() && descriptor.Column(count).field)
        ++count;
    return count;
}

} // namespace

DataTable::DataTable(ProgramState& state, const TableSpec& descriptor)
    : Table(state, descriptor.id, descriptor.ColumnCount()), descriptor_(descriptor),
      fieldCount_(typedColumns(descriptor)) {}

const CFieldDef* DataTable::FieldDef(int position) const {
    return position >= 1 && position <= FieldCount() ? &*descriptor_.Column(position - 1).field
                                                     : nullptr;
}

ErrorCode DataTable::CheckField(int column, std::string& value, int mode, const EditRow& row) {
    const CFieldDef* field = FieldDef(column + 1);
    if (!field)
        return code::None;
    ErrorCode result = field->Check(Value(value), params());
    if (result == code::None)
        result = FieldRule(column, value, row);
    if (result != code::None && WantsMessage(mode) && !IsSilentCode(result))
        ShowError(ui(), result, field);
    return result;
}

ErrorCode DataTable::CheckRecord(int& column, int mode, EditRow& row) {
    if (mode & check_mode::SkipRecord)
        return code::None;
    ErrorCode result = code::None;
    for (int c = 0; c < FieldCount(); ++c) {
        std::string text = row.Cell(c);
        const ErrorCode cellCode = CheckField(c, text, mode | check_mode::Silent, row);
        row.SetCell(c, text);
        if (StopsRecord(cellCode)) {
            result = cellCode;
            column = c;
            break;
        }
    }
    if (result != code::None && WantsMessage(mode) && !IsSilentCode(result))
        ShowError(ui(), result, FieldDef(column + 1));
    return result;
}

std::vector<std::string> DataTable::RowTexts(int row) const {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(FieldCount()));
    for (int c = 0; c < FieldCount(); ++c)
        texts.push_back(vb::Trim(gridarray().Text(row, c)));
    return texts;
}

EditRow DataTable::RowForEdit(int row) const {
    EditRow edit;
    edit.row = row;
    edit.cells = RowTexts(row);
    edit.original = edit.cells;
    return edit;
}

EditRow DataTable::NewEditRow() const {
    EditRow edit;
    edit.cells.resize(static_cast<std::size_t>(FieldCount()));
    edit.original = edit.cells;
    return edit;
}

int DataTable::KeyPress(int column, char32_t& key, std::string_view text) {
    const CFieldDef* field = FieldDef(column + 1);
    return field ? field->KeyPress(key, text, params(), ui()) : 0;
}

bool DataTable::DeleteRecord(int row) {
    if (!Confirm(Confirmations().deleteRecord))
        return false;
    RemoveRow(row);
    return true;
}

void DataTable::RemoveRow(int row) {
    std::vector<std::vector<std::string>> removed{RowTexts(row)};
    gridarray().DeleteRows(row, 1);
    ReDimGrid(gridarray().Rows(), gridColumns());
    AfterRowsDeleted(removed);
    state().SetDirty(true);
}

void DataTable::Destroy() {
    fieldCount_ = 0;
    Table::Destroy();
}

bool DataTable::IsSilentCode(ErrorCode code) const {
    return ErrorText(code).empty();
}

Table* DataTable::SiblingTable(TableId tableIndex) const {
    return netlist() ? netlist()->GetTable(tableIndex) : nullptr;
}

Table* DataTable::MainTable(TableId tableIndex) const {
    return state().project().MainNetlist ? state().project().MainNetlist->GetTable(tableIndex)
                                         : nullptr;
}

CParamList& DataTable::params() const {
    return state().params();
}

Ui& DataTable::ui() const {
    return state().ui();
}

int DataTable::OwnerIndex() const {
    return netlist() ? netlist()->netlistIndex : 0;
}

bool DataTable::Confirm(const std::string& text) const {
    return ui().Message(text, kAppTitle, Buttons::OkCancel, Icon::Question) == Answer::Ok;
}

} // namespace zolt
