#include "import/import_support.h"

#include "core/netlist_operations.h"
#include "core/parameters.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "file/record_layouts.h"
#include "file/table_links.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace zolt::import {
namespace {

// Every table's row begins with its key, which a stored record always fills.
constexpr int kKeyColumn = 0;

} // namespace

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
    CParamList& params = state.params();
    params.SetVal(param::Notes,
                  Value(params.Text(param::Notes) + "\r\nImported from ." + kind + " file on " +
                        ShortDate(now) + " at " + MediumTime(now) + "."));
}

void SetParameterOn(ProgramState& state, ParamKey key) {
    CParameter& parameter = state.params().GetParam(key);
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

void RowAppender::addArguments(const std::vector<Value>& arguments) {
    makeRoom();
    const int row = used_ + 1;
    table_.AddRecord_v1(row, arguments);
    // Tables refuse rows beyond their limits (with their own box): nothing was stored.
    if (!table_.gridarray().At(row, kKeyColumn).isNull())
        used_ = row;
}

void RowAppender::add(TableId id, int count, Cells cells) {
    if (table_.tableIndex() != id)
        throw std::logic_error("a record of another table");
    std::vector<Value> fields(static_cast<std::size_t>(count));
    for (const auto& [column, value] : cells)
        fields.at(static_cast<std::size_t>(column)) = value;
    const file::RecordLayout* layout = file::LayoutOf(table_.recordType());
    const bool lastAfterNetlist = layout && layout->lastAfterNetlist;
    const auto tail = lastAfterNetlist ? fields.end() - 1 : fields.end();
    // Rows that come in get no sequence number, as typed rows do not.
    fields.insert(tail, {Value(std::int32_t{0}), Value(netlistIndex_)});
    addArguments(fields);
}

void RowAppender::Append(const FixtureRecord& r) {
    namespace c = fixture_column;
    add(table::Fixture, 3,
        {{c::TestPoint, r.testPoint}, {c::Connector, r.connector}, {c::Pin, r.pin}});
}

void RowAppender::Append(const ConnectorRecord& r) {
    namespace c = connector_column;
    add(table::Connector, 6,
        {{c::Connector, r.connector},
         {c::PinsQty, r.pinsQty},
         {c::SwitchesQty, r.switchesQty},
         {c::LampBoard, r.lampBoard},
         {c::LampPoint, r.lampPoint},
         {c::Grid, r.grid}});
}

// The color table takes its whole argument list: the stripe where the file
// keeps it, and no netlist of its own.
void RowAppender::Append(const ColorRecord& r) {
    namespace c = color_column;
    if (table_.tableIndex() != table::Color)
        throw std::logic_error("a record of another table");
    std::vector<Value> arguments(4);
    arguments[c::Number] = r.number;
    arguments[c::Color] = r.color;
    arguments[c::DisplayValue] = r.displayValue;
    arguments[c::ColorID] = Value(std::int32_t{0});
    addArguments(arguments);
}

void RowAppender::Append(const WireRecord& r) {
    namespace c = wire_column;
    add(table::Wire, 3,
        {{c::Wire, r.wire}, {c::BaseColor, r.baseColor}, {c::StripeColor, r.stripeColor}});
}

void RowAppender::Append(const PinRecord& r) {
    namespace c = pin_column;
    add(table::Pin, 3, {{c::Connector, r.connector}, {c::Pin, r.pin}, {c::Wire, r.wire}});
}

void RowAppender::Append(const GroupRecord& r) {
    namespace c = groups_column;
    add(table::Groups, 5,
        {{c::Group, r.group},
         {c::Connector, r.connector},
         {c::Pin, r.pin},
         {c::BaseColor, r.baseColor},
         {c::StripeColor, r.stripeColor}});
}

void RowAppender::Append(const SpliceRecord& r) {
    namespace c = splice_column;
    add(table::Splice, 2, {{c::Number, r.number}, {c::Wire, r.wire}});
}

void RowAppender::Append(const ComponentRecord& r) {
    namespace c = component_column;
    add(table::Component, 8,
        {{c::DeviceType, r.deviceType},
         {c::Number, r.number},
         {c::Wire1, r.wire1},
         {c::Wire2, r.wire2},
         {c::Value, r.value},
         {c::LowerTol, r.lowerTolerance},
         {c::UpperTol, r.upperTolerance},
         {c::Parameter, r.parameter}});
}

void RowAppender::Append(const ReversibleRecord& r) {
    namespace c = reversible_column;
    add(table::Reversible, 5,
        {{c::Number, r.number},
         {c::Connector1, r.connector1},
         {c::Pin1, r.pin1},
         {c::Connector2, r.connector2},
         {c::Pin2, r.pin2}});
}

void RowAppender::Append(const MessageRecord& r) {
    namespace c = message_column;
    add(table::Message, 2, {{c::Number, r.number}, {c::Message, r.message}});
}

void RowAppender::Append(const TestParameterRecord& r) {
    namespace c = test_parameter_column;
    add(table::TestParameter, 5,
        {{c::Value, r.value},
         {c::TestVoltage, r.testVoltage},
         {c::TestCurrent, r.testCurrent},
         {c::Threshold1, r.threshold1},
         {c::Threshold2, r.threshold2}});
}

void RowAppender::Append(const SequenceRecord& r) {
    namespace c = sequence_column;
    add(table::Sequence, 5,
        {{c::Line, r.line},
         {c::Command, r.command},
         {c::Parameter, r.parameter},
         {c::Description, r.description},
         {c::Version, r.version}});
}

void RowAppender::Append(const SwitchRecord& r) {
    namespace c = switches_column;
    add(table::Switches, 3,
        {{c::Connector, r.connector},
         {c::SwitchName, r.switchName},
         {c::SwitchCommons, r.switchCommons}});
}

void RowAppender::Append(const CodeRecord& r) {
    namespace c = code_column;
    add(table::Code, 4,
        {{c::NetlistName, r.netlistName},
         {c::Command, r.command},
         {c::Parameters, r.parameters},
         {c::BaseStripeColor, r.colors}});
}

} // namespace zolt::import
