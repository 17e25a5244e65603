#pragma once

#include "tables/data_table.h"

#include <string>

namespace zolt {

// The connectors of a netlist: name, pins, switches, lamp and grid location.
class CConnectorTable final : public DataTable {
public:
    explicit CConnectorTable(ProgramState& state);

    // Pins Qty of the first connector of that name; 0 when there is none.
    int GetMaxPins(const std::string& name) const;
    std::string FormatField(int column, const Value& value) const;
    // The "Add New Connector" dialog, asked field by field: 1 when a row was
    // added, 2 when cancelled.
    int ShowDetail(const std::string& name);

    int BeforeLeaveNewCell(int column, EditRow& row) override;
    void AfterCommit(int gridRow, const EditRow& row) override;
    void AfterRowsDeleted(const std::vector<std::vector<std::string>>& removed) override;
    ConfirmTexts Confirmations() const override;
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override;

protected:
    int FieldRule(int column, std::string& value, const EditRow& row) override;
};

// True (after the box) when a new row names connector "0" while switches
// share one common: that name is reserved for the common's connector.
bool RefuseReservedConnector(ProgramState& state, const std::string& text);

// The F-keys of the table windows.
namespace key {
inline constexpr int F5 = 5;
inline constexpr int F6 = 6;
inline constexpr int F7 = 7;
inline constexpr int F8 = 8;
} // namespace key

} // namespace zolt
