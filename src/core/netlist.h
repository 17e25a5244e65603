#pragma once

#include "core/grid.h"
#include "core/keyed_collection.h"
#include "core/table.h"
#include "core/table_columns.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace zolt {

class ProgramState;

// One netlist: a table object of every kind, the memory of which of its windows
// were open when the user left its tab, and, on MAIN only, the list of all
// other netlists of the project (`NetlistArray`, its columns `netlist_list_column`).
class CNetList {
public:
    explicit CNetList(ProgramState& state);

    std::string NetlistName;
    std::int32_t netlistIndex = -1;
    std::int16_t NetlistType = 0;
    std::int16_t VisibleCount = 0;
    KeyedCollection<TableId> VisibleTables;
    Grid NetlistArray{0, netlist_list_column::kCount};

    ProgramState& state() const { return *state_; }
    // Moves the netlist and its tables to another program (nullptr: to none).
    void Adopt(ProgramState* state);

    Table* GetTable(TableId id) const;
    std::string GetTableName(TableId id) const;
    int GetTableCount() const { return tableCount_; }
    template <typename T> T* TableAs(TableId id) const { return dynamic_cast<T*>(GetTable(id)); }

    // Creates all 15 tables on MAIN, each pointing back here.
    void InitMainTables();
    // Builds a new netlist with its own tables; the per-netlist ones point to it.
    std::unique_ptr<CNetList> GetNewNetlist(std::int32_t index) const;

    // The smallest free number from 1, appended to `NetlistArray` with `name`.
    std::int32_t AddToNetlistTable(const std::string& name);
    void DeleteFromNetlistTable(std::int32_t index);
    void RenameNetlist(const std::string& oldName, const std::string& newName);
    void ReDimGrid(int rows, int columns);

    void ClearAllNetlistArrays();
    void AddToVisibleCount() { ++VisibleCount; }
    void RemoveFromVisibleCount() { --VisibleCount; }
    void HideVisibleTables();
    void ShowVisibleTables();
    void UnloadAllTables();
    void Destroy();

private:
    ProgramState* state_;
    std::array<std::unique_ptr<Table>, 16> tables_;
    int tableCount_ = 14;
};

} // namespace zolt
