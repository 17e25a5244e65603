#pragma once

#include "tables/data_table.h"

namespace zolt {

// Wires joined at splices: one row per wire on a splice number.
class CSpliceTable final : public DataTable {
public:
    explicit CSpliceTable(ProgramState& state);

    ConfirmTexts Confirmations() const override;
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
};

} // namespace zolt
