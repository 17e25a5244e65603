#pragma once

#include "tables/data_table.h"

#include <string>
#include <vector>

namespace zolt {

// The switches of the connectors: rows follow Switches Qty of the Connector
// table; the user edits names and commons only.
class CSwitchesTable final : public DataTable {
public:
    explicit CSwitchesTable(ProgramState& state);

    // Makes the connector have `count` switches.
    void AddNewSwitch(const std::string& connector, int count);
    // Names for `count` more switches of the connector. With `names` they are
    // only collected there; without, the rows are appended.
    void GetExtraSwitchNames(const std::string& connector, int count,
                             std::vector<std::string>* names = nullptr);
    // Removes the connector's switches: as many rows as it has, from its first.
    void RemoveConnectorSwitches(const std::string& connector);
    void RenameConnector(const std::string& oldName, const std::string& newName, bool& renamed);

    std::optional<std::string> Refusal(TableCommand command) const override;
    ConfirmTexts Confirmations() const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
};

} // namespace zolt
