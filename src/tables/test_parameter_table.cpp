#include "tables/test_parameter_table.h"

#include "core/table_kinds.h"
#include "tables/data_validation.h"

namespace zolt {

namespace {

// The measures show as "##0.00".
ColumnSpec measure(int maxLength, double low, double high) {
    return {.field = NewFieldDef(field_type::Decimal, true, maxLength, Value(low), Value(high)),
            .format = CellFormat::TwoDecimals};
}

const TableSpec& testParameterSpec() {
    namespace c = test_parameter_column;
    static const TableSpec descriptor{
        .id = table::TestParameter,
        .columns = ColumnsOf(c::kCaptions,
                             {{c::Value, TypedColumn(NewFieldDef(field_type::Text, true, 50))},
                              {c::TestVoltage, measure(5, 2.0, 12.0)},
                              {c::TestCurrent, measure(4, 0.04, 6.0)},
                              {c::Threshold1, measure(5, 0.0, 10.0)},
                              {c::Threshold2, measure(5, 0.0, 10.0)},
                              {c::Sequence, HiddenColumn()},
                              {c::Netlist, HiddenColumn()}})};
    return descriptor;
}

} // namespace

CTestParameterTable::CTestParameterTable(ProgramState& state)
    : DataTable(state, testParameterSpec()) {}

std::optional<std::string> CTestParameterTable::Refusal(TableCommand command) const {
    switch (command) {
    case TableCommand::Add:
        return "Add line not permitted in Test Parameter table";
    case TableCommand::Insert:
        return "Insert line not permitted in Test parameter table";
    case TableCommand::Delete:
        return "Delete line not permitted in Test Parameter table";
    case TableCommand::Clear:
        break;
    }
    return std::nullopt;
}

ConfirmTexts CTestParameterTable::Confirmations() const {
    return {"Clear Test Parameter Table?", "Delete Test Parameter Record?",
            "Delete Test Parameter Records?"};
}

} // namespace zolt
