#pragma once

#include "core/ports/ui.h"
#include "tables/data_table.h"

#include <string>

namespace zolt {

class CColorTable;

// The wires of a netlist by circuit name, with base and stripe color numbers.
class CWireTable final : public DataTable {
public:
    explicit CWireTable(ProgramState& state);

    // File order: name, base, sequence, netlist, stripe; "---" is no color.
    void PlaceRecord(std::span<Value> row, std::vector<Value>& fields) const override;
    // The "Add New Wire" dialog, asked field by field: Ok when added, Cancel when not.
    Answer ShowDetail(const std::string& name);
    // The "Delete Wire" dialog's OK: with `multi` the wire's uses go first
    // (pins to "(none)", splice rows and component rows deleted).
    void DeleteWire(int row, bool multi);

    ErrorCode CheckField(int column, std::string& value, int mode, const EditRow& row) override;
    int KeyPress(int column, char32_t& key, std::string_view text) override;
    bool DeleteRecord(int row) override;
    ConfirmTexts Confirmations() const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;

private:
    CColorTable* colors() const;
    // Turns a typed color into its number; asks to add an unknown one when
    // `ask`. False when the color stays unknown.
    bool resolveColor(std::string& value, bool ask);
};

// Color cells as the grid stores them: a known color text becomes its number,
// "(none)", "0" and empty stay; an unknown text is offered as a new color
// when `ask`. False when the text stays unknown.
bool ResolveColorCell(CColorTable* colors, ProgramState& state, std::string& value, bool ask);

// Places a record of a table with colors: column c takes field `fieldOf[c]`
// (texts trimmed, null when the record is short); "---" in `colorColumns`, the
// old files' word for no color, becomes "(none)".
void PlaceColoredRecord(std::span<Value> row, std::vector<Value>& fields,
                        std::initializer_list<std::size_t> fieldOf,
                        std::initializer_list<std::size_t> colorColumns);

} // namespace zolt
