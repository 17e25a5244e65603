#include "tables/component_table.h"

#include "core/program_state.h"
#include "core/table_kinds.h"
#include "tables/data_validation.h"
#include "tables/wire_uses.h"

namespace zolt {
namespace {

Value Int(int v) {
    return Value(static_cast<std::int32_t>(v));
}

const TableSpec& componentSpec() {
    namespace c = component_column;
    static const TableSpec descriptor{
        .id = table::Component,
        .columns = ColumnsOf(
            c::kCaptions,
            {{c::DeviceType,
              {.field = NewFieldDef(field_type::Text, true, 12), .kind = CellKind::List}},
             {c::Number, TypedColumn(NewFieldDef(field_type::Integer, true, 3, Int(1), Int(999)))},
             {c::Wire1, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
             {c::Wire2, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
             {c::Value,
              TypedColumn(NewFieldDef(field_type::Integer, false, 5, Int(0), Int(99999)))},
             {c::LowerTol,
              TypedColumn(NewFieldDef(field_type::Integer, false, 2, Int(0), Int(99)))},
             {c::UpperTol,
              TypedColumn(NewFieldDef(field_type::Integer, false, 2, Int(0), Int(99)))},
             {c::Parameter,
              TypedColumn(NewFieldDef(field_type::Integer, true, 2, Int(0), Int(15)))},
             {c::Sequence, HiddenColumn()},
             {c::Netlist, HiddenColumn()}})};
    return descriptor;
}

} // namespace

CComponentTable::CComponentTable(ProgramState& state) : DataTable(state, componentSpec()) {}

bool CComponentTable::ComponentExists(const std::string& name) const {
    const std::string wanted = vb::UCase(name);
    const auto& devices = state().project().DeviceList;
    for (std::size_t i = 1; i <= devices.Count(); ++i)
        if (devices.Item(i)->ComponentName == wanted)
            return true;
    return false;
}

std::string CComponentTable::SideStatus(const std::string& type, int column) const {
    if (!ComponentExists(type))
        return "Component Not Specified/Does Not Exist";
    // Wire 1 is side 1, Wire 2 side 2.
    return state().project().GetComponentSide(vb::UCase(type),
                                              column - component_column::Wire1 + 1);
}

std::vector<std::string> CComponentTable::FillComponentValueItems() const {
    std::vector<std::string> items;
    const auto& devices = state().project().DeviceList;
    for (std::size_t i = 1; i <= devices.Count(); ++i)
        items.push_back(devices.Item(i)->ComponentName);
    return items;
}

ErrorCode CComponentTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if (column == component_column::DeviceType)
        return ComponentExists(value) ? code::None : code::NoComponent;
    if (column == component_column::Wire1 || column == component_column::Wire2)
        return CheckWireEnd(netlist(), table::Component, value, row.row);
    return code::None;
}

ConfirmTexts CComponentTable::Confirmations() const {
    return {"Clear Components Table?", "Delete Component Record?", "Delete Component Records?"};
}

} // namespace zolt
