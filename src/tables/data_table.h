#pragma once

#include "core/netlist.h"
#include "core/table.h"
#include "tables/edit_row.h"
#include "tables/field_def.h"
#include "tables/table_descriptor.h"
#include "tables/table_indexes.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt {

class CParamList;
class Ui;

// The F-keys of the table windows.
namespace key {
inline constexpr int F5 = 5;
inline constexpr int F6 = 6;
inline constexpr int F7 = 7;
inline constexpr int F8 = 8;
} // namespace key

// Commands of the main frame a table may refuse outright.
enum class TableCommand { Add, Insert, Delete, Clear };

// The confirmations of a table's clear, single delete and multi-delete.
struct ConfirmTexts {
    std::string clearTable;
    std::string deleteRecord;
    std::string deleteRecords;
};

// What an F-key of a table window starts: a new row with these cells filled,
// typing going on at `column`; `insertAt` puts the row above that row instead
// of at the end.
struct KeyStart {
    std::vector<std::string> cells;
    int column = 0;
    std::optional<int> insertAt;
};

// The common shape of every editable table: one field definition per visible
// column, the cell and record checks, and the hooks through which a table
// answers what its window does around an edit. The editing itself lives in
// TableEditor, which works on any DataTable.
class DataTable : public Table {
public:
    // `descriptor` outlives the table: each kind keeps its own for the program's run.
    DataTable(ProgramState& state, const TableSpec& descriptor);

    const TableSpec& Descriptor() const { return descriptor_; }
    // Field definitions by 1-based position; nullptr where there is none.
    const CFieldDef* FieldDef(int position) const;
    // The columns the user sees and types: those with a field definition.
    int FieldCount() const { return fieldCount_; }

    // Validates one cell; `value` may be rewritten. `row.row` is left out of
    // uniqueness counts. Shows the message unless mode has check_mode::Silent.
    virtual ErrorCode CheckField(int column, std::string& value, int mode, const EditRow& row);
    // Validates the data columns of the row in order, silently, stopping at the
    // first failure (its column goes to `column`); one message at the end.
    // Rewrites made by CheckField are kept in `row`.
    virtual ErrorCode CheckRecord(int& column, int mode, EditRow& row);

    // An open edit of an existing row, and of a new one.
    EditRow RowForEdit(int row) const;
    EditRow NewEditRow() const;
    // The trimmed texts of the data columns of a stored row.
    std::vector<std::string> RowTexts(int row) const;

    // --- What the table's window does around an edit ---
    // Runs before the checks when a cell of any row is left, before
    // BeforeLeaveNewCell; code::CellRefused abandons the edit.
    virtual ErrorCode BeforeLeaveCell(int /*column*/, EditRow& /*row*/) { return code::None; }
    // Filters a character typed into a column: 0 (key possibly changed) or
    // kKeyRefused. By default the column's field definition decides.
    virtual int KeyPress(int column, char32_t& key, std::string_view text);
    // Runs before the checks when a cell of a new row is left; code::CellRefused
    // abandons the row.
    virtual ErrorCode BeforeLeaveNewCell(int /*column*/, EditRow& /*row*/) { return code::None; }
    // The window's answer to a failing cell: status texts, detail dialogs.
    // None accepts the cell.
    virtual ErrorCode ResolveCellCode(int /*column*/, ErrorCode code, EditRow& /*row*/) {
        return code;
    }
    // False when no new row may be committed (the box is shown here).
    virtual bool CanCommitNewRow() { return true; }
    // After a cell passed its check and was taken into the open row.
    virtual void AfterCellCommitted(int /*column*/, EditRow& /*row*/) {}
    // After a row was stored at `gridRow`.
    virtual void AfterCommit(int /*gridRow*/, const EditRow& /*row*/) {}
    // After `count` empty rows were inserted at `row` by the insert command.
    virtual void AfterRowsInserted(int /*row*/, int /*count*/) {}
    // An inserted row whose edit was abandoned has been taken out again.
    virtual void AfterInsertAbandoned(int /*row*/) {}
    // After rows were deleted; their texts, highest row first.
    virtual void AfterRowsDeleted(const std::vector<std::vector<std::string>>& /*removed*/) {}
    // The stop box of a command the table never allows; nullopt when allowed.
    virtual std::optional<std::string> Refusal(TableCommand /*command*/) const {
        return std::nullopt;
    }
    virtual ConfirmTexts Confirmations() const { return {}; }
    // The grid's delete of the current row, confirmation included; false when
    // nothing was deleted.
    virtual bool DeleteRecord(int row);
    // An F-key of the window on the current row; nullopt when the key does nothing.
    virtual std::optional<KeyStart> KeyRow(int /*key*/, int /*currentRow*/) const {
        return std::nullopt;
    }

    // The hidden column that takes the owning netlist's index: the last one,
    // unless the table keeps display columns behind it.
    virtual int NetlistColumn() const { return gridColumns() - 1; }

    void Destroy() override;

    // The counts the rules ask, kept in step with the rows.
    TableIndexes& Indexes() const { return indexes_; }

protected:
    // The table's own rule for a column, run once the field check passed.
    virtual ErrorCode FieldRule(int /*column*/, std::string& /*value*/, const EditRow& /*row*/) {
        return code::None;
    }
    // Codes returned without a message. By default those without a text.
    virtual bool IsSilentCode(ErrorCode code) const;
    // Whether a code stops CheckRecord; some tables let signals pass.
    virtual bool StopsRecord(ErrorCode code) const { return code != code::None; }

    // The table of the same netlist with that number.
    Table* SiblingTable(TableId tableIndex) const;
    template <typename T> T* Sibling(TableId tableIndex) const {
        return dynamic_cast<T*>(SiblingTable(tableIndex));
    }
    // A project-wide table: the one on MAIN.
    Table* MainTable(TableId tableIndex) const;
    CParamList& params() const;
    Ui& ui() const;
    // The netlist index written into the hidden `Netlist` column of new rows.
    int OwnerIndex() const;
    // Asks OK/Cancel with the program's title; true for OK.
    bool Confirm(const std::string& text) const;
    // Deletes a row and runs the follow-up of the table.
    void RemoveRow(int row);

private:
    const TableSpec& descriptor_;
    int fieldCount_;
    mutable TableIndexes indexes_{*this};
};

} // namespace zolt
