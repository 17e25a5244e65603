#pragma once

#include "core/table.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace zolt {

// The argument kinds of a sequence command, as column 2 of the dictionary holds them.
namespace command_type {
inline constexpr int Unknown = -1;
inline constexpr int None = 0;
inline constexpr int Number = 1;
inline constexpr int Netlist = 2;
inline constexpr int LineNumber = 3;
inline constexpr int MessageId = 4;
inline constexpr int UncheckedNetlist = 5;
inline constexpr int Macro = 6;
inline constexpr int MacroWithText = 7;
} // namespace command_type

// Commands of these kinds have their parameter emptied: it is never typed.
inline bool TakesNoParameter(int type) {
    return type == command_type::None || type == command_type::Macro;
}

// One entry of the drop-down list of the sequence editor's command column.
struct CommandItem {
    std::string name;
    std::string description;
};

// The analyzer's command language as a table of MAIN: a row per command with
// its name, flag, argument type, bounds, description and version.
class CSystemSequenceTable : public Table {
public:
    static constexpr int kColumns = 7;
    enum Column { Name = 0, Flag = 1, Type = 2, Low = 3, High = 4, Description = 5, Version = 6 };

    explicit CSystemSequenceTable(ProgramState& state);

    void AddRecord_v1(int row, const std::string& name, const std::string& flag,
                      const std::string& type, const std::string& low, const std::string& high,
                      const std::string& description, const std::string& version);
    // The generic form: the seven cells in column order.
    void AddRecord_v1(int row, const std::vector<Value>& fields) override;
    bool PlacesRecordsOnly() const override { return false; }

    // The argument type of a command, compared trimmed and in upper case; -1 when unknown.
    std::int16_t GetCommandType(const std::string& name) const;
    // The description of a command; empty when unknown.
    std::string GetCommandDescription(const std::string& name) const;
    // True for the commands whose type is 6 or 7.
    bool IsMacro(const std::string& name) const;
    // The lowest and highest legal parameter of a command as the dictionary holds them.
    std::string GetCommandLow(const std::string& name) const;
    std::string GetCommandHigh(const std::string& name) const;
    // Replaces `list` by the trimmed name and description of every row, in order.
    void FillValueItems(std::vector<CommandItem>& list) const;

    // The row of a command; 0 when no row has it.
    int FindCommand(const std::string& name) const;

    void ReDimGrid(int rows, int columns) override;
    void Destroy() override;

private:
    std::string cellOf(const std::string& name, int column) const;

    // Every read of a program looks commands up line by line: an index by the
    // trimmed upper-case name (first row wins), made again after any change.
    mutable std::unordered_map<std::string, int> index_;
    mutable bool indexed_ = false;
};

// The names of the dictionary in the order of the editor's drop-down list.
std::vector<std::string> SortedCommandNames(const CSystemSequenceTable& dictionary);

} // namespace zolt
