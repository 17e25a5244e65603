#include "tables/switches_table.h"

#include "core/parameters.h"
#include "core/switch_type.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"

namespace zolt {

namespace {

// Switches follow their connectors: the window has no line buttons.
const TableSpec& switchesSpec() {
    namespace c = switches_column;
    static const TableSpec descriptor{
        .id = table::Switches,
        .columns = ColumnsOf(
            c::kCaptions, {{c::Connector, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                           {c::SwitchName, TypedColumn(NewFieldDef(field_type::Text, true, 6))},
                           {c::SwitchCommons, TypedColumn(NewFieldDef(field_type::Text, false, 6))},
                           {c::Seq, TypedColumn(NewFieldDef(field_type::None, false, 0))},
                           {c::Netlist, HiddenColumn()}}),
        .lineButtons = {"", "", ""}};
    return descriptor;
}

} // namespace

CSwitchesTable::CSwitchesTable(ProgramState& state) : DataTable(state, switchesSpec()) {}

ErrorCode CSwitchesTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if (column == switches_column::SwitchName &&
        CountMatches(*this,
                     {{value, switches_column::SwitchName},
                      {row.Cell(switches_column::Connector), switches_column::Connector}},
                     row.row) > 0)
        return code::DuplicateSwitch;
    if (column == switches_column::Connector) {
        const Table* connectors = SiblingTable(table::Connector);
        if (!connectors || CountMatches(*connectors, {{value, connector_column::Connector}}) < 1)
            return code::NoConnector;
    }
    return code::None;
}

void CSwitchesTable::AddNewSwitch(const std::string& connector, int count) {
    Grid& grid = gridarray();
    int have = CountMatches(grid, {{connector, switches_column::Connector}});
    for (int r = grid.Rows(); r >= 1 && have > count; --r)
        if (vb::Trim(grid.Text(r, switches_column::Connector)) == connector) {
            grid.DeleteRows(r, 1);
            --have;
        }
    ReDimGrid(grid.Rows(), gridColumns());
    if (have < count)
        GetExtraSwitchNames(connector, count - have);
}

void CSwitchesTable::GetExtraSwitchNames(const std::string& connector, int count,
                                         std::vector<std::string>* names) {
    Grid& grid = gridarray();
    int highest = 0;
    for (int r = 1; r <= grid.Rows(); ++r) {
        if (vb::Trim(grid.Text(r, switches_column::Connector)) != connector)
            continue;
        const std::string name = vb::Trim(grid.Text(r, switches_column::SwitchName));
        if (name.size() > 2 && name.compare(0, 2, "DS") == 0 &&
            vb::IsNumeric(std::string_view(name).substr(2)))
            highest = std::max(highest, static_cast<int>(vb::Val(name.substr(2))));
    }
    const bool ownCommons = GetSwitchType(params()) == SwitchType::OneCommonPerSwitch;
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(highest + i);
        const std::string name = "DS" + number;
        if (names) {
            names->push_back(name);
            continue;
        }
        const int row = grid.Rows() + 1;
        ReDimGrid(row, gridColumns());
        grid.Set(row, switches_column::Connector, Value(connector));
        grid.Set(row, switches_column::SwitchName, Value(name));
        grid.Set(row, switches_column::SwitchCommons,
                 Value(ownCommons ? name + "-" : std::string("COM")));
        grid.Set(row, switches_column::Seq, Value(number));
        grid.Set(row, switches_column::Netlist, Value(static_cast<std::int32_t>(OwnerIndex())));
    }
}

void CSwitchesTable::RemoveConnectorSwitches(const std::string& connector) {
    Grid& grid = gridarray();
    const int n = CountMatches(grid, {{connector, switches_column::Connector}});
    if (n == 0)
        return;
    int first = 1;
    while (vb::Trim(grid.Text(first, switches_column::Connector)) != connector)
        ++first;
    grid.DeleteRows(first, std::min(n, grid.Rows() - first + 1));
    ReDimGrid(grid.Rows(), gridColumns());
}

void CSwitchesTable::RenameConnector(const std::string& oldName, const std::string& newName,
                                     bool& renamed) {
    Grid& grid = gridarray();
    for (int r = grid.Rows(); r >= 1; --r)
        if (vb::Trim(grid.Text(r, switches_column::Connector)) == oldName) {
            grid.Set(r, switches_column::Connector, Value(newName));
            renamed = true;
        }
}

std::optional<std::string> CSwitchesTable::Refusal(TableCommand command) const {
    switch (command) {
    case TableCommand::Add:
        return "Add line not permitted in Switches table";
    case TableCommand::Insert:
        return "Insert line not permitted in Switches table";
    case TableCommand::Delete:
        return "Delete line not permitted in Switches table";
    case TableCommand::Clear:
        return "Clear switches table not permitted";
    }
    return std::nullopt;
}

ConfirmTexts CSwitchesTable::Confirmations() const {
    return {"Clear switches table not permitted", "Delete Switch Record?",
            "Delete Switch Records?"};
}

} // namespace zolt
