#pragma once

#include "core/grid.h"
#include "core/table_kinds.h"

#include <span>
#include <string>
#include <vector>

namespace zolt {

class CNetList;
class ProgramState;

// Takes the leading and trailing blanks off a text, as tables store the texts
// of a record; other values stay as they are.
void TrimText(Value& value);

// Whoever shows a table's rows: told of every change of them, before and after.
class TableListener {
public:
    virtual void TableAboutToChange(const GridChange& /*change*/) {}
    virtual void TableChanged(const GridChange& change) = 0;

protected:
    ~TableListener() = default;
};

// What every table is at the level of the netlist model: a numbered kind, a
// record type of the program file, and a row store whose two last columns are
// the hidden `Sequence` and `Netlist`. The rules of each kind live in the
// tables layer, which derives from this. Every change of the rows, whoever
// makes it, reaches the listeners and the program's edit history.
class Table : private GridObserver {
public:
    Table(ProgramState& state, TableId tableIndex, int gridColumns);
    virtual ~Table() = default;
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    TableId tableIndex() const { return tableIndex_; }
    int recordType() const { return KindOf(tableIndex_).recordType; }
    int gridColumns() const { return gridColumns_; }

    Grid& gridarray() { return grid_; }
    const Grid& gridarray() const { return grid_; }

    // The program the table belongs to: its parameters, ports and netlists.
    // A table of a loaded project that no program has adopted yet has none.
    ProgramState& state() const { return *state_; }
    // Moves the table to another program (nullptr: to none, rows kept).
    void Adopt(ProgramState* state) { state_ = state; }
    bool IsAdopted() const { return state_ != nullptr; }
    CNetList* netlist() const { return netlist_; }
    void setNetlist(CNetList* netlist) { netlist_ = netlist; }

    // A listener stays until removed; it must go before the table does.
    void AddListener(TableListener& listener);
    void RemoveListener(TableListener& listener);

    virtual void ReDimGrid(int rows, int columns);
    // Stores one whole row without validating it, as the file reader and the
    // importers do. `fields` come in the order of the table's file record
    // arguments; this default takes them in column order (texts trimmed) and
    // grows the store when `row` lies beyond it. Tables whose arguments come in
    // another order override it.
    virtual void AddRecord_v1(int row, const std::vector<Value>& fields);
    // What AddRecord_v1 does to the cells of its row (`row` holds that row's
    // cells, `gridColumns()` of them); it may take the fields' contents. This
    // default is the column-order store described above.
    virtual void PlaceRecord(std::span<Value> row, std::vector<Value>& fields) const;
    // True when AddRecord_v1 only places the record: a file read then builds
    // the block's rows itself and stores them at once. Tables whose
    // AddRecord_v1 checks limits or tells the user say false.
    virtual bool PlacesRecordsOnly() const { return true; }
    // Releases the rows and the back reference; the object then holds nothing.
    virtual void Destroy();
    // Rows stored in bulk (a file read): between the two calls the cells change
    // unheard, then listeners and the edit history hear of it once, as a reset.
    void BeginLoad();
    void EndLoad();
    // A netlist was renamed: tables that refer to netlists by name follow.
    virtual void RenameNetlist(const std::string& /*oldName*/, const std::string& /*newName*/) {}
    // A new netlist's "Link to MAIN": only a fixture table takes its rows from MAIN.
    virtual void SetLinkedToMain(bool /*linked*/) {}
    // The message texts changed: a table that shows them follows.
    virtual void MessagesChanged() {}

private:
    void GridAboutToChange(const GridChange& change) override;
    void GridChanged(const GridChange& change, GridLoss loss) override;

    ProgramState* state_;
    TableId tableIndex_;
    int gridColumns_;
    Grid grid_;
    CNetList* netlist_ = nullptr;
    std::vector<TableListener*> listeners_;
    GridLoss beforeLoad_;
};

// A load of a table's rows for the length of a scope.
class TableLoad {
public:
    explicit TableLoad(Table& table) : table_(table) { table_.BeginLoad(); }
    ~TableLoad() { table_.EndLoad(); }
    TableLoad(const TableLoad&) = delete;
    TableLoad& operator=(const TableLoad&) = delete;

private:
    Table& table_;
};

} // namespace zolt
