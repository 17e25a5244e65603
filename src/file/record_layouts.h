#pragma once

#include "core/grid.h"
#include "core/table_kinds.h"
#include "file/byte_stream.h"

#include <array>
#include <cstdint>
#include <vector>

namespace zolt::file {

enum class FieldForm { Integer, Long, Double, String };

// One field of a record and the row-store column it comes from.
struct FieldSpec {
    FieldForm form;
    int column;
};

// Where the Long at the head of a record comes from when it is written.
inline constexpr int kRunningNumber = -1;

// The record of a table block in the version the writer puts out: a Long, then
// `fields` in file order. The reader hands the same fields to `AddRecord_v1`
// (or `PlaceRecord`) in file order followed by the Long and the frame's netlist
// index; with `lastAfterNetlist` (wires and groups) the last field comes after
// those two.
struct RecordLayout {
    std::int16_t recordType;
    std::int16_t version;
    TableId tableIndex;
    int sequenceColumn;
    std::array<FieldSpec, 8> fieldArray;
    int fieldCount;
    bool lastAfterNetlist;

    const FieldSpec* begin() const { return fieldArray.data(); }
    const FieldSpec* end() const { return fieldArray.data() + fieldCount; }
    // The fewest bytes one record can take: lets the reader refuse a count the
    // rest of the file cannot hold before it sizes anything.
    std::size_t MinimumSize() const;
};

// The layout of a record type as written (version 2 for wires, colors and
// groups); nullptr for types that are not table blocks.
const RecordLayout* LayoutOf(int recordType);
// Every table block in the writer's order (80 stands for 80, 81 and 82).
const std::vector<const RecordLayout*>& WriterOrder();

// Block facts shared by reader and writer.
struct BlockInfo {
    std::int16_t recordType;
    const char* writerStage;
    const char* readerStage;
    const char* versionMessage; // nullptr: no version test
    std::int16_t highestVersion;
    const char* mainOnlyMessage; // nullptr: a per-netlist or list block
};
const BlockInfo* BlockOf(int recordType);

void WriteRecord(ByteWriter& out, const RecordLayout& layout, const Grid& grid, int row,
                 std::int32_t runningNumber);
// The `AddRecord_v1` arguments of one record into `args`, whose room is used
// again from record to record.
void ReadRecord(ByteReader& in, const RecordLayout& layout, std::int16_t netlistIndex,
                std::vector<Value>& args);
// The same arguments taken from a stored row, as if it had been written and
// read back under `netlistIndex`.
std::vector<Value> RecordArguments(const RecordLayout& layout, const Grid& grid, int row,
                                   std::int16_t netlistIndex);

// Cell conversions of the writer; a value that does not fit throws FormatError.
std::int16_t IntegerOf(const Value& cell);
std::int32_t LongOf(const Value& cell);
double DoubleOf(const Value& cell);

} // namespace zolt::file
