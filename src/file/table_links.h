#pragma once

#include "core/grid.h"
#include "core/table.h"

#include <string>
#include <vector>

namespace zolt {
class ProgramState;
}

namespace zolt::file {

// What the reader and the writer need of particular table kinds beyond the
// common `Table`: each need is one function here, so that the program file
// code does not depend on how the table classes keep these things.

// The fixture table of a netlist that takes its rows from MAIN (`gridMain`).
bool FixtureUsesMain(const Table& fixture);
void SetFixtureUsesMain(Table& fixture);

// A version 1 color record: each of its two color texts is added when unknown.
// False (after its box) when the color table had no room for one of them.
bool AddLegacyColors(Table& colors, const std::string& first, const std::string& second);

// The rows a table keeps of a block of this record type: 128 colors, 1024
// sequence lines; 0 when there is no limit.
int RecordLimit(int recordType);
// The one box for the records of such a block past the limit, numbered by
// their row (colors) or their line number (sequence), from `first` to `last`.
std::string RefusedRecordsMessage(int recordType, int first, int last);

// The label text stores of the message table: record type 81 for PLABEL, 82 for
// PLABEL2. nullptr when the table keeps none.
const Grid* LabelStore(const Table& messages, int recordType);
// Sizes the store to its 20 rows before a block is read.
void PrepareLabelStore(Table& messages, int recordType);
void AddLabelRecord(Table& messages, int recordType, int row, const std::vector<Value>& args);

// Rebuilds the command dictionary for a file of this name; false on failure.
bool RebuildCommandDictionary(ProgramState& state, const std::string& path);
// Reads the device and macro definitions from the program's data directory;
// false when one of them cannot be read.
bool LoadDeviceAndMacroLists(ProgramState& state, const std::string& dataDirectory);

} // namespace zolt::file
