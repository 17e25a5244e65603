#pragma once

#include "tables/data_table.h"

#include <string>
#include <vector>

namespace zolt {

// The devices wired between two wires, with value and tolerances.
class CComponentTable final : public DataTable {
public:
    explicit CComponentTable(ProgramState& state);

    // The device kind is one of ZOLT.DEV (compared in upper case).
    bool ComponentExists(const std::string& name) const;
    // The status text of a Wire 1/Wire 2 cell: the side's name for the device kind.
    std::string SideStatus(const std::string& type, int column) const;
    std::vector<std::string> FillComponentValueItems() const;

    ConfirmTexts Confirmations() const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
};

} // namespace zolt
