#pragma once

#include "tables/data_table.h"

namespace zolt {

// Pairs of connector pins that may be swapped.
class CReverseTable final : public DataTable {
public:
    explicit CReverseTable(ProgramState& state);

    int ResolveCellCode(int column, int code, EditRow& row) override;
    ConfirmTexts Confirmations() const override;

protected:
    int FieldRule(int column, std::string& value, const EditRow& row) override;
    bool StopsRecord(int code) const override;
};

} // namespace zolt
