#include "tables/wire_table.h"

#include "core/ports/detail_dialogs.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "tables/color_table.h"
#include "tables/data_validation.h"
#include "tables/table_editor.h"

namespace zolt {

bool ResolveColorCell(CColorTable* colors, ProgramState& state, std::string& value, bool ask) {
    const std::string text = vb::Trim(value);
    // Typing turns letters to capitals: "(NONE)" is still the entry for no color.
    if (vb::UCase(text) == vb::UCase(kNoColor)) {
        value = kNoColor;
        return true;
    }
    if (text.empty() || vb::IsNumeric(std::string_view(text)) || !colors)
        return true;
    if (const int id = colors->GetColorID(text); id != 0) {
        value = std::to_string(id);
        return true;
    }
    if (!ask)
        return false;
    if (!colors->HasRoomForColor())
        return false;
    if (state.ui().Message("Add '" + text + "' as a New Color?", "Color not defined",
                           Buttons::YesNo, Icon::Question) != Answer::Yes)
        return false;
    const int id = colors->AddNewColor(text);
    if (id == 0)
        return false;
    value = std::to_string(id);
    return true;
}

void PlaceColoredRecord(std::span<Value> row, std::vector<Value>& fields,
                        std::initializer_list<std::size_t> fieldOf,
                        std::initializer_list<std::size_t> colorColumns) {
    std::size_t column = 0;
    for (const std::size_t field : fieldOf) {
        if (column >= row.size())
            break;
        Value& cell = row[column++];
        cell = field < fields.size() ? std::move(fields[field]) : Value();
        TrimText(cell);
    }
    for (const std::size_t c : colorColumns) {
        const auto* text = c < row.size() ? std::get_if<std::string>(&row[c].storage()) : nullptr;
        if (text && *text == "---")
            row[c] = Value(kNoColor);
    }
}

namespace {

const TableSpec& wireSpec() {
    namespace c = wire_column;
    static const TableSpec descriptor{
        .id = table::Wire,
        .columns = ColumnsOf(c::kCaptions,
                             {{c::Wire, TypedColumn(NewFieldDef(field_type::Text, true, 12))},
                              {c::BaseColor, ColorColumn()},
                              {c::StripeColor, ColorColumn()},
                              {c::Sequence, HiddenColumn()},
                              {c::Netlist, HiddenColumn()}}),
        .find = FindForm{"Find in Wires Table", {{"All", {}}, {"Wire", {c::Wire}}}}};
    return descriptor;
}

} // namespace

CWireTable::CWireTable(ProgramState& state) : DataTable(state, wireSpec()) {}

void CWireTable::PlaceRecord(std::span<Value> row, std::vector<Value>& fields) const {
    PlaceColoredRecord(row, fields, {0, 1, 4, 2, 3}, {1, 2});
}

CColorTable* CWireTable::colors() const {
    return dynamic_cast<CColorTable*>(MainTable(table::Color));
}

int CWireTable::KeyPress(int column, char32_t& key, std::string_view text) {
    return column == wire_column::BaseColor || column == wire_column::StripeColor
               ? ColorCellKeyPress(key, text, FieldDef(column + 1)->MaxLength)
               : DataTable::KeyPress(column, key, text);
}

ErrorCode CWireTable::CheckField(int column, std::string& value, int mode, const EditRow& row) {
    const ErrorCode result = DataTable::CheckField(column, value, mode, row);
    if (result != code::None ||
        (column != wire_column::BaseColor && column != wire_column::StripeColor))
        return result;
    return ResolveColorCell(colors(), state(), value, WantsMessage(mode)) || !WantsMessage(mode)
               ? code::None
               : code::CellRefused;
}

bool CWireTable::resolveColor(std::string& value, bool ask) {
    return ResolveColorCell(colors(), state(), value, ask);
}

ErrorCode CWireTable::FieldRule(int column, std::string& value, const EditRow& row) {
    if (column == wire_column::Wire &&
        CountMatches(*this, {{value, wire_column::Wire}}, row.row) >= 1)
        return code::Duplicate;
    return code::None;
}

Answer CWireTable::ShowDetail(const std::string& name) {
    const std::vector<std::string> colorList =
        colors() ? colors()->ValueItems() : std::vector<std::string>{};
    DetailForm form{
        "Add New Wire",
        {DetailField{"Wire", name, FieldDef(wire_column::Wire + 1)->MaxLength, true, {}},
         DetailField{"Base Color", "", FieldDef(wire_column::BaseColor + 1)->MaxLength, true,
                     colorList},
         DetailField{"Stripe Color", "", FieldDef(wire_column::StripeColor + 1)->MaxLength, true,
                     colorList}}};
    if (!state().details().Fill(form))
        return Answer::Cancel;
    std::string wire = vb::Trim(form.fields[wire_column::Wire].text);
    // The name goes through the column's own check: a blank or taken one adds nothing.
    EditRow named;
    named.SetCell(wire_column::Wire, wire);
    if (CheckField(wire_column::Wire, wire, 0, named) != code::None)
        return Answer::Cancel;
    std::string& base = form.fields[wire_column::BaseColor].text;
    std::string& stripe = form.fields[wire_column::StripeColor].text;
    // A base typed as "base/stripe" carries both.
    if (const auto slash = base.find('/'); slash != std::string::npos) {
        stripe = base.substr(slash + 1);
        base.resize(slash);
    }
    if (!resolveColor(base, true) || !resolveColor(stripe, true))
        return Answer::Cancel;
    TableEditor(*this).AddRowFromDetail({vb::Trim(wire), vb::Trim(base), vb::Trim(stripe)});
    return Answer::Ok;
}

void CWireTable::DeleteWire(int row, bool multi) {
    const std::string wire = vb::Trim(gridarray().Text(row, wire_column::Wire));
    if (multi && netlist()) {
        if (Table* pins = netlist()->GetTable(table::Pin)) {
            Grid& g = pins->gridarray();
            for (int r = 1; r <= g.Rows(); ++r)
                if (vb::Trim(g.Text(r, pin_column::Wire)) == wire)
                    g.Set(r, pin_column::Wire, Value("(none)"));
        }
        // Splice rows by their wire, component rows by their number.
        const std::pair<TableId, int> matched[] = {{table::Splice, splice_column::Wire},
                                                   {table::Component, component_column::Number}};
        for (const auto& [number, column] : matched) {
            Table* t = netlist()->GetTable(number);
            if (!t)
                continue;
            Grid& g = t->gridarray();
            for (int r = g.Rows(); r >= 1; --r)
                if (vb::Trim(g.Text(r, column)) == wire)
                    g.DeleteRows(r, 1);
            t->ReDimGrid(g.Rows(), t->gridColumns());
        }
    }
    RemoveRow(row);
}

bool CWireTable::DeleteRecord(int row) {
    const auto multi =
        state().details().AskWireDelete(vb::Trim(gridarray().Text(row, wire_column::Wire)));
    if (!multi)
        return false;
    DeleteWire(row, *multi);
    return true;
}

ConfirmTexts CWireTable::Confirmations() const {
    return {"Clear Wires Table?", "Delete Wire Record?", "Delete Wire Records?"};
}

} // namespace zolt
