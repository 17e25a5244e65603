#include "tables/code_table.h"

#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"

namespace zolt {

namespace {

const TableSpec& codeSpec() {
    namespace c = code_column;
    using A = ButtonAction;
    static const TableSpec descriptor{
        .id = table::Code,
        .columns = ColumnsOf(
            c::kCaptions,
            {{c::NetlistName, TypedColumn(NewFieldDef(field_type::Text, true, 12, {}, {}, 3))},
             {c::Command,
              {.field = NewFieldDef(field_type::Text, true, 12, {}, {}, 3),
               .kind = CellKind::List}},
             {c::Parameters, TypedColumn(NewFieldDef(field_type::Text, false, 24, {}, {}, 3))},
             {c::BaseStripeColor, TypedColumn(NewFieldDef(field_type::Text, false, 50, {}, {}, 3))},
             {c::Sequence, HiddenColumn()},
             {c::Netlist, HiddenColumn()}}),
        .buttons = {{"cmdRename", "&Rename Netlist", "Rename Netlist name", A::Rename},
                    {"cmdSame", "&Same", "Same Netlist name (F5)", A::FunctionKey, 5}},
        .lineButtons = {"&Add", "&Ins", "&Del"}};
    return descriptor;
}

} // namespace

CCodeTable::CCodeTable(ProgramState& state) : DataTable(state, codeSpec()) {}

const std::vector<std::string>& CCodeTable::Codes() {
    static const std::vector<std::string> codes = {
        "BCM", "BLK",  "BRK", "CAP", "DIO",  "DIOM", "GPB", "GPE", "KEL",  "KELG", "LBL", "LOHM",
        "NET", "PCAP", "PCM", "POL", "RESM", "RPR",  "SPL", "UNC", "UNET", "WCM",  "WED"};
    return codes;
}

bool CCodeTable::IsLastNameUse(const std::string& name) const {
    return CountMatches(*this, {{name, code_column::NetlistName}}) == 1;
}

void CCodeTable::Rename(int row) {
    if (!gridarray().Contains(row, 0))
        return;
    const std::string oldName = vb::Trim(gridarray().Text(row, code_column::NetlistName));
    auto answer = ui().Ask({"Rename Netlist", "Enter a New Name for the Netlist", oldName});
    std::string newName = vb::Trim(answer.value_or(""));
    if (vb::UCase(newName) == kManualNetlists) {
        ui().Message("Netlist Name is Reserved!", kAppTitle, Buttons::Ok, Icon::Warning);
        newName.clear();
    }
    if (newName.empty())
        return;
    Grid& grid = gridarray();
    for (int r = 1; r <= grid.Rows(); ++r)
        if (vb::Trim(grid.Text(r, code_column::NetlistName)) == oldName)
            grid.Set(r, code_column::NetlistName, Value(newName));
    if (Table* sequence = MainTable(table::Sequence))
        sequence->RenameNetlist(oldName, newName);
    state().project().Assembly.RenameNetlist(oldName, newName);
    state().SetDirty(true);
}

ErrorCode CCodeTable::CheckRecord(int& column, int mode, EditRow& row) {
    const ErrorCode result = DataTable::CheckRecord(column, mode, row);
    if (result != code::None || (mode & check_mode::SkipRecord))
        return result;
    const std::string name = vb::Trim(row.Cell(code_column::NetlistName));
    if (state().project().FindNetlist(name) ||
        state().project().CompileLabels.count(vb::UCase(name)) ||
        state().project().CompileLabels.count(name)) {
        ui().Message("Only Unique Names Are Allowed", "Duplicate Name");
        column = code_column::NetlistName;
        return code::CellRefused;
    }
    return code::None;
}

bool CCodeTable::DeleteRecord(int row) {
    const std::string name = vb::Trim(gridarray().Text(row, code_column::NetlistName));
    if (IsLastNameUse(name)) {
        if (const Table* sequence = MainTable(table::Sequence)) {
            const Grid& grid = sequence->gridarray();
            for (int r = 1; r <= grid.Rows(); ++r)
                if (vb::UCase(vb::Trim(grid.Text(r, sequence_column::Parameter))) ==
                    vb::UCase(name)) {
                    ui().Message("All occurrences of '" + name +
                                     "' in the Sequence Table must be \nremoved before deleting '" +
                                     name + "'.",
                                 kAppTitle);
                    return false;
                }
        }
    }
    if (!Confirm("Delete Manual Netlist Records?"))
        return false;
    RemoveRow(row);
    return true;
}

ConfirmTexts CCodeTable::Confirmations() const {
    return {"Clear MANUAL NETLISTS Table?", "Delete MANUAL NETLISTS Record?",
            "Delete Manual Netlist Records?"};
}

std::optional<KeyStart> CCodeTable::KeyRow(int key, int /*currentRow*/) const {
    if (key != key::F5)
        return std::nullopt;
    const Grid& grid = gridarray();
    return KeyStart{{grid.Rows() > 0 ? vb::Trim(grid.Text(grid.Rows(), 0)) : "1"}, 1, std::nullopt};
}

} // namespace zolt
