#include "tables/test_parameter_table.h"

#include "core/table_kinds.h"
#include "tables/data_validation.h"

namespace zolt {

namespace {

// The measures show as "##0.00".
ColumnSpec measure(std::string caption, int maxLength, double low, double high) {
    return {.caption = std::move(caption),
            .field = NewFieldDef(field_type::Decimal, true, maxLength, Value(low), Value(high)),
            .format = CellFormat::TwoDecimals};
}

const TableSpec& testParameterSpec() {
    static const TableSpec descriptor{
        .id = table::TestParameter,
        .recordType = 90,
        .columns = {TypedColumn("Value", NewFieldDef(field_type::Text, true, 50)),
                    measure("Test Voltage", 5, 2.0, 12.0), measure("Test Current", 4, 0.04, 6.0),
                    measure("Threshold 1", 5, 0.0, 10.0), measure("Threshold 2", 5, 0.0, 10.0),
                    HiddenColumn("Sequence"), HiddenColumn("Netlist")}};
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
