#include "tables/splice_table.h"

#include "core/program_state.h"
#include "core/table_kinds.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"
#include "tables/wire_uses.h"

namespace zolt {
namespace {

Value Int(int v) {
    return Value(static_cast<std::int32_t>(v));
}

// A wire may have two ends, and must exist.
int CheckWireEnd(const CNetList* netlist, int tableNumber, const std::string& value,
                 std::optional<int> exceptRow) {
    if (value != "(none)" && netlist && WireUses(*netlist, value, tableNumber, exceptRow) >= 2)
        return code::WireUsedTwice;
    const Table* wires = netlist ? netlist->GetTable(table::Wire) : nullptr;
    if (!wires || CountMatches(wires->gridarray(), {{value, 0}}) < 1)
        return code::NoWire;
    return 0;
}

} // namespace

CSpliceTable::CSpliceTable(ProgramState& state) : DataTable(state, table::Splice, 110, 4) {
    AddFieldDef(NewFieldDef(field_type::Integer, true, 5, Int(1), Int(2047)));
    AddFieldDef(NewFieldDef(field_type::Text, true, 12));
}

int CSpliceTable::FieldRule(int column, std::string& value, const EditRow& row) {
    return column == 1 ? CheckWireEnd(netlist(), table::Splice, value, row.row) : 0;
}

ConfirmTexts CSpliceTable::Confirmations() const {
    return {"Clear Splices Table?", "Delete Splice Record?", "Delete Splice Records?"};
}

std::optional<KeyStart> CSpliceTable::KeyRow(int key, int currentRow) const {
    const Grid& grid = gridarray();
    const int from = grid.Contains(currentRow, 0) ? currentRow : grid.Rows();
    const std::string number = from > 0 ? vb::Trim(grid.Text(from, 0)) : "0";
    if (key == key::F5)
        return KeyStart{{NextName(number)}, 1, std::nullopt};
    if (key == key::F6)
        return KeyStart{{from > 0 ? number : "0"}, 1, std::nullopt};
    return std::nullopt;
}

CComponentTable::CComponentTable(ProgramState& state) : DataTable(state, table::Component, 50, 10) {
    AddFieldDef(NewFieldDef(field_type::Text, true, 12));
    AddFieldDef(NewFieldDef(field_type::Integer, true, 3, Int(1), Int(999)));
    AddFieldDef(NewFieldDef(field_type::Text, true, 12));
    AddFieldDef(NewFieldDef(field_type::Text, true, 12));
    AddFieldDef(NewFieldDef(field_type::Integer, false, 5, Int(0), Int(99999)));
    AddFieldDef(NewFieldDef(field_type::Integer, false, 2, Int(0), Int(99)));
    AddFieldDef(NewFieldDef(field_type::Integer, false, 2, Int(0), Int(99)));
    AddFieldDef(NewFieldDef(field_type::Integer, true, 2, Int(0), Int(15)));
}

bool CComponentTable::ComponentExists(const std::string& name) const {
    const std::string wanted = vb::UCase(name);
    const auto& devices = state().DeviceList;
    for (std::size_t i = 1; i <= devices.Count(); ++i)
        if (devices.Item(i)->ComponentName == wanted)
            return true;
    return false;
}

std::string CComponentTable::SideStatus(const std::string& type, int column) const {
    if (!ComponentExists(type))
        return "Component Not Specified/Does Not Exist";
    return state().GetComponentSide(vb::UCase(type), column - 1);
}

std::vector<std::string> CComponentTable::FillComponentValueItems() const {
    std::vector<std::string> items;
    const auto& devices = state().DeviceList;
    for (std::size_t i = 1; i <= devices.Count(); ++i)
        items.push_back(devices.Item(i)->ComponentName);
    return items;
}

int CComponentTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if (column == 0)
        return ComponentExists(value) ? 0 : code::NoComponent;
    if (column == 2 || column == 3)
        return CheckWireEnd(netlist(), table::Component, value, row.row);
    return 0;
}

ConfirmTexts CComponentTable::Confirmations() const {
    return {"Clear Components Table?", "Delete Component Record?", "Delete Component Records?"};
}

} // namespace zolt
