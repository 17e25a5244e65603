#pragma once

#include "tables/data_table.h"

#include <cstdint>
#include <string>

namespace zolt {

class CSystemSequenceTable;

// The test program: up to 1024 analyzer commands with one parameter each, on
// MAIN. Branch parameters point at line numbers of the same table and follow
// their lines through inserts and deletes.
// The box of sequence records past the limit, with the line numbers of the
// first and the last of them.
std::string TooManyLinesText(int firstLine, int lastLine);

class CSequenceTable : public DataTable {
public:
    static constexpr int kMaxLines = KindOf(table::Sequence).recordLimit;

    explicit CSequenceTable(ProgramState& state);

    // Stores one line as read from a file or an import; false (with a box) for
    // a row beyond the limit. The description is rebuilt, never taken.
    bool AddRecord_v1(int row, std::int16_t lineNumber, const std::string& command,
                      const std::string& parameter, const std::string& description,
                      const std::string& version, std::int32_t longValue, std::int16_t shortValue);
    // The generic form: line, command, parameter, description, version, long, short.
    void AddRecord_v1(int row, const std::vector<Value>& fields) override;
    bool PlacesRecordsOnly() const override { return false; }

    void UpdateSequenceNumbers();
    // Rebuilds the description of every message line from the Message table.
    void UpdateMessages();
    void MessagesChanged() override { UpdateMessages(); }
    // Every parameter that spells the old name, whatever its command, takes the new one.
    void RenameNetlist(const std::string& oldName, const std::string& newName) override;

    // Whether the caret skips the parameter once this command is chosen: the
    // commands without a parameter (types 0 and 6).
    bool SkipsParameter(const std::string& command) const;
    // The argument type of the command of a stored row; -1 when unknown.
    int LineType(int row) const;
    // Deletes a line and keeps the branches on their lines; `ask` puts the
    // question first. False when nothing was deleted.
    bool DeleteLine(int row, bool ask);

    // What typing a key into a cell leaves: the key, upper-cased when the
    // parameter says so, or 0 when swallowed. Parameters of number, branch and
    // message lines take digits only (and Backspace and Tab); a command that
    // takes no parameter takes no key there.
    int KeyPress(int column, int commandType, int key) const;
    using DataTable::KeyPress;

    // --- The framework's hooks ---
    ErrorCode CheckField(int column, std::string& value, int mode, const EditRow& row) override;
    ErrorCode CheckRecord(int& column, int mode, EditRow& row) override;
    void AfterCellCommitted(int column, EditRow& row) override;
    void AfterCommit(int gridRow, const EditRow& row) override;
    void AfterRowsInserted(int row, int count) override;
    void AfterInsertAbandoned(int row) override;
    void AfterRowsDeleted(const std::vector<std::vector<std::string>>& removed) override;
    std::optional<std::string> Refusal(TableCommand command) const override;
    ConfirmTexts Confirmations() const override;
    bool DeleteRecord(int row) override;

private:
    const CSystemSequenceTable* dictionary() const;
    int typeOf(const std::string& command) const;
    std::string descriptionFor(const std::string& command, const std::string& parameter) const;
    // The parameter check of a line with this command.
    ErrorCode checkParameter(const std::string& command, const std::string& text, bool show) const;
    ErrorCode checkNetlistName(const std::string& text, bool show) const;
    ErrorCode refuse(ErrorCode code, const std::string& text, bool show) const;
};

} // namespace zolt
