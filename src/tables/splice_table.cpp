#include "tables/splice_table.h"

#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/connector_table.h"
#include "tables/data_validation.h"
#include "tables/wire_uses.h"

namespace zolt {
namespace {

Value Int(int v) {
    return Value(static_cast<std::int32_t>(v));
}

const TableSpec& spliceSpec() {
    namespace c = splice_column;
    using A = ButtonAction;
    static const TableSpec descriptor{
        .id = table::Splice,
        .columns = ColumnsOf(
            c::kCaptions,
            {{c::Number, TypedColumn(NewFieldDef(field_type::Integer, true, 5, Int(1), Int(2047)))},
             {c::Wire, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
             {c::Sequence, HiddenColumn()},
             {c::Netlist, HiddenColumn()}}),
        .buttons = {{"cmdNext", "&Next", "Next Splice number (F5)", A::FunctionKey, 5},
                    {"cmdSame", "&Same", "Same Splice number (F6)", A::FunctionKey, 6}},
        .find = FindForm{"Find in Splices Table", {{"All", {}}, {"Wire", {c::Wire}}}}};
    return descriptor;
}

} // namespace

CSpliceTable::CSpliceTable(ProgramState& state) : DataTable(state, spliceSpec()) {}

ErrorCode CSpliceTable::FieldRule(int column, std::string& value, const EditRow& row) {
    return column == splice_column::Wire ? CheckWireEnd(netlist(), table::Splice, value, row.row)
                                         : code::None;
}

ConfirmTexts CSpliceTable::Confirmations() const {
    return {"Clear Splices Table?", "Delete Splice Record?", "Delete Splice Records?"};
}

std::optional<KeyStart> CSpliceTable::KeyRow(int key, int currentRow) const {
    const Grid& grid = gridarray();
    const int from = grid.Contains(currentRow, 0) ? currentRow : grid.Rows();
    const std::string number = from > 0 ? vb::Trim(grid.Text(from, splice_column::Number)) : "0";
    if (key == key::F5)
        return KeyStart{{NextName(number)}, 1, std::nullopt};
    if (key == key::F6)
        return KeyStart{{from > 0 ? number : "0"}, 1, std::nullopt};
    return std::nullopt;
}

} // namespace zolt
