#include "tables/connector_table.h"

#include "core/app_info.h"
#include "core/parameters.h"
#include "core/ports/detail_dialogs.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/data_validation.h"
#include "tables/switches_table.h"
#include "tables/table_editor.h"

#include <algorithm>

namespace zolt {
namespace {

Value n(int v) {
    return Value(static_cast<std::int32_t>(v));
}

ColumnSpec byParameter(CFieldDef field, ParamKey parameter) {
    return {.field = std::move(field), .shown = ColumnShown::ByParameter, .parameter = parameter};
}

const TableSpec& connectorSpec() {
    namespace c = connector_column;
    using A = ButtonAction;
    static const TableSpec descriptor{
        .id = table::Connector,
        .columns = ColumnsOf(
            c::kCaptions,
            {{c::Connector, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
             {c::PinsQty, TypedColumn(NewFieldDef(field_type::Integer, true, 3, n(0), n(999)))},
             {c::SwitchesQty, byParameter(NewFieldDef(field_type::Integer, false, 3, n(0), n(128)),
                                          param::Switches)},
             {c::LampBoard,
              byParameter(NewFieldDef(field_type::Integer, false, 2, n(0), n(15)), param::LampPin)},
             {c::LampPoint, byParameter(NewFieldDef(field_type::Integer, false, 3, n(0), n(127)),
                                        param::LampPin)},
             {c::Grid, byParameter(NewFieldDef(field_type::Text, false, 6), param::GridLocation)},
             {c::Sequence, HiddenColumn()},
             {c::Netlist, HiddenColumn()}}),
        .buttons = {{"cmdNext", "&Next", "Next connector name (F5)", A::FunctionKey, 5},
                    {"cmdEdit", "S&witches", "Edit the switches of the connectors", A::ShowTable, 0,
                     table::Switches, param::Switches}},
        .find = FindForm{"Find in Connectors Table", {{"All", {}}, {"Connector", {c::Connector}}}}};
    return descriptor;
}

} // namespace

bool ConnectorExists(const CNetList* netlist, const std::string& name) {
    const Table* connectors = netlist ? netlist->GetTable(table::Connector) : nullptr;
    return connectors && CountMatches(*connectors, {{name, connector_column::Connector}}) >= 1;
}

bool RefuseReservedConnector(ProgramState& state, const std::string& text) {
    if (text != "0" || state.params().Number(param::Switches) == 0)
        return false;
    state.ui().Message("Connector 0 is reserved for designating a common\n"
                       "(with the Pin named \"COM\") when using One Common for All Switches.\n"
                       "Please enter a different Connector name.",
                       kAppTitle);
    return true;
}

CConnectorTable::CConnectorTable(ProgramState& state) : DataTable(state, connectorSpec()) {
    AddListener(*this);
}

CConnectorTable::~CConnectorTable() {
    RemoveListener(*this);
}

int CConnectorTable::GetMaxPins(const std::string& name) const {
    const Grid& grid = gridarray();
    std::string scratch;
    if (loading_) {
        for (int r = 1; r <= grid.Rows(); ++r)
            if (TrimmedCellText(grid.At(r, connector_column::Connector), scratch) == name)
                return ToLong(grid.At(r, connector_column::PinsQty));
        return 0;
    }
    if (!pinsByName_) {
        pinsByName_.emplace();
        for (int r = 1; r <= grid.Rows(); ++r)
            pinsByName_->emplace(TrimmedCellText(grid.At(r, connector_column::Connector), scratch),
                                 static_cast<int>(ToLong(grid.At(r, connector_column::PinsQty))));
    }
    const auto found = pinsByName_->find(std::string_view(name));
    return found == pinsByName_->end() ? 0 : found->second;
}

void CConnectorTable::TableAboutToChange(const GridChange& change) {
    if (change.kind == GridChange::Kind::Reset)
        loading_ = true;
    pinsByName_.reset();
}

void CConnectorTable::TableChanged(const GridChange& change) {
    if (change.kind == GridChange::Kind::Reset)
        loading_ = false;
    pinsByName_.reset();
}

std::string CConnectorTable::FormatField(int column, const Value& value) const {
    const CFieldDef* field = FieldDef(column + 1);
    return field ? field->Format(value) : std::string();
}

ErrorCode CConnectorTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if (column != connector_column::Connector) {
        if (vb::Trim(value).empty())
            value.assign(1, '0');
        return code::None;
    }
    if (CountMatches(*this, {{value, connector_column::Connector}}, row.row) >= 1)
        return code::Duplicate;
    return code::None;
}

ErrorCode CConnectorTable::BeforeLeaveNewCell(int column, EditRow& row) {
    if (column == connector_column::PinsQty && row.Cell(connector_column::PinsQty).empty())
        row.SetCell(connector_column::PinsQty, "0");
    if (column == connector_column::Connector &&
        RefuseReservedConnector(state(), row.Cell(connector_column::Connector))) {
        row.SetCell(connector_column::Connector, {});
        return code::CellRefused;
    }
    return code::None;
}

void CConnectorTable::AfterCommit(int gridRow, const EditRow& row) {
    if (params().Number(param::Switches) != 1)
        return;
    auto* switches = Sibling<CSwitchesTable>(table::Switches);
    if (!switches)
        return;
    const std::string name = row.Cell(connector_column::Connector);
    const std::string before = row.Original(connector_column::Connector);
    bool renamed = false;
    if (!before.empty() && before != name)
        switches->RenameConnector(before, name, renamed);
    if (renamed)
        return;
    if (vb::Trim(gridarray().Text(gridRow, connector_column::SwitchesQty)).empty())
        gridarray().Set(gridRow, connector_column::SwitchesQty, Value("0"));
    switches->AddNewSwitch(name, ToLong(gridarray().At(gridRow, connector_column::SwitchesQty)));
}

void CConnectorTable::AfterRowsDeleted(const std::vector<std::vector<std::string>>& removed) {
    auto* switches = Sibling<CSwitchesTable>(table::Switches);
    if (!switches)
        return;
    for (const auto& row : removed)
        if (!row.empty())
            switches->RemoveConnectorSwitches(row[connector_column::Connector]);
}

ConfirmTexts CConnectorTable::Confirmations() const {
    return {"Clear Connectors Table?", "Delete Connector Record?", "Delete Connector Records?"};
}

std::optional<KeyStart> CConnectorTable::KeyRow(int key, int /*currentRow*/) const {
    if (key != key::F5)
        return std::nullopt;
    const Grid& grid = gridarray();
    const std::string previous = grid.Rows() > 0 ? vb::Trim(grid.Text(grid.Rows(), 0)) : "P0";
    return KeyStart{{NextName(previous)}, 1, std::nullopt};
}

Answer CConnectorTable::ShowDetail(const std::string& name, const std::string& pin) {
    // The pin being added must fit: a numbered pin proposes its number, any other at least one.
    const std::string trimmedPin = vb::Trim(pin);
    const int pins = std::clamp(
        vb::IsNumeric(std::string_view(trimmedPin)) ? static_cast<int>(vb::Val(trimmedPin)) : 1, 1,
        999);
    DetailForm form{"Add New Connector", {}};
    // The boxes the grid hides by the project's settings are not offered.
    for (int c = 0; c < FieldCount(); ++c)
        form.fields.push_back(
            DetailField{Descriptor().Column(c).caption,
                        c == connector_column::Connector ? name
                        : c == connector_column::PinsQty ? std::to_string(pins)
                        : c == connector_column::Grid    ? ""
                                                         : "0",
                        FieldDef(c + 1)->MaxLength,
                        ShownBySettings(Descriptor().Column(c), state().project()),
                        {}});
    if (!state().details().Fill(form))
        return Answer::Cancel;
    std::string connector = vb::Trim(form.fields[connector_column::Connector].text);
    EditRow named;
    named.SetCell(connector_column::Connector, connector);
    if (CheckField(connector_column::Connector, connector, 0, named) != code::None)
        return Answer::Cancel;
    std::vector<std::string> texts;
    for (const DetailField& field : form.fields)
        texts.push_back(field.text);
    TableEditor(*this).AddRowFromDetail(texts);
    if (params().Number(param::Switches) == 1)
        if (auto* switches = Sibling<CSwitchesTable>(table::Switches))
            switches->AddNewSwitch(vb::Trim(texts[connector_column::Connector]),
                                   ToLong(Value(texts[connector_column::SwitchesQty])));
    return Answer::Ok;
}

} // namespace zolt
