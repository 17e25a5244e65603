#pragma once

#include "core/ports/ui.h"
#include "tables/data_table.h"
#include "tables/match_index.h"

#include <optional>
#include <string>

namespace zolt {

// The connectors of a netlist: name, pins, switches, lamp and grid location.
class CConnectorTable final : public DataTable, private TableListener {
public:
    explicit CConnectorTable(ProgramState& state);
    ~CConnectorTable() override;

    // Pins Qty of the first connector of that name; 0 when there is none.
    int GetMaxPins(const std::string& name) const;
    std::string FormatField(int column, const Value& value) const;
    // The "Add New Connector" dialog for a name a row refers to, proposing
    // room for `pin`, the pin being added: Ok when a row was added, Cancel when not.
    Answer ShowDetail(const std::string& name, const std::string& pin = {});

    ErrorCode BeforeLeaveNewCell(int column, EditRow& row) override;
    void AfterCommit(int gridRow, const EditRow& row) override;
    void AfterRowsDeleted(const std::vector<std::vector<std::string>>& removed) override;
    ConfirmTexts Confirmations() const override;
    std::optional<KeyStart> KeyRow(int key, int currentRow) const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;

private:
    void TableAboutToChange(const GridChange& change) override;
    void TableChanged(const GridChange& change) override;

    // Pins Qty by name, of each name's first row: a check asks once per pin
    // row, so it is built on the first question and dropped at any change.
    mutable std::optional<TextMap<int>> pinsByName_;
    // Between the start and end of a load the rows change unheard.
    bool loading_ = false;
};

// True when the netlist's Connector table has a row of that name.
bool ConnectorExists(const CNetList* netlist, const std::string& name);

// True (after the box) when a new row names connector "0" while switches
// share one common: that name is reserved for the common's connector.
bool RefuseReservedConnector(ProgramState& state, const std::string& text);

} // namespace zolt
