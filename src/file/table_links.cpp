#include "file/table_links.h"

#include "core/program_state.h"
#include "file/record_types.h"
#include "fixture/fixture_table.h"
#include "sequence/data_files.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/sequence_table.h"
#include "tables/color_table.h"
#include "tables/message_table.h"

namespace zolt::file {
namespace {

constexpr int kLabelRows = 20;

const Grid* labelGrid(const CMessageTable& messages, int recordType) {
    return recordType == record::Labels ? &messages.PLabelData() : &messages.PLabel2Data();
}

} // namespace

bool FixtureUsesMain(const Table& fixture) {
    const auto* table = dynamic_cast<const CFixtureTable*>(&fixture);
    return table && table->gridMain();
}

void SetFixtureUsesMain(Table& fixture) {
    if (auto* table = dynamic_cast<CFixtureTable*>(&fixture))
        table->setGridMain(true);
}

bool AddLegacyColors(Table& colors, const std::string& first, const std::string& second) {
    auto* table = dynamic_cast<CColorTable*>(&colors);
    return !table || table->AddSpecialRecord(first, second);
}

int RecordLimit(int recordType) {
    for (const TableKind& kind : kTableKinds)
        if (kind.recordType == recordType)
            return kind.recordLimit;
    return 0;
}

std::string RefusedRecordsMessage(int recordType, int first, int last) {
    return recordType == record::Color ? TooManyColorsText(first, last)
                                       : TooManyLinesText(first, last);
}

const Grid* LabelStore(const Table& messages, int recordType) {
    const auto* table = dynamic_cast<const CMessageTable*>(&messages);
    return table ? labelGrid(*table, recordType) : nullptr;
}

void PrepareLabelStore(Table& messages, int recordType) {
    if (auto* table = dynamic_cast<CMessageTable*>(&messages)) {
        Grid& grid = recordType == record::Labels ? table->PLabelData() : table->PLabel2Data();
        grid.ReDim(kLabelRows, grid.Columns());
    }
}

void AddLabelRecord(Table& messages, int recordType, int row, const std::vector<Value>& args) {
    if (auto* table = dynamic_cast<CMessageTable*>(&messages)) {
        if (recordType == record::Labels)
            table->AddPLabelRecord_V1(row, args);
        else
            table->AddPLabel2Record_V1(row, args);
    }
}

bool RebuildCommandDictionary(ProgramState& state, const std::string& path) {
    return LoadSystemSequenceTable(state, path);
}

bool LoadDeviceAndMacroLists(ProgramState& state, const std::string& dataDirectory) {
    return LoadDeviceFile(state, dataDirectory).ok() && LoadMacroFile(state, dataDirectory).ok();
}

} // namespace zolt::file
