#pragma once

#include "core/param_keys.h"
#include "core/ports/clock.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "import/table_records.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace zolt {
class ProgramState;
class Table;
class CNetList;
} // namespace zolt

namespace zolt::import {

// What an import needs besides the program state.
struct ImportContext {
    const Clock& clock;
    // ZOLT.DEV and ZOLT.MAC; empty reads none.
    std::string dataDirectory;
    // The document the import fills: its extension picks the command dictionary.
    std::string documentPath;
};

// Discards the open program and stands a new one holding MAIN only, with the
// command dictionary of the document's kind. The document keeps its file name.
void StartEmptyProgram(ProgramState& state, const ImportContext& context);
// Reads ZOLT.DEV and ZOLT.MAC when their lists are still empty; false when one fails.
bool LoadMissingDataLists(ProgramState& state, const ImportContext& context);

// Appends to `Notes` a line break and "Imported from .<kind> file on <date> at <time>.".
void AppendImportNote(ProgramState& state, const std::string& kind, const LocalTime& now);
// "m/d/yyyy" and the time as "hh:mm AM".
std::string ShortDate(const LocalTime& time);
std::string MediumTime(const LocalTime& time);

// Sets an on/off project parameter (`Switches`, `LampPin`, …) on.
void SetParameterOn(ProgramState& state, ParamKey key);

// The position of a netlist in the project as the program file numbers it (MAIN 0).
std::int32_t FileIndexOf(const ProgramState& state, const CNetList& netlist);

// Rows appended to one table: room is made in large steps and cut to what was
// used when the writer is done, so that long sections stay linear.
class RowAppender {
public:
    RowAppender(Table& table, std::int32_t netlistIndex);
    RowAppender(const RowAppender&) = delete;
    RowAppender& operator=(const RowAppender&) = delete;
    ~RowAppender();

    // The next row of the appender's table; the row's sequence and netlist are
    // added where the table's record takes them.
    void Append(const FixtureRecord& r);
    void Append(const ConnectorRecord& r);
    void Append(const ColorRecord& r);
    void Append(const WireRecord& r);
    void Append(const PinRecord& r);
    void Append(const GroupRecord& r);
    void Append(const SpliceRecord& r);
    void Append(const ComponentRecord& r);
    void Append(const ReversibleRecord& r);
    void Append(const MessageRecord& r);
    void Append(const TestParameterRecord& r);
    void Append(const SequenceRecord& r);
    void Append(const SwitchRecord& r);
    void Append(const CodeRecord& r);
    // Makes room for `rows` more at once, when their number is known.
    void Reserve(int rows);
    int Count() const { return used_; }
    Table& table() { return table_; }

private:
    // Fields by column, `count` of them from column 0.
    using Cells = std::initializer_list<std::pair<int, const Value&>>;
    void add(TableId id, int count, Cells cells);
    void addArguments(const std::vector<Value>& arguments);
    void makeRoom();

    Table& table_;
    std::int32_t netlistIndex_;
    int used_;
};

} // namespace zolt::import
