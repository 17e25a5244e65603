#include "tables/test_parameter_table.h"

#include "core/table_kinds.h"
#include "tables/data_validation.h"

namespace zolt {

CTestParameterTable::CTestParameterTable(ProgramState& state)
    : DataTable(state, table::TestParameter, 90, 7) {
    AddFieldDef(NewFieldDef(field_type::Text, true, 50));
    AddFieldDef(NewFieldDef(field_type::Decimal, true, 5, Value(2.0), Value(12.0)));
    AddFieldDef(NewFieldDef(field_type::Decimal, true, 4, Value(0.04), Value(6.0)));
    AddFieldDef(NewFieldDef(field_type::Decimal, true, 5, Value(0.0), Value(10.0)));
    AddFieldDef(NewFieldDef(field_type::Decimal, true, 5, Value(0.0), Value(10.0)));
}

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
