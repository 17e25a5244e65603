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
    case 0:
        return CountMatches(*this, {{value, 0}}, row.row) > 0 ? code::Duplicate : code::None;
    case 1:
    case 3:
        return ConnectorExists(netlist(), value) ? code::None : code::NoConnector;
    case 2:
    case 4: {
        // Each end is checked against its own columns, then against the other end.
        const int connectorColumn = column - 1;
        const std::string& connector = row.Cell(connectorColumn);
        const int otherColumn = column == 2 ? 3 : 1;
        if (CountMatches(*this, {{connector, connectorColumn}, {value, column}}, row.row) > 0)
            return code::DuplicatePin;
        if (connector == row.Cell(otherColumn) && value == row.Cell(otherColumn + 1))
            return code::DuplicatePin;
        const Table* pins = SiblingTable(table::Pin);
        if (!pins || CountMatches(*pins, {{connector, 0}, {value, 1}}) == 0)
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
