#include "tables/color_table.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/data_validation.h"

#include <algorithm>

namespace zolt {

std::string FormatColor(const std::string& base, const std::string& stripe) {
    const std::string b = vb::Trim(base);
    const std::string s = vb::Trim(stripe);
    if (b.empty())
        return {};
    return s.empty() ? b : b + "/" + s;
}

std::string TooManyColorsText(int first, int last) {
    return RefusedRecordsText(
        "Maximum number of colors is " + std::to_string(CColorTable::kMaxColors), first, last);
}

ColumnSpec ColorColumn() {
    return {.field = NewFieldDef(field_type::Text, false, 12), .kind = CellKind::Color};
}

int ColorCellKeyPress(char32_t& key, std::string_view text, int maxLength) {
    if (key < U' ')
        return 0;
    int length = 0;
    for (const char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            ++length;
    if (key == U'~' || length >= maxLength) {
        key = 0;
        return kKeyRefused;
    }
    if (key >= U'a' && key <= U'z')
        key = key - U'a' + U'A';
    return 0;
}

int CColorTable::KeyPress(int column, char32_t& key, std::string_view text) {
    return column == color_column::Color
               ? ColorCellKeyPress(key, text, FieldDef(color_column::Color + 1)->MaxLength)
               : DataTable::KeyPress(column, key, text);
}

namespace {

const TableSpec& colorSpec() {
    namespace c = color_column;
    static const TableSpec descriptor{
        .id = table::Color,
        .columns =
            ColumnsOf(c::kCaptions,
                      {{c::Number,
                        TypedColumn(NewFieldDef(field_type::Integer, true, 3,
                                                Value(std::int32_t{1}), Value(std::int32_t{999})))},
                       {c::Color, TypedColumn(NewFieldDef(field_type::Text, true, 12, {}, {}, 3))},
                       {c::DisplayValue, HiddenColumn()},
                       {c::ColorID, HiddenColumn()}})};
    return descriptor;
}

} // namespace

CColorTable::CColorTable(ProgramState& state) : DataTable(state, colorSpec()) {}

ErrorCode CColorTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if ((column == color_column::Number || column == color_column::Color) &&
        CountMatches(*this, {{value, column}}, row.row) > 0)
        return code::Duplicate;
    return code::None;
}

int CColorTable::GetNextColorID() const {
    for (int id = 1;; ++id)
        if (CountMatches(*this, {{std::to_string(id), color_column::Number}}) == 0)
            return id;
}

bool CColorTable::AddColorRecord(int row, const std::vector<Value>& fields) {
    if (row > kMaxColors) {
        ui().Message(TooManyColorsText(row, row), kAppTitle);
        return false;
    }
    Table::AddRecord_v1(row, fields);
    return true;
}

bool CColorTable::AddSpecialRecord(const std::string& first, const std::string& second) {
    for (const std::string& text : {first, second})
        if (!vb::Trim(text).empty() && GetColorID(vb::Trim(text)) == 0 && AddNewColor(text) == 0)
            return false;
    return true;
}

int CColorTable::AddNewColor(const std::string& text) {
    if (!HasRoomForColor())
        return 0;
    const int id = GetNextColorID();
    const auto slash = text.find('/');
    const std::string base = vb::Trim(text.substr(0, slash));
    const std::string stripe = slash == std::string::npos ? "" : vb::Trim(text.substr(slash + 1));
    Grid& grid = gridarray();
    const int row = grid.Rows() + 1;
    ReDimGrid(row, gridColumns());
    grid.Set(row, color_column::Number, Value(static_cast<std::int32_t>(id)));
    grid.Set(row, color_column::Color, Value(base));
    grid.Set(row, color_column::DisplayValue, Value(stripe));
    grid.Set(row, color_column::ColorID, Value(static_cast<std::int32_t>(OwnerIndexForNewRows())));
    state().SetDirty(true);
    return id;
}

int CColorTable::OwnerIndexForNewRows() const {
    return state().project().ActiveNetlist ? state().project().ActiveNetlist->netlistIndex
                                           : OwnerIndex();
}

int CColorTable::GetColorID(const std::string& text) const {
    const Grid& grid = gridarray();
    for (int r = 1; r <= grid.Rows(); ++r)
        if (FormatColor(grid.Text(r, color_column::Color),
                        grid.Text(r, color_column::DisplayValue)) == text)
            return ToLong(grid.At(r, color_column::Number));
    return 0;
}

std::string CColorTable::GetColors(int number) const {
    const Grid& grid = gridarray();
    for (int r = 1; r <= grid.Rows(); ++r)
        if (HasValue(grid.At(r, color_column::Number)) &&
            ToLong(grid.At(r, color_column::Number)) == number)
            return FormatColor(grid.Text(r, color_column::Color),
                               grid.Text(r, color_column::DisplayValue));
    return {};
}

std::string CColorTable::GetDisplayColor(int number) const {
    const std::string text = GetColors(number);
    return text.empty() ? "(none)" : text;
}

std::string ShownColor(const CColorTable* colors, const std::string& cell) {
    const std::string trimmed = vb::Trim(cell);
    if (!colors || !vb::IsNumeric(std::string_view(trimmed)))
        return cell;
    return colors->GetDisplayColor(static_cast<int>(vb::Val(trimmed)));
}

bool CColorTable::IsColorText(const std::string& text) const {
    return text != "(none)" && GetColorID(text) != 0;
}

void CColorTable::KeyPress(char32_t& key) const {
    if (key == U'/' || key == U' ' || key > 0x7F)
        return;
    if (key >= U'a' && key <= U'z')
        key = key - U'a' + U'A';
}

std::vector<std::string> CColorTable::ValueItems() const {
    std::vector<std::string> items{"(none)"};
    for (int r = 1; r <= gridarray().Rows(); ++r)
        items.push_back(FormatColor(gridarray().Text(r, color_column::Color),
                                    gridarray().Text(r, color_column::DisplayValue)));
    return items;
}

void CColorTable::FindClosest(std::string& text, int& matched, int& found) const {
    std::vector<std::string> list;
    for (int r = 1; r <= gridarray().Rows(); ++r)
        list.push_back(FormatColor(gridarray().Text(r, color_column::Color),
                                   gridarray().Text(r, color_column::DisplayValue)));
    std::sort(list.begin(), list.end());
    list.emplace_back("zzzzzzzzzzzzz");
    const std::string wanted = vb::UCase(vb::Trim(text));
    found = 1;
    for (const std::string& entry : list)
        if (vb::UCase(vb::Trim(entry.substr(0, text.size()))) == wanted) {
            matched = static_cast<int>(text.size());
            text = entry;
            return;
        }
}

void CColorTable::ProcessKeyPress(ColorCell& cell, bool& backspacePressed,
                                  bool& slashPressed) const {
    std::string text = cell.text;
    if (backspacePressed) {
        if (cell.selStart > 0)
            text = text.substr(0, static_cast<std::size_t>(cell.selStart - 1));
        else
            ui().Beep();
        backspacePressed = false;
    }
    if (slashPressed) {
        const auto slash = text.find('/');
        if (text.size() < 2 || slash != std::string::npos)
            text = text.substr(0, slash == std::string::npos ? 0 : slash + 1);
        else
            text += '/';
        slashPressed = false;
    }
    int matched = 0;
    int found = 0;
    if (!text.empty())
        FindClosest(text, matched, found);
    cell.text = text;
    if (matched > 0) {
        cell.selStart = matched;
        cell.selLength = static_cast<int>(text.size()) - matched;
    } else {
        cell.selStart = static_cast<int>(text.size());
        cell.selLength = 0;
    }
}

void CColorTable::AfterCommit(int gridRow, const EditRow& row) {
    if (!row.row)
        gridarray().Set(gridRow, color_column::ColorID,
                        Value(static_cast<std::int32_t>(OwnerIndexForNewRows())));
}

bool CColorTable::HasRoomForColor() const {
    if (gridarray().Rows() < kMaxColors)
        return true;
    ui().Message("Maximum number of colors is " + std::to_string(kMaxColors) + ".", kAppTitle);
    return false;
}

bool CColorTable::CanCommitNewRow() {
    return HasRoomForColor();
}

ConfirmTexts CColorTable::Confirmations() const {
    return {"Clear Wire Colors Table?", "Delete Color Record?", "Delete Wire Color Records?"};
}

} // namespace zolt
