#pragma once

#include <cstdint>
#include <string>

namespace zolt::compile {

// Classes of findings; each is one bit of the warning mask. A finding is printed
// and counted only when its class's bit is set (docs/compile-diagnostics.md).
namespace mask_bit {
inline constexpr int WiringWarning = 5;
inline constexpr int FixtureWarning = 6;
inline constexpr int SequenceWarning = 7;
inline constexpr int WiringError = 10;
inline constexpr int FixtureError = 11;
inline constexpr int SequenceError = 12;
inline constexpr int DeviceError = 15;
inline constexpr int MessageError = 16;
inline constexpr int ReferenceError = 17;
} // namespace mask_bit

// Bits of the log mask: what the compile writes besides its findings.
namespace log_bit {
inline constexpr int NetlistSummary = 0; // one line per netlist: nets, points, components
inline constexpr int NetListing = 1;     // every net with its test points
inline constexpr int BuildOrder = 2;     // the wires in sequential build order
inline constexpr int ImageSummary = 3;   // size and checksum of the written image
} // namespace log_bit

// The stable numbers of every finding; they never change meaning.
enum class Code : std::uint16_t {
    PinWithoutTestPoint = 101,
    TestPointShared = 102,
    TestPointOutOfRange = 103,
    WireTooManyEnds = 104,
    WireWithoutEnds = 105,
    WireOneEnd = 106,
    PinUnknownWire = 107,
    SpliceUnknownWire = 108,
    ComponentUnknownWire = 109,
    ComponentUnknownKind = 110,
    ComponentNoTestParameter = 111,
    ReversibleUnknownPin = 112,
    SwitchUnknownConnector = 113,
    CodeNotInDictionary = 114,
    GroupUnknownConnector = 115,
    GroupUnknownPin = 116,
    PinUnknownConnector = 117,
    SpliceOneWire = 118,
    FixtureUnknownConnector = 119,
    PinOnTwoTestPoints = 120,
    NetlistNameRepeated = 121,
    BranchPastEnd = 201,
    UnknownNetlist = 202,
    UnknownMessage = 203,
    MacroWithoutBody = 204,
    PatternBlockLeft = 205,
    NoEnd = 206,
    ParameterOutOfRange = 207,
    UnknownCommand = 208,
    LabelFileUnreadable = 301,
    LabelFileTooLong = 302,
    ImageNotWritten = 401,
};

enum class Severity { Warning, Error };

Severity SeverityOf(Code code);
int MaskBitOf(Code code);

// One finding: where it is and what it is about.
struct Diagnostic {
    Code code;
    std::string netlist;
    std::string table; // a table name of the program ("Wire", "Sequence"), or "Label"
    int row = 0;       // 0 when the finding is about the table as a whole
    std::string text;
};

// "E104 MAIN Wire row 3: ..." as the results and the .dgn file show it.
std::string FormatDiagnostic(const Diagnostic& diagnostic);

// A test point as the fixture writes it, "B-PPP": board 12, point 5 is "12-005".
std::string TestPointText(int board, int point);

} // namespace zolt::compile
