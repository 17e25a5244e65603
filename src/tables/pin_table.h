#pragma once

#include "tables/data_table.h"

#include <string>

namespace zolt {

// Which wire lands on which connector pin: the centre of a netlist.
class CPinTable final : public DataTable {
public:
    explicit CPinTable(ProgramState& state);

    bool PinIsUnconnected(const std::string& connector, const std::string& pin) const;

    ErrorCode ResolveCellCode(int column, ErrorCode code, EditRow& row) override;
    ConfirmTexts Confirmations() const override;
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
    bool IsSilentCode(ErrorCode code) const override;
    bool StopsRecord(ErrorCode code) const override;
};

} // namespace zolt
