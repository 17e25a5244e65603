#include "import/import_support.h"

#include "core/netlist_operations.h"
#include "core/parameters.h"
#include "core/program_state.h"
#include "file/record_layouts.h"
#include "file/table_links.h"

#include <algorithm>
#include <cstdio>

namespace zolt::import {

void StartEmptyProgram(ProgramState& state, const ImportContext& context) {
    const std::string file = state.document().CurrentFile;
    NewProject(state);
    state.document().CurrentFile = file;
    state.project().NeedsCompile = true;
    file::RebuildCommandDictionary(state, context.documentPath);
}

bool LoadMissingDataLists(ProgramState& state, const ImportContext& context) {
    if (context.dataDirectory.empty() ||
        (!state.project().DeviceList.empty() && !state.project().MacroList.empty()))
        return true;
    return file::LoadDeviceAndMacroLists(state, context.dataDirectory);
}

std::string ShortDate(const LocalTime& t) {
    return std::to_string(t.month) + "/" + std::to_string(t.day) + "/" + std::to_string(t.year);
}

std::string MediumTime(const LocalTime& t) {
    const int hour12 = t.hour % 12 == 0 ? 12 : t.hour % 12;
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d %s", hour12, t.minute, t.hour < 12 ? "AM" : "PM");
    return text;
}

void AppendImportNote(ProgramState& state, const std::string& kind, const LocalTime& now) {
    CParamList& params = state.Params();
    params.SetVal(param::Notes,
                  Value(params.Text(param::Notes) + "\r\nImported from ." + kind + " file on " +
                        ShortDate(now) + " at " + MediumTime(now) + "."));
}

void SetParameterOn(ProgramState& state, ParamKey key) {
    CParameter& parameter = state.Params().GetParam(key);
    parameter.SetValue(parameter.Type, Value(std::int32_t{1}));
}

std::int32_t FileIndexOf(const ProgramState& state, const CNetList& netlist) {
    for (std::size_t i = 1; i <= state.project().NetlistCollection.Count(); ++i)
        if (state.project().NetlistCollection.Item(i)->get() == &netlist)
            return static_cast<std::int32_t>(i - 1);
    return 0;
}

RowAppender::RowAppender(Table& table, std::int32_t netlistIndex)
    : table_(table), netlistIndex_(netlistIndex), used_(table.gridarray().Rows()) {}

RowAppender::~RowAppender() {
    if (table_.gridarray().Rows() != used_)
        table_.ReDimGrid(used_, table_.gridColumns());
}

void RowAppender::Reserve(int rows) {
    if (used_ + rows > table_.gridarray().Rows())
        table_.ReDimGrid(used_ + rows, table_.gridColumns());
}

void RowAppender::makeRoom() {
    const int rows = table_.gridarray().Rows();
    if (used_ + 1 > rows)
        table_.ReDimGrid(std::max(used_ + 64, rows * 2), table_.gridColumns());
}

void RowAppender::AddArguments(const std::vector<Value>& arguments) {
    makeRoom();
    const int row = used_ + 1;
    table_.AddRecord_v1(row, arguments);
    // Tables refuse rows beyond their limits (with their own box): nothing was stored.
    if (!table_.gridarray().At(row, 0).isNull())
        used_ = row;
}

void RowAppender::Add(std::vector<Value> fields) {
    const file::RecordLayout* layout = file::LayoutOf(table_.RecordType());
    const bool lastAfterNetlist = layout && layout->lastAfterNetlist;
    const auto tail = lastAfterNetlist && !fields.empty() ? fields.end() - 1 : fields.end();
    // Rows that come in get no sequence number, as typed rows do not.
    fields.insert(tail, {Value(std::int32_t{0}), Value(netlistIndex_)});
    AddArguments(fields);
}

} // namespace zolt::import
