#pragma once

// The columns of every table's rows, by name. The last two of most tables are
// the hidden `Sequence` (the file's running number) and `Netlist` (the owning
// netlist's index); the fixture keeps MAIN's side of a split behind them. The
// command dictionary names its own (CSystemSequenceTable::Column).
namespace zolt {

namespace groups_column {
inline constexpr int Group = 0;
inline constexpr int Connector = 1;
inline constexpr int Pin = 2;
inline constexpr int BaseColor = 3;
inline constexpr int StripeColor = 4;
inline constexpr int Sequence = 5;
inline constexpr int Netlist = 6;
} // namespace groups_column

namespace fixture_column {
inline constexpr int TestPoint = 0;
inline constexpr int Connector = 1;
inline constexpr int Pin = 2;
inline constexpr int Sequence = 3;
inline constexpr int Netlist = 4;
inline constexpr int MainConnector = 5;
inline constexpr int MainPin = 6;
} // namespace fixture_column

namespace connector_column {
inline constexpr int Connector = 0;
inline constexpr int PinsQty = 1;
inline constexpr int SwitchesQty = 2;
inline constexpr int LampBoard = 3;
inline constexpr int LampPoint = 4;
inline constexpr int Grid = 5;
inline constexpr int Sequence = 6;
inline constexpr int Netlist = 7;
} // namespace connector_column

// A color's base in `Color`; a stripe added with it lands in the file's Long column.
namespace color_column {
inline constexpr int Number = 0;
inline constexpr int Color = 1;
inline constexpr int Stripe = 2;
inline constexpr int Netlist = 3;
} // namespace color_column

namespace wire_column {
inline constexpr int Wire = 0;
inline constexpr int BaseColor = 1;
inline constexpr int StripeColor = 2;
inline constexpr int Sequence = 3;
inline constexpr int Netlist = 4;
} // namespace wire_column

namespace pin_column {
inline constexpr int Connector = 0;
inline constexpr int Pin = 1;
inline constexpr int Wire = 2;
inline constexpr int Sequence = 3;
inline constexpr int Netlist = 4;
} // namespace pin_column

namespace splice_column {
inline constexpr int Number = 0;
inline constexpr int Wire = 1;
inline constexpr int Sequence = 2;
inline constexpr int Netlist = 3;
} // namespace splice_column

namespace component_column {
inline constexpr int DeviceType = 0;
inline constexpr int Number = 1;
inline constexpr int Wire1 = 2;
inline constexpr int Wire2 = 3;
inline constexpr int Value = 4;
inline constexpr int LowerTolerance = 5;
inline constexpr int UpperTolerance = 6;
inline constexpr int Parameter = 7;
inline constexpr int Sequence = 8;
inline constexpr int Netlist = 9;
} // namespace component_column

namespace message_column {
inline constexpr int Number = 0;
inline constexpr int Message = 1;
inline constexpr int Sequence = 2;
inline constexpr int Netlist = 3;
} // namespace message_column

namespace test_parameter_column {
inline constexpr int Value = 0;
inline constexpr int TestVoltage = 1;
inline constexpr int TestCurrent = 2;
inline constexpr int Threshold1 = 3;
inline constexpr int Threshold2 = 4;
inline constexpr int Sequence = 5;
inline constexpr int Netlist = 6;
} // namespace test_parameter_column

namespace sequence_column {
inline constexpr int Line = 0;
inline constexpr int Command = 1;
inline constexpr int Parameter = 2;
inline constexpr int Description = 3;
inline constexpr int Version = 4;
inline constexpr int LongValue = 5;
inline constexpr int ShortValue = 6;
} // namespace sequence_column

namespace switches_column {
inline constexpr int Connector = 0;
inline constexpr int SwitchName = 1;
inline constexpr int SwitchCommons = 2;
inline constexpr int Sequence = 3;
inline constexpr int Netlist = 4;
} // namespace switches_column

namespace reversible_column {
inline constexpr int Number = 0;
inline constexpr int Connector1 = 1;
inline constexpr int Pin1 = 2;
inline constexpr int Connector2 = 3;
inline constexpr int Pin2 = 4;
inline constexpr int Sequence = 5;
inline constexpr int Netlist = 6;
} // namespace reversible_column

// The manual netlists: blocks of rows under a netlist name.
namespace code_column {
inline constexpr int NetlistName = 0;
inline constexpr int Command = 1;
inline constexpr int Parameters = 2;
inline constexpr int Colors = 3;
inline constexpr int Sequence = 4;
inline constexpr int Netlist = 5;
} // namespace code_column

} // namespace zolt
