#pragma once

#include "tables/data_table.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt {

class Ui;

// What a paste did: pasted rows, and the row and code where it stopped.
struct PasteResult {
    enum class Outcome { Pasted, Stopped, WrongTable, NotCopyData } outcome = Outcome::Pasted;
    int rows = 0;                // rows that passed
    ErrorCode code = code::None; // the failing row's code when stopped
    int failedRow = 0;
    int failedColumn = 0;
};

// A row an F-key opened: its cells as the key fills them, the column typing
// goes on in, and the row the key inserted it at (through the insert hooks).
struct KeyOpening {
    EditRow edit;
    int column = 0;
    std::optional<int> insertedRow;
    bool refused = false; // the table refused the command; its box was shown
};

// The editing a table window does, without the window: a row typed cell by
// cell and committed, insert, delete, copy, cut, paste and clear, with the
// confirmations and follow-ups of the table. Each call is one whole gesture;
// a row that fails is abandoned as Escape abandons it.
class TableEditor {
public:
    explicit TableEditor(DataTable& table) : table_(table) {}

    // A new row at the end, `values` typed into columns 0, 1, … (each cell
    // left in turn), then committed. The first failing code, None when stored.
    ErrorCode AddRow(const std::vector<std::string>& values);
    // Edits one cell of a stored row and commits the row.
    ErrorCode EditCell(int row, int column, const std::string& value);
    // Edits cells of a stored row from `column` on, one after the other, and commits.
    ErrorCode EditCells(int row, int column, const std::vector<std::string>& values);
    // Inserts an empty row above `row`, types `values` into it and commits.
    ErrorCode InsertRow(int row, const std::vector<std::string>& values);
    // An F-key of the window on `currentRow`, then `values` typed from the
    // column the key leaves the cursor in. nullopt when the key does nothing.
    std::optional<ErrorCode> PressKey(int key, int currentRow,
                                      const std::vector<std::string>& values);

    // The delete command on the current row (no selection). False when
    // nothing was deleted.
    bool DeleteCurrent(int row);
    // The delete command on rows picked by their selectors: confirm, then DeleteLines.
    bool DeleteSelected(const std::vector<int>& rows);
    // Deletes the selected rows from the highest down (never row 5000 or above).
    void DeleteLines(const std::vector<int>& rows);

    // Fills the program's CopyData from the rows, in the order given.
    std::vector<std::string> CopyLines(const std::vector<int>& rows);
    // CopyLines then DeleteLines, without asking.
    std::vector<std::string> CutLines(const std::vector<int>& rows);
    // The clipboard's paste: rows inserted at `currentRow`, or after the last
    // row when nullopt (the grid's new-row line). A table that refuses the
    // insert command takes no lines (its box; outcome WrongTable).
    PasteResult Paste(const std::string& clipboard, std::optional<int> currentRow);
    bool ClearTable();
    // Appends the texts of a detail dialog as a new row.
    void AddRowFromDetail(const std::vector<std::string>& texts);

    DataTable& table() const { return table_; }

    // The same gestures one step at a time, for a window that shows the open row.
    // Leaving a cell of the open row with its typed text; the cell's code.
    // A cell that passed has the table's after-cell step run on the row.
    ErrorCode LeaveCell(EditRow& edit, int column, bool newRow);
    // Commits the open row; `insertedRow` is the row the insert command made for it.
    // A refused row names the column its check stopped at in `refusedColumn`.
    ErrorCode CommitRow(EditRow& edit, std::optional<int> insertedRow, int& refusedColumn) {
        return commit(edit, insertedRow, &refusedColumn);
    }
    // The insert command: an empty row above `row`, or nullopt when refused.
    std::optional<int> BeginInsert(int row);
    // An F-key on `currentRow`: the refusal check of the add or insert the key
    // makes, then the row it opens. nullopt when the key does nothing.
    std::optional<KeyOpening> BeginKeyRow(int key, int currentRow);
    // Escape on an inserted row takes it out again.
    void AbandonInsert(int insertedRow);

private:
    bool refused(TableCommand command) const;
    // A table whose lines are fixed: it refuses both insert and delete.
    bool fixedRows() const;
    // Every road that puts an empty row into the table: the insert hooks run here.
    void insertEmptyRow(int row);
    // Types the values from `firstColumn` on; the failing code or None.
    ErrorCode typeCells(EditRow& edit, int firstColumn, const std::vector<std::string>& values,
                        bool newRow);
    // Runs the record check and stores the row; the code.
    ErrorCode commit(EditRow& edit, std::optional<int> insertedRow, int* refusedColumn = nullptr);
    // One gesture: the values typed from `firstColumn`, then the commit; an
    // inserted row that fails goes out again.
    ErrorCode typeAndCommit(EditRow edit, int firstColumn, const std::vector<std::string>& values,
                            std::optional<int> insertedRow);
    void noRowSelected(const std::string& text) const;
    // Every change marks the document modified (the window updates its record count).
    void changed() const;
    // Names the gesture for the Edit menu: "Delete Pin Record".
    void nameStep(const std::string& verb, bool several = false) const;

    DataTable& table_;
};

// Leaving a row or a window while a row is being edited: true when the user
// lets the edit go.
bool ConfirmDiscardEdit(Ui& ui);

// The clipboard text of copied lines: the elements joined with "~".
std::string JoinCopyData(const std::vector<std::string>& copyData);

} // namespace zolt
