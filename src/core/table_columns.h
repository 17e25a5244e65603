#pragma once

#include <array>
#include <string_view>

// The columns of every table's rows, by name. Each table's captions are listed
// once here, in column order, and its column numbers are made from that list:
// a column named by a caption the table does not have does not compile. The
// table descriptors take their captions from these lists (`ColumnsOf`). A name
// is its caption, except where a table has a caption twice or two differing only
// in case, and the sequence's description. The last two of most tables are the hidden `Sequence`
// (the file's running number) and `Netlist` (the owning netlist's index); the fixture keeps MAIN's
// side of a split behind them. The command dictionary names its own (CSystemSequenceTable::Column).
namespace zolt {

// The column of the `nth` (from 1) column captioned `caption`.
template <std::size_t N>
consteval int ColumnOf(const std::array<std::string_view, N>& captions, std::string_view caption,
                       int nth = 1) {
    for (std::size_t i = 0; i < N; ++i)
        if (captions[i] == caption && --nth == 0)
            return static_cast<int>(i);
    throw "no column has this caption"; // reached only at compile time: the build stops
}

namespace groups_column {
inline constexpr std::array<std::string_view, 7> kCaptions = {
    "Group", "Connector", "Pin", "Base Color", "Stripe Color", "Sequence", "Netlist"};
inline constexpr int Group = ColumnOf(kCaptions, "Group");
inline constexpr int Connector = ColumnOf(kCaptions, "Connector");
inline constexpr int Pin = ColumnOf(kCaptions, "Pin");
inline constexpr int BaseColor = ColumnOf(kCaptions, "Base Color");
inline constexpr int StripeColor = ColumnOf(kCaptions, "Stripe Color");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace groups_column

namespace fixture_column {
inline constexpr std::array<std::string_view, 7> kCaptions = {
    "TestPoint", "Connector", "Pin", "Sequence", "Netlist", "Connector", "Pin"};
inline constexpr int TestPoint = ColumnOf(kCaptions, "TestPoint");
inline constexpr int Connector = ColumnOf(kCaptions, "Connector");
inline constexpr int Pin = ColumnOf(kCaptions, "Pin");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
inline constexpr int MainConnector = ColumnOf(kCaptions, "Connector", 2);
inline constexpr int MainPin = ColumnOf(kCaptions, "Pin", 2);
} // namespace fixture_column

namespace connector_column {
inline constexpr std::array<std::string_view, 8> kCaptions = {
    "Connector",  "Pins Qty", "Switches Qty", "Lamp Board",
    "Lamp Point", "Grid",     "Sequence",     "Netlist"};
inline constexpr int Connector = ColumnOf(kCaptions, "Connector");
inline constexpr int PinsQty = ColumnOf(kCaptions, "Pins Qty");
inline constexpr int SwitchesQty = ColumnOf(kCaptions, "Switches Qty");
inline constexpr int LampBoard = ColumnOf(kCaptions, "Lamp Board");
inline constexpr int LampPoint = ColumnOf(kCaptions, "Lamp Point");
inline constexpr int Grid = ColumnOf(kCaptions, "Grid");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace connector_column

// A color's base in `Color`, its stripe in `DisplayValue` (the file's Long
// column); `ColorId` is the index of the netlist that added it.
namespace color_column {
inline constexpr std::array<std::string_view, 4> kCaptions = {"Number", "Color", "Display Value",
                                                              "ColorID"};
inline constexpr int Number = ColumnOf(kCaptions, "Number");
inline constexpr int Color = ColumnOf(kCaptions, "Color");
inline constexpr int DisplayValue = ColumnOf(kCaptions, "Display Value");
inline constexpr int ColorID = ColumnOf(kCaptions, "ColorID");
} // namespace color_column

namespace wire_column {
inline constexpr std::array<std::string_view, 5> kCaptions = {"Wire", "Base Color", "Stripe Color",
                                                              "Sequence", "Netlist"};
inline constexpr int Wire = ColumnOf(kCaptions, "Wire");
inline constexpr int BaseColor = ColumnOf(kCaptions, "Base Color");
inline constexpr int StripeColor = ColumnOf(kCaptions, "Stripe Color");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace wire_column

namespace pin_column {
inline constexpr std::array<std::string_view, 5> kCaptions = {"Connector", "Pin", "Wire",
                                                              "Sequence", "Netlist"};
inline constexpr int Connector = ColumnOf(kCaptions, "Connector");
inline constexpr int Pin = ColumnOf(kCaptions, "Pin");
inline constexpr int Wire = ColumnOf(kCaptions, "Wire");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace pin_column

namespace splice_column {
inline constexpr std::array<std::string_view, 4> kCaptions = {"Number", "Wire", "Sequence",
                                                              "Netlist"};
inline constexpr int Number = ColumnOf(kCaptions, "Number");
inline constexpr int Wire = ColumnOf(kCaptions, "Wire");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace splice_column

namespace component_column {
inline constexpr std::array<std::string_view, 10> kCaptions = {
    "Device Type", "Number",     "Wire 1",    "Wire 2",   "Value",
    "Lower Tol.",  "Upper Tol.", "Parameter", "Sequence", "Netlist"};
inline constexpr int DeviceType = ColumnOf(kCaptions, "Device Type");
inline constexpr int Number = ColumnOf(kCaptions, "Number");
inline constexpr int Wire1 = ColumnOf(kCaptions, "Wire 1");
inline constexpr int Wire2 = ColumnOf(kCaptions, "Wire 2");
inline constexpr int Value = ColumnOf(kCaptions, "Value");
inline constexpr int LowerTol = ColumnOf(kCaptions, "Lower Tol.");
inline constexpr int UpperTol = ColumnOf(kCaptions, "Upper Tol.");
inline constexpr int Parameter = ColumnOf(kCaptions, "Parameter");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace component_column

namespace message_column {
inline constexpr std::array<std::string_view, 4> kCaptions = {"Number", "Message", "Sequence",
                                                              "Netlist"};
inline constexpr int Number = ColumnOf(kCaptions, "Number");
inline constexpr int Message = ColumnOf(kCaptions, "Message");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace message_column

namespace test_parameter_column {
inline constexpr std::array<std::string_view, 7> kCaptions = {
    "Value", "Test Voltage", "Test Current", "Threshold 1", "Threshold 2", "Sequence", "Netlist"};
inline constexpr int Value = ColumnOf(kCaptions, "Value");
inline constexpr int TestVoltage = ColumnOf(kCaptions, "Test Voltage");
inline constexpr int TestCurrent = ColumnOf(kCaptions, "Test Current");
inline constexpr int Threshold1 = ColumnOf(kCaptions, "Threshold 1");
inline constexpr int Threshold2 = ColumnOf(kCaptions, "Threshold 2");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace test_parameter_column

// The line number is captioned "Sequence", as is the file's long value behind
// the shown columns; the short value is captioned "Netlist".
namespace sequence_column {
inline constexpr std::array<std::string_view, 7> kCaptions = {
    "Sequence", "Command", "Parameter", "Desc/Notes/Mess", "Version", "Sequence", "Netlist"};
inline constexpr int Line = ColumnOf(kCaptions, "Sequence");
inline constexpr int Command = ColumnOf(kCaptions, "Command");
inline constexpr int Parameter = ColumnOf(kCaptions, "Parameter");
inline constexpr int Description = ColumnOf(kCaptions, "Desc/Notes/Mess");
inline constexpr int Version = ColumnOf(kCaptions, "Version");
inline constexpr int LongValue = ColumnOf(kCaptions, "Sequence", 2);
inline constexpr int ShortValue = ColumnOf(kCaptions, "Netlist");
} // namespace sequence_column

namespace switches_column {
inline constexpr std::array<std::string_view, 5> kCaptions = {"Connector", "Switch Name",
                                                              "Switch Commons", "Seq", "Netlist"};
inline constexpr int Connector = ColumnOf(kCaptions, "Connector");
inline constexpr int SwitchName = ColumnOf(kCaptions, "Switch Name");
inline constexpr int SwitchCommons = ColumnOf(kCaptions, "Switch Commons");
inline constexpr int Seq = ColumnOf(kCaptions, "Seq");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace switches_column

namespace reversible_column {
inline constexpr std::array<std::string_view, 7> kCaptions = {
    "Number", "Connector 1", "Pin 1", "Connector 2", "Pin 2", "Sequence", "Netlist"};
inline constexpr int Number = ColumnOf(kCaptions, "Number");
inline constexpr int Connector1 = ColumnOf(kCaptions, "Connector 1");
inline constexpr int Pin1 = ColumnOf(kCaptions, "Pin 1");
inline constexpr int Connector2 = ColumnOf(kCaptions, "Connector 2");
inline constexpr int Pin2 = ColumnOf(kCaptions, "Pin 2");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace reversible_column

// The manual netlists: blocks of rows under a netlist name.
namespace code_column {
inline constexpr std::array<std::string_view, 6> kCaptions = {
    "NetList", "Command", "Parameter(s)", "Base/Stripe Color", "Sequence", "Netlist"};
inline constexpr int NetlistName = ColumnOf(kCaptions, "NetList");
inline constexpr int Command = ColumnOf(kCaptions, "Command");
inline constexpr int Parameters = ColumnOf(kCaptions, "Parameter(s)");
inline constexpr int BaseStripeColor = ColumnOf(kCaptions, "Base/Stripe Color");
inline constexpr int Sequence = ColumnOf(kCaptions, "Sequence");
inline constexpr int Netlist = ColumnOf(kCaptions, "Netlist");
} // namespace code_column

// MAIN's list of the project's netlists (`CNetList::NetlistArray`), a row store
// that no table window shows.
namespace netlist_list_column {
inline constexpr std::array<std::string_view, 2> kCaptions = {"Index", "NetList"};
inline constexpr int Index = ColumnOf(kCaptions, "Index");
inline constexpr int Name = ColumnOf(kCaptions, "NetList");
inline constexpr int kCount = static_cast<int>(kCaptions.size());
} // namespace netlist_list_column

} // namespace zolt
