#include "tables/pin_table.h"

#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"
#include "tables/wire_table.h"
#include "tables/wire_uses.h"

namespace zolt {
namespace {
constexpr std::string_view kNone = "(none)";

const TableSpec& pinSpec() {
    namespace c = pin_column;
    using A = ButtonAction;
    static const TableSpec descriptor{
        .id = table::Pin,
        .columns = ColumnsOf(c::kCaptions,
                             {{c::Connector, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                              {c::Pin, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                              {c::Wire, TypedColumn(NewFieldDef(field_type::Text, false, 12))},
                              {c::Sequence, HiddenColumn()},
                              {c::Netlist, HiddenColumn()}}),
        .buttons = {{"cmdNextPin", "&Next Pin", "Next pin in same connector (F5)", A::FunctionKey,
                     5},
                    {"cmdSamePin", "&Same Pin", "Same pin in same connector (F6)", A::FunctionKey,
                     6},
                    {"cmdNewPin", "Ne&w Pin", "New pin in same connector (F7)", A::FunctionKey, 7}},
        .find = FindForm{"Find in Pins Table",
                         {{"All", {}},
                          {"Connector", {c::Connector}},
                          {"Connector/Pin", {c::Connector, c::Pin}},
                          {"Wire", {c::Wire}}}}};
    return descriptor;
}

} // namespace

CPinTable::CPinTable(ProgramState& state) : DataTable(state, pinSpec()) {}

bool CPinTable::PinIsUnconnected(const std::string& connector, const std::string& pin) const {
    return CountMatches(*this, {{connector, pin_column::Connector},
                                {pin, pin_column::Pin},
                                {kNone, pin_column::Wire}}) > 0;
}

ErrorCode CPinTable::FieldRule(int column, std::string& value, const EditRow& row) {
    const std::string& connector = row.Cell(pin_column::Connector);
    switch (column) {
    case pin_column::Connector: {
        const Table* connectors = SiblingTable(table::Connector);
        if (!connectors || CountMatches(*connectors, {{value, connector_column::Connector}}) < 1)
            return code::NoConnector;
        return code::None;
    }
    case pin_column::Pin: {
        const auto* connectors = Sibling<CConnectorTable>(table::Connector);
        const int maxPins = connectors ? connectors->GetMaxPins(connector) : 0;
        if (PinIsUnconnected(connector, value))
            return code::PinUnconnected;
        if (CountDistinct(*this, connector, pin_column::Connector, value, pin_column::Pin) >
            maxPins)
            return code::TooManyPins;
        const int rows = CountMatches(
            *this, {{connector, pin_column::Connector}, {value, pin_column::Pin}}, row.row);
        if (rows == 1)
            return code::PinHasOneWire;
        if (rows > 1)
            return code::PinHasTwoWires;
        return code::None;
    }
    case pin_column::Wire: {
        const std::string& pin = row.Cell(pin_column::Pin);
        if (value != kNone && netlist() && WireUses(*netlist(), value, table::Pin, row.row) >= 2)
            return code::WireUsedTwice;
        if (CountMatches(*this,
                         {{connector, pin_column::Connector},
                          {pin, pin_column::Pin},
                          {value, pin_column::Wire}},
                         row.row) >= 1)
            return code::PinWireExists;
        if (value == kNone) {
            if (CountMatches(*this, {{connector, pin_column::Connector}, {pin, pin_column::Pin}},
                             row.row) > 0 &&
                !PinIsUnconnected(connector, pin))
                return code::PinHasWire;
            return code::None;
        }
        const Table* wires = SiblingTable(table::Wire);
        if (!wires || CountMatches(*wires, {{value, wire_column::Wire}}) < 1)
            return code::NoWire;
        return code::None;
    }
    default:
        return code::None;
    }
}

bool CPinTable::IsSilentCode(ErrorCode code) const {
    return code == code::NoConnector || DataTable::IsSilentCode(code);
}

bool CPinTable::StopsRecord(ErrorCode code) const {
    return code != code::None && code != code::PinHasOneWire && code != code::PinHasTwoWires;
}

ErrorCode CPinTable::ResolveCellCode(int /*column*/, ErrorCode code, EditRow& row) {
    switch (code) {
    case code::PinHasOneWire:
        state().SetStatusText("Adding Connector/Pin as Double");
        return code::None;
    case code::PinHasTwoWires:
        state().SetStatusText("Adding Connector/Pin as Multiple");
        return code::None;
    case code::NoConnector: {
        auto* connectors = Sibling<CConnectorTable>(table::Connector);
        return connectors && connectors->ShowDetail(row.Cell(pin_column::Connector),
                                                    row.Cell(pin_column::Pin)) == Answer::Ok
                   ? code::None
                   : code;
    }
    case code::NoWire: {
        auto* wires = Sibling<CWireTable>(table::Wire);
        return wires && wires->ShowDetail(row.Cell(pin_column::Wire)) == Answer::Ok ? code::None
                                                                                    : code;
    }
    default:
        return code;
    }
}

ConfirmTexts CPinTable::Confirmations() const {
    return {"Clear Pins Table?", "Delete Pin Record?", "Delete Pin Records?"};
}

std::optional<KeyStart> CPinTable::KeyRow(int key, int currentRow) const {
    const Grid& grid = gridarray();
    const int from = grid.Contains(currentRow, 0) ? currentRow : grid.Rows();
    const std::string connector = from > 0 ? vb::Trim(grid.Text(from, pin_column::Connector)) : "";
    const std::string pin = from > 0 ? vb::Trim(grid.Text(from, pin_column::Pin)) : "0";
    switch (key) {
    case key::F5:
        return KeyStart{{connector, NextName(pin)}, 2, std::nullopt};
    case key::F6:
        return KeyStart{{connector, pin}, 2, std::nullopt};
    case key::F7:
        return KeyStart{{connector, "1"}, 2, std::nullopt};
    default:
        return std::nullopt;
    }
}

} // namespace zolt
