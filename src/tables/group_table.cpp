#include "tables/group_table.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/color_table.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"
#include "tables/wire_table.h"

namespace zolt {
namespace {

const TableSpec& groupSpec() {
    namespace c = groups_column;
    using A = ButtonAction;
    static const TableSpec descriptor{
        .id = table::Groups,
        .columns = ColumnsOf(c::kCaptions,
                             {{c::Group, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                              {c::Connector, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                              {c::Pin, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                              {c::BaseColor, ColorColumn()},
                              {c::StripeColor, ColorColumn()},
                              {c::Sequence, HiddenColumn()},
                              {c::Netlist, HiddenColumn()}}),
        .buttons = {{"cmdNext", "&Next", "Next Group number (F5)", A::FunctionKey, 5},
                    {"cmdSame", "&Same", "Same Group number (F6)", A::FunctionKey, 6},
                    {"cmdEdit", "C&olors", "Edit the wire and group colors", A::ShowTable, 0,
                     table::Color}},
        .find = FindForm{"Find in Groups Table",
                         {{"All", {}},
                          {"Group ID", {c::Group}},
                          {"Connector", {c::Connector}},
                          {"Connector/Pin", {c::Connector, c::Pin}}}}};
    return descriptor;
}

} // namespace

CGroupTable::CGroupTable(ProgramState& state) : DataTable(state, groupSpec()) {}

void CGroupTable::PlaceRecord(std::span<Value> row, std::vector<Value>& fields) const {
    PlaceColoredRecord(row, fields, {0, 1, 2, 3, 6, 4, 5}, {3, 4});
}

int CGroupTable::GetLastColor(int column) const {
    const auto* colors = dynamic_cast<const CColorTable*>(MainTable(table::Color));
    if (!colors || gridarray().Rows() == 0)
        return 0;
    return colors->GetColorID(NullToText(gridarray().At(gridarray().Rows(), column)));
}

int CGroupTable::KeyPress(int column, char32_t& key, std::string_view text) {
    return column == groups_column::BaseColor || column == groups_column::StripeColor
               ? ColorCellKeyPress(key, text, FieldDef(column + 1)->MaxLength)
               : DataTable::KeyPress(column, key, text);
}

ErrorCode CGroupTable::CheckField(int column, std::string& value, int mode, const EditRow& row) {
    const ErrorCode result = DataTable::CheckField(column, value, mode, row);
    if (result != code::None ||
        (column != groups_column::BaseColor && column != groups_column::StripeColor))
        return result;
    auto* colors = dynamic_cast<CColorTable*>(MainTable(table::Color));
    return ResolveColorCell(colors, state(), value, WantsMessage(mode)) || !WantsMessage(mode)
               ? code::None
               : code::CellRefused;
}

ErrorCode CGroupTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if (column == groups_column::Connector)
        return ConnectorExists(netlist(), value) ? code::None : code::NoConnector;
    if (column != groups_column::Pin)
        return code::None;
    const std::string& connector = row.Cell(groups_column::Connector);
    const auto* connectors = Sibling<CConnectorTable>(table::Connector);
    const int max = connector.empty() ? 999 : (connectors ? connectors->GetMaxPins(connector) : 0);
    if (CountMatches(*this, {{connector, groups_column::Connector}}, row.row) >= max)
        return code::TooManyPins;
    if (CountMatches(*this, {{connector, groups_column::Connector}, {value, groups_column::Pin}},
                     row.row) >= 1)
        return code::DuplicatePin;
    return code::None;
}

ErrorCode CGroupTable::BeforeLeaveNewCell(int column, EditRow& row) {
    const CFieldDef* field = FieldDef(column + 1);
    if (field && field->Required && vb::Trim(row.Cell(column)).empty()) {
        ui().Message("Value must be Entered!", kAppTitle);
        return code::CellRefused;
    }
    if (column == groups_column::Connector &&
        RefuseReservedConnector(state(), row.Cell(groups_column::Connector))) {
        row.SetCell(groups_column::Connector, {});
        return code::CellRefused;
    }
    return code::None;
}

ConfirmTexts CGroupTable::Confirmations() const {
    return {"Clear Groups Table?", "Delete Group Record?", "Delete Group Records?"};
}

std::optional<KeyStart> CGroupTable::KeyRow(int key, int currentRow) const {
    const Grid& grid = gridarray();
    if (key == key::F5) {
        const std::string previous = grid.Rows() > 0 ? vb::Trim(grid.Text(grid.Rows(), 0)) : "0";
        return KeyStart{{NextName(previous)}, 1, std::nullopt};
    }
    if (key == key::F6) {
        // Below the last row (the grid's new row) it repeats the last row's group.
        const int from = grid.Contains(currentRow, 0) ? currentRow : grid.Rows();
        if (from == 0)
            return KeyStart{{"1"}, 1, 1};
        return KeyStart{{vb::Trim(grid.Text(from, groups_column::Group))}, 1, from + 1};
    }
    return std::nullopt;
}

} // namespace zolt
