#pragma once

#include "core/grid.h"
#include "core/value.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace zolt {

class CParamList;
class Ui;
struct CFieldDef;

// Bits of the mode argument of CheckField and CheckRecord.
namespace check_mode {
inline constexpr int Silent = 1;     // show no message
inline constexpr int SkipRecord = 2; // CheckRecord checks nothing
} // namespace check_mode

// Error codes the tables return; 0 is good. The numbers are the ones the
// error box's caption shows ("ZOLT Error - 36").
namespace code {
inline constexpr int TooLong = 10;
inline constexpr int Duplicate = 11;
inline constexpr int Required = 12;
inline constexpr int NotNumeric = 13;
inline constexpr int BelowMinimum = 14;
inline constexpr int AboveMaximum = 15;
inline constexpr int InvalidNumber = 18;
inline constexpr int TooManyPins = 20;
inline constexpr int DuplicateTestPin = 21;
inline constexpr int BadTestPin = 22;
inline constexpr int NoConnector = 30;
inline constexpr int TooManyConnectorPins = 31;
inline constexpr int GroupRequired = 32;
inline constexpr int ConnectorRequired = 33;
inline constexpr int PinRequired = 34;
inline constexpr int DuplicatePin = 36;
inline constexpr int DuplicateSwitch = 37;
inline constexpr int NoWire = 70;
inline constexpr int NoComponent = 71;
inline constexpr int WireUsedTwice = 72;
inline constexpr int BadNetlist = 80;
inline constexpr int NoInstruction = 81;
inline constexpr int BadParameter = 82;
inline constexpr int ParameterBelowRange = 83;
inline constexpr int ParameterAboveRange = 84;
inline constexpr int NoMessage = 85;
inline constexpr int BranchToItself = 86;
inline constexpr int WireIsDouble = 90;
inline constexpr int PinHasTwoWires = 112;
inline constexpr int PinHasOneWire = 113;
inline constexpr int PinWireExists = 114;
inline constexpr int PinHasWire = 115;
inline constexpr int PinUnconnected = 116;
inline constexpr int NotInPinTable = 120;
} // namespace code

int CheckText(const Value& value, bool required, std::optional<int> maxLength, CParamList& params);
int CheckNumber(const Value& value, bool required, const Value& minValue, const Value& maxValue);

// One condition of CountMatches: the trimmed cell of `column` equals `value`.
struct Match {
    std::string_view value;
    int column;
};
// Rows whose trimmed cells meet every condition, leaving out `exceptRow`
// (nullopt: none left out). Texts compare to the letter.
int CountMatches(const Grid& grid, std::initializer_list<Match> conditions,
                 std::optional<int> exceptRow = std::nullopt);
// Different texts of `keyColumn` among rows whose `matchColumn` equals `value`,
// with `newValue` counted in.
int CountDistinct(const Grid& grid, std::string_view value, int matchColumn,
                  std::string_view newValue, int keyColumn, int found = 1);

std::int32_t ToLong(const Value& value);
std::string NullToText(const Value& value);
bool HasValue(const Value& value);
inline bool WantsMessage(int mode) {
    return (mode & check_mode::Silent) == 0;
}

// The text of an error code; `field` gives the limits of codes 10, 14 and 15,
// arg1 and arg2 the range of codes 83 and 84. Unknown codes give "".
std::string ErrorText(int errorCode, const CFieldDef* field = nullptr, const std::string& arg1 = {},
                      const std::string& arg2 = {});
void ShowError(Ui& ui, int errorCode, const CFieldDef* field = nullptr,
               const std::string& arg1 = {}, const std::string& arg2 = {});

// The name after `text` for the F5 keys: a short number counts up, a name
// moves its last character on (a final "Z"/"z" stays).
std::string NextName(const std::string& text);

// The box of records a table refuses past its limit: `limitText`, then the
// record (or the run of records from `first` to `last`) that was not added.
std::string RefusedRecordsText(const std::string& limitText, int first, int last);

} // namespace zolt
