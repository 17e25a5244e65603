#pragma once

#include "tables/data_table.h"

namespace zolt {

// Connector pins put together under a group identifier, with optional colors.
class CGroupTable final : public DataTable {
public:
    explicit CGroupTable(ProgramState& state);

    // File order: id, connector, pin, base, sequence, netlist, stripe; "---" is no color.
    void PlaceRecord(std::span<Value> row, std::vector<Value>& fields) const override;
    // The color number of the last row's base (column 3) or stripe (column 4).
    int GetLastColor(int column) const;

    ErrorCode CheckField(int column, std::string& value, int mode, const EditRow& row) override;
    int KeyPress(int column, char32_t& key, std::string_view text) override;
    ErrorCode BeforeLeaveNewCell(int column, EditRow& row) override;
    ConfirmTexts Confirmations() const override;
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
};

} // namespace zolt
