#pragma once

#include "tables/data_table.h"

#include <string>
#include <vector>

namespace zolt {

// The hand-made test blocks of the manual netlist: a block name, a test code,
// its parameters and colors.
class CCodeTable final : public DataTable {
public:
    explicit CCodeTable(ProgramState& state);

    // The codes the Command column offers, in the order of its list.
    static const std::vector<std::string>& Codes();

    bool IsLastNameUse(const std::string& name) const;
    // Renames the block of `row` to what the user gives; the sequence follows.
    void Rename(int row);

    // A block a project netlist or compile label already names is refused.
    ErrorCode CheckRecord(int& column, int mode, EditRow& row) override;
    bool DeleteRecord(int row) override;
    ConfirmTexts Confirmations() const override;
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override;
};

} // namespace zolt
