#include "tables/message_table.h"

#include "core/app_info.h"
#include "core/netlist.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/data_validation.h"

namespace zolt {
namespace {

void StoreRow(Grid& grid, int row, const std::vector<Value>& fields) {
    if (row > grid.Rows())
        grid.ReDim(row, grid.Columns());
    for (std::size_t c = 0; c < fields.size() && static_cast<int>(c) < grid.Columns(); ++c)
        grid.Set(row, static_cast<int>(c),
                 fields[c].isText() ? Value(vb::Trim(fields[c].text())) : fields[c]);
}

const TableSpec& messageSpec() {
    namespace c = message_column;
    static const TableSpec descriptor{
        .id = table::Message,
        .columns = ColumnsOf(
            c::kCaptions,
            {{c::Number, TypedColumn(NewFieldDef(field_type::Integer, true, 4, {},
                                                 Value(std::int32_t{1023})))},
             {c::Message, TypedColumn(NewFieldDef(field_type::Text, true, 80, {}, {}, 3))},
             {c::Sequence, HiddenColumn()},
             {c::Netlist, HiddenColumn()}})};
    return descriptor;
}

} // namespace

CMessageTable::CMessageTable(ProgramState& state) : DataTable(state, messageSpec()) {
    AddListener(*this);
}

CMessageTable::~CMessageTable() {
    RemoveListener(*this);
}

void CMessageTable::TableChanged(const GridChange& /*change*/) {
    // A loaded project edited as a value has no command dictionary to describe lines by.
    if (!IsAdopted())
        return;
    if (CNetList* owner = netlist())
        if (Table* sequence = owner->GetTable(table::Sequence))
            sequence->MessagesChanged();
}

bool CMessageTable::AddMessageRecord(int row, const std::vector<Value>& fields) {
    const int number = fields.empty() ? 0 : ToLong(fields[0]);
    if (row > kMaxMessages || number > kMaxMessages) {
        ui().Message("Maximum number of messages is " + std::to_string(kMaxMessages) +
                         ".\nRecord:" + std::to_string(number) + " not added.",
                     kAppTitle);
        return false;
    }
    Table::AddRecord_v1(row, fields);
    return true;
}

void CMessageTable::AddPLabelRecord_V1(int row, const std::vector<Value>& fields) {
    StoreRow(plabel_, row, fields);
}

void CMessageTable::AddPLabel2Record_V1(int row, const std::vector<Value>& fields) {
    StoreRow(plabel2_, row, fields);
}

std::string CMessageTable::GetMessage(int number) const {
    const Grid& grid = gridarray();
    for (int r = 1; r <= grid.Rows(); ++r)
        if (HasValue(grid.At(r, message_column::Number)) &&
            ToLong(grid.At(r, message_column::Number)) == number)
            return grid.Text(r, message_column::Message);
    return {};
}

ErrorCode CMessageTable::CheckRecord(int& column, int mode, EditRow& row) {
    if ((mode & check_mode::AllRows) == 0)
        return DataTable::CheckRecord(column, mode, row);
    for (int r = 1; r <= gridarray().Rows(); ++r) {
        EditRow stored = RowForEdit(r);
        const ErrorCode result =
            DataTable::CheckRecord(column, mode & ~check_mode::AllRows, stored);
        if (result != code::None) {
            row.row = r;
            return result;
        }
    }
    return code::None;
}

int CMessageTable::KeyPress(int column, char32_t& key, std::string_view text) {
    if (column != message_column::Message || key != U' ')
        return DataTable::KeyPress(column, key, text);
    // The field filter refuses blanks; a blank only meets its length test.
    char32_t probe = U'A';
    if (DataTable::KeyPress(column, probe, text) == 0)
        return 0;
    key = 0;
    return kKeyRefused;
}

ErrorCode CMessageTable::BeforeLeaveNewCell(int column, EditRow& row) {
    if (column == message_column::Message && vb::Trim(row.Cell(message_column::Message)).empty()) {
        ui().Message("Value must be Entered!", kAppTitle);
        return code::CellRefused;
    }
    return code::None;
}

ConfirmTexts CMessageTable::Confirmations() const {
    return {"Clear Message Table?", "Delete Message Record?", "Delete Message Records?"};
}

void CMessageTable::Destroy() {
    plabel_ = Grid(0, 4);
    plabel2_ = Grid(0, 4);
    DataTable::Destroy();
}

} // namespace zolt
