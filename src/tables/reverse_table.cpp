#include "tables/reverse_table.h"

#include "core/program_state.h"
#include "core/table_kinds.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"

namespace zolt {

namespace {

const TableSpec& reverseSpec() {
    namespace c = reversible_column;
    const auto end = [] { return TypedColumn(NewFieldDef(field_type::Text, true, 12)); };
    static const TableSpec descriptor{
        .id = table::Reversible,
        .columns = ColumnsOf(c::kCaptions,
                             {{c::Number, TypedColumn(NewFieldDef(field_type::Integer, true, 3,
                                                                  Value(std::int32_t{1}),
                                                                  Value(std::int32_t{999})))},
                              {c::Connector1, end()},
                              {c::Pin1, end()},
                              {c::Connector2, end()},
                              {c::Pin2, end()},
                              {c::Sequence, HiddenColumn()},
                              {c::Netlist, HiddenColumn()}})};
    return descriptor;
}

} // namespace

CReverseTable::CReverseTable(ProgramState& state) : DataTable(state, reverseSpec()) {}

ErrorCode CReverseTable::FieldRule(int column, std::string& value, const EditRow& row) {
    switch (column) {
    case reversible_column::Number:
        return CountMatches(*this, {{value, reversible_column::Number}}, row.row) > 0
                   ? code::Duplicate
                   : code::None;
    case reversible_column::Connector1:
    case reversible_column::Connector2:
        return ConnectorExists(netlist(), value) ? code::None : code::NoConnector;
    case reversible_column::Pin1:
    case reversible_column::Pin2: {
        // Each end is checked against its own columns, then against the other end.
        namespace c = reversible_column;
        const bool first = column == c::Pin1;
        const int connectorColumn = first ? c::Connector1 : c::Connector2;
        const std::string& connector = row.Cell(connectorColumn);
        if (CountMatches(*this, {{connector, connectorColumn}, {value, column}}, row.row) > 0)
            return code::DuplicatePin;
        if (connector == row.Cell(first ? c::Connector2 : c::Connector1) &&
            value == row.Cell(first ? c::Pin2 : c::Pin1))
            return code::DuplicatePin;
        const Table* pins = SiblingTable(table::Pin);
        if (!pins || CountMatches(*pins, {{connector, pin_column::Connector},
                                          {value, pin_column::Pin}}) == 0)
            return code::NotInPinTable;
        return code::None;
    }
    default:
        return code::None;
    }
}

bool CReverseTable::StopsRecord(ErrorCode code) const {
    return code != code::None && code != code::NotInPinTable;
}

ErrorCode CReverseTable::ResolveCellCode(int /*column*/, ErrorCode code, EditRow& /*row*/) {
    if (code != code::NotInPinTable)
        return code;
    state().SetStatusText("Connector/Pin Does Not Exist in Pin Table");
    return code::None;
}

ConfirmTexts CReverseTable::Confirmations() const {
    return {"Clear Reversible Pairs Table?", "Delete Reverse Record?",
            "Delete Reversible Records?"};
}

} // namespace zolt
