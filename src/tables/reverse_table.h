#pragma once

#include "tables/data_table.h"

namespace zolt {

// Pairs of connector pins that may be swapped.
class CReverseTable final : public DataTable {
public:
    explicit CReverseTable(ProgramState& state);

    ErrorCode ResolveCellCode(int column, ErrorCode code, EditRow& row) override;
    ConfirmTexts Confirmations() const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
    bool StopsRecord(ErrorCode code) const override;
};

} // namespace zolt
