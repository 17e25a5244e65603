#include "file/record_layouts.h"

#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "file/record_types.h"

#include <algorithm>

namespace zolt::file {
namespace {

constexpr FieldSpec S(int column) {
    return {FieldForm::String, column};
}
constexpr FieldSpec I(int column) {
    return {FieldForm::Integer, column};
}
constexpr FieldSpec D(int column) {
    return {FieldForm::Double, column};
}

constexpr RecordLayout kLayouts[] = {
    {10,
     1,
     table::Fixture,
     kRunningNumber,
     {S(fixture_column::TestPoint), S(fixture_column::Connector), S(fixture_column::Pin)},
     3,
     false},
    {20,
     1,
     table::Connector,
     kRunningNumber,
     {S(connector_column::Connector), I(connector_column::PinsQty),
      I(connector_column::SwitchesQty), I(connector_column::LampBoard),
      I(connector_column::LampPoint), S(connector_column::Grid)},
     6,
     false},
    {30,
     2,
     table::Wire,
     wire_column::Sequence,
     {S(wire_column::Wire), S(wire_column::BaseColor), S(wire_column::StripeColor)},
     3,
     true},
    {40,
     2,
     table::Color,
     color_column::DisplayValue,
     {I(color_column::Number), S(color_column::Color)},
     2,
     false},
    {50,
     1,
     table::Component,
     component_column::Sequence,
     {S(component_column::DeviceType), I(component_column::Number), S(component_column::Wire1),
      S(component_column::Wire2), I(component_column::Value), I(component_column::LowerTol),
      I(component_column::UpperTol), S(component_column::Parameter)},
     8,
     false},
    // The Long of pins and groups is their `Netlist` column, not `Sequence`.
    {60,
     1,
     table::Pin,
     pin_column::Netlist,
     {S(pin_column::Connector), S(pin_column::Pin), S(pin_column::Wire)},
     3,
     false},
    {70,
     2,
     table::Groups,
     groups_column::Netlist,
     {S(groups_column::Group), S(groups_column::Connector), S(groups_column::Pin),
      S(groups_column::BaseColor), S(groups_column::StripeColor)},
     5,
     true},
    {80,
     1,
     table::Message,
     message_column::Sequence,
     {I(message_column::Number), S(message_column::Message)},
     2,
     false},
    {record::Labels,
     1,
     table::Message,
     message_column::Sequence,
     {I(message_column::Number), S(message_column::Message)},
     2,
     false},
    {record::Labels2,
     1,
     table::Message,
     message_column::Sequence,
     {I(message_column::Number), S(message_column::Message)},
     2,
     false},
    {90,
     1,
     table::TestParameter,
     test_parameter_column::Sequence,
     {I(test_parameter_column::Value), D(test_parameter_column::TestVoltage),
      D(test_parameter_column::TestCurrent), D(test_parameter_column::Threshold1),
      D(test_parameter_column::Threshold2)},
     5,
     false},
    {100,
     1,
     table::Reversible,
     reversible_column::Sequence,
     {I(reversible_column::Number), S(reversible_column::Connector1), S(reversible_column::Pin1),
      S(reversible_column::Connector2), S(reversible_column::Pin2)},
     5,
     false},
    {110,
     1,
     table::Splice,
     splice_column::Sequence,
     {I(splice_column::Number), S(splice_column::Wire)},
     2,
     false},
    {120,
     1,
     table::Switches,
     switches_column::Seq,
     {S(switches_column::Connector), S(switches_column::SwitchName),
      S(switches_column::SwitchCommons)},
     3,
     false},
    {130,
     1,
     table::Sequence,
     sequence_column::LongValue,
     {I(sequence_column::Line), S(sequence_column::Command), S(sequence_column::Parameter),
      S(sequence_column::Description), S(sequence_column::Version)},
     5,
     false},
    {160,
     1,
     table::Code,
     code_column::Sequence,
     {S(code_column::NetlistName), S(code_column::Command), S(code_column::Parameters),
      S(code_column::BaseStripeColor)},
     4,
     false},
};

// A table's block is its kind's record type; the label stores ride on the messages.
static_assert(std::ranges::all_of(kLayouts, [](const RecordLayout& layout) {
    return layout.recordType == KindOf(layout.tableIndex).recordType ||
           layout.recordType == record::Labels || layout.recordType == record::Labels2;
}));

constexpr BlockInfo kBlocks[] = {
    {150, "NETLIST TABLES", "Netlist table", "Netlist Record Version Unsupported", 1, nullptr},
    {10, "FIXTURE TABLES", "Fixture table", "Fixture Record Version Unsupported", 1, nullptr},
    {20, "CONNECTOR TABLES", "Connector table", "Connector Record Version Unsupported", 1, nullptr},
    {30, "WIRES TABLES", "Wire table", "Wire Record Version Unsupported", 2, nullptr},
    {40, "COLOR TABLES", "Color table", "Color Record Version Unsupported", 2,
     "Colors Must Be on MAIN Netlist!"},
    {50, "COMPONENT TABLES", "Component table", "Component Record Version Unsupported", 1, nullptr},
    {60, "PINS TABLES", "Pin table", "Pin Record Version Unsupported", 1, nullptr},
    {70, "GROUP TABLES", "Group table", "Group Record Version Unsupported", 2, nullptr},
    {80, "MESSAGE TABLES", "Message table", "Message Record Version Unsupported", 1,
     "Messages Must Be on MAIN Netlist!"},
    {81, "MESSAGE TABLES", "Plabel table", "Message Record Version Unsupported", 1,
     "Messages Must Be on MAIN Netlist!"},
    {82, "MESSAGE TABLES", "Plabel2 table", "Message Record Version Unsupported", 1,
     "Messages Must Be on MAIN Netlist!"},
    {90, "PARAMETER TABLES", "Test parameter table", "Test Parameter Record Version Unsupported", 1,
     "Parameters Must Be on MAIN Netlist!"},
    {100, "REVERSE TABLES", "Reverse table", "Reverse Record Version Unsupported", 1, nullptr},
    {110, "SPLICE TABLES", "Splice table", "Splice Record Version Unsupported", 1, nullptr},
    {120, "SWITCH TABLES", "Switch table", "Switch Record Version Unsupported", 1, nullptr},
    {130, "SEQUENCE TABLES", "Sequence table", "Sequence Record Version Unsupported", 1,
     "Sequences Must Be on MAIN Netlist!"},
    {160, "CODE TABLES", "Manual netlist table", "Code Record Version Unsupported", 1, nullptr},
    {140, "SYSTEM PARAMS TABLES", "System parameter table",
     "System Parameter Record Version Unsupported", 1, nullptr},
    {215, "NetlistInfo List", "Netlist Info Record", nullptr, 1, nullptr},
    {214, "FeatureCode List", "Feature Code Record", nullptr, 1, nullptr},
    {216, "AssemblyOrder List", "Assembly Order Record", nullptr, 1, nullptr},
    {999, "END RECORD HEADER", "Binary file", "End Record Version Unsupported", 1, nullptr},
};

std::size_t sizeOf(FieldForm form) {
    switch (form) {
    case FieldForm::Integer:
    case FieldForm::String:
        return 2;
    case FieldForm::Long:
        return 4;
    case FieldForm::Double:
        return 8;
    }
    return 0;
}

bool blank(const Value& cell) {
    return cell.isNull() || (cell.isText() && vb::Trim(cell.text()).empty());
}

// Each field is made in its place: a text is moved once, not through temporaries.
void appendField(ByteReader& in, FieldForm form, std::vector<Value>& args) {
    switch (form) {
    case FieldForm::Integer:
        args.emplace_back(in.Integer());
        break;
    case FieldForm::Long:
        args.emplace_back(in.Long());
        break;
    case FieldForm::Double:
        args.emplace_back(in.Double());
        break;
    case FieldForm::String:
        in.AppendString(args);
        break;
    }
}

void writeField(ByteWriter& out, FieldForm form, const Value& cell) {
    switch (form) {
    case FieldForm::Integer:
        out.Integer(IntegerOf(cell));
        break;
    case FieldForm::Long:
        out.Long(LongOf(cell));
        break;
    case FieldForm::Double:
        out.Double(DoubleOf(cell));
        break;
    case FieldForm::String:
        if (const auto* text = std::get_if<std::string>(&cell.storage()))
            out.String(*text);
        else
            out.String(cell.text());
        break;
    }
}

} // namespace

std::size_t RecordLayout::MinimumSize() const {
    std::size_t size = 4;
    for (const FieldSpec& f : *this)
        size += sizeOf(f.form);
    return size;
}

const RecordLayout* LayoutOf(int recordType) {
    for (const RecordLayout& layout : kLayouts)
        if (layout.recordType == recordType)
            return &layout;
    return nullptr;
}

const std::vector<const RecordLayout*>& WriterOrder() {
    static const std::vector<const RecordLayout*> order = [] {
        std::vector<const RecordLayout*> list;
        for (const RecordLayout& layout : kLayouts)
            list.push_back(&layout);
        return list;
    }();
    return order;
}

const BlockInfo* BlockOf(int recordType) {
    for (const BlockInfo& block : kBlocks)
        if (block.recordType == recordType)
            return &block;
    return nullptr;
}

std::int16_t IntegerOf(const Value& cell) {
    if (const auto* n = std::get_if<std::int16_t>(&cell.storage()))
        return *n;
    if (blank(cell))
        return 0;
    const auto n = vb::CInt(cell);
    if (!n)
        throw FormatError("overflow");
    return *n;
}

std::int32_t LongOf(const Value& cell) {
    if (const auto* n = std::get_if<std::int32_t>(&cell.storage()))
        return *n;
    if (blank(cell))
        return 0;
    const auto n = vb::CLng(cell);
    if (!n)
        throw FormatError("overflow");
    return *n;
}

double DoubleOf(const Value& cell) {
    if (blank(cell))
        return 0.0;
    const auto n = vb::CDbl(cell);
    if (!n)
        throw FormatError("type mismatch");
    return *n;
}

void WriteRecord(ByteWriter& out, const RecordLayout& layout, const Grid& grid, int row,
                 std::int32_t runningNumber) {
    out.Long(layout.sequenceColumn == kRunningNumber ? runningNumber
                                                     : LongOf(grid.At(row, layout.sequenceColumn)));
    for (const FieldSpec& f : layout)
        writeField(out, f.form, grid.At(row, f.column));
}

namespace {

// The Long and the netlist index go behind the fields, or before the last one.
void placeTail(std::vector<Value>& args, const RecordLayout& layout, const Value& sequence,
               std::int16_t netlistIndex) {
    const auto tail = layout.lastAfterNetlist ? args.end() - 1 : args.end();
    args.insert(tail, {sequence, Value(std::int32_t{netlistIndex})});
}

} // namespace

void ReadRecord(ByteReader& in, const RecordLayout& layout, std::int16_t netlistIndex,
                std::vector<Value>& args) {
    const std::int32_t sequence = in.Long();
    args.clear();
    const FieldSpec* beforeTail = layout.lastAfterNetlist ? layout.end() - 1 : layout.end();
    for (const FieldSpec* f = layout.begin(); f != beforeTail; ++f)
        appendField(in, f->form, args);
    args.emplace_back(sequence);
    args.emplace_back(std::int32_t{netlistIndex});
    if (beforeTail != layout.end())
        appendField(in, beforeTail->form, args);
}

std::vector<Value> RecordArguments(const RecordLayout& layout, const Grid& grid, int row,
                                   std::int16_t netlistIndex) {
    std::vector<Value> args;
    args.reserve(static_cast<std::size_t>(layout.fieldCount) + 2);
    for (const FieldSpec& f : layout)
        args.push_back(grid.At(row, f.column));
    const Value sequence = layout.sequenceColumn == kRunningNumber
                               ? Value(std::int32_t{row})
                               : grid.At(row, layout.sequenceColumn);
    placeTail(args, layout, sequence, netlistIndex);
    return args;
}

} // namespace zolt::file
