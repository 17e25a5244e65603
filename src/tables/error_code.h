#pragma once

namespace zolt {

// What the check of a cell or a record found. The numbers are the ones the
// error box's caption shows ("ZOLT Error - 36").
enum class ErrorCode {
    None = 0,
    // The form refused the cell before its rules ran (the reserved connector 0):
    // no message, the edit is abandoned.
    CellRefused = -1,
    TooLong = 10,
    Duplicate = 11,
    Required = 12,
    NotNumeric = 13,
    BelowMinimum = 14,
    AboveMaximum = 15,
    InvalidNumber = 18,
    TooManyPins = 20,
    DuplicateTestPin = 21,
    BadTestPin = 22,
    NoConnector = 30,
    TooManyConnectorPins = 31,
    GroupRequired = 32,
    ConnectorRequired = 33,
    PinRequired = 34,
    DuplicatePin = 36,
    DuplicateSwitch = 37,
    NoWire = 70,
    NoComponent = 71,
    WireUsedTwice = 72,
    BadNetlist = 80,
    NoInstruction = 81,
    BadParameter = 82,
    ParameterBelowRange = 83,
    ParameterAboveRange = 84,
    NoMessage = 85,
    BranchToItself = 86,
    WireIsDouble = 90,
    PinHasTwoWires = 112,
    PinHasOneWire = 113,
    PinWireExists = 114,
    PinHasWire = 115,
    PinUnconnected = 116,
    NotInPinTable = 120,
    // The sequence's parameter checks: the table shows its own box for each,
    // so the common catalogue has no text for them.
    NoSuchNetlist = 131,
    PatternWithoutNumber = 132,
    PatternNumberNotOne = 133,
    ParameterRequired = 134,
    OutOfRange = 135,
};

// The codes by their short names: `code::Duplicate`.
namespace code {
using enum ErrorCode;
} // namespace code

constexpr int ErrorNumber(ErrorCode code) {
    return static_cast<int>(code);
}

} // namespace zolt
