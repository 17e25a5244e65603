#pragma once

#include "tables/data_table.h"

#include <cstdint>
#include <string>

namespace zolt {

class CSystemSequenceTable;

// Codes of a refused parameter. The table shows its own box for each, so the
// common catalogue has no text for them.
namespace sequence_code {
inline constexpr int NoSuchNetlist = 131;
inline constexpr int PatternWithoutNumber = 132;
inline constexpr int PatternNumberNotOne = 133;
inline constexpr int ParameterRequired = 134;
inline constexpr int OutOfRange = 135;
} // namespace sequence_code

// The test program: up to 1024 analyzer commands with one parameter each, on
// MAIN. Branch parameters point at line numbers of the same table and follow
// their lines through inserts and deletes.
// The box of sequence records past the limit, with the line numbers of the
// first and the last of them.
std::string TooManyLinesText(int firstLine, int lastLine);

class CSequenceTable : public DataTable {
public:
    static constexpr int kMaxLines = 1024;

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
    // message lines take digits only (and Backspace and Tab).
    int KeyPress(int column, int commandType, int key) const;
    using DataTable::KeyPress;

    // --- The framework's hooks ---
    int CheckField(int column, std::string& value, int mode, const EditRow& row) override;
    int CheckRecord(int& column, int mode, EditRow& row) override;
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
    // The parameter check of a line with this command; 0 or a sequence_code.
    int checkParameter(const std::string& command, const std::string& text, bool show) const;
    int checkNetlistName(const std::string& text, bool show) const;
    int refuse(int code, const std::string& text, bool show) const;
};

} // namespace zolt
