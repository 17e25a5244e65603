#pragma once

#include "core/grid.h"
#include "core/value.h"
#include "tables/error_code.h"

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

ErrorCode CheckText(const Value& value, bool required, std::optional<int> maxLength,
                    CParamList& params);
ErrorCode CheckNumber(const Value& value, bool required, const Value& minValue,
                      const Value& maxValue);

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

// The text of an error code; `field` gives the limits of TooLong, BelowMinimum
// and AboveMaximum, arg1 and arg2 the range of ParameterBelowRange and
// ParameterAboveRange. Codes without a text give "".
std::string ErrorText(ErrorCode errorCode, const CFieldDef* field = nullptr,
                      const std::string& arg1 = {}, const std::string& arg2 = {});
void ShowError(Ui& ui, ErrorCode errorCode, const CFieldDef* field = nullptr,
               const std::string& arg1 = {}, const std::string& arg2 = {});

// The name after `text` for the F5 keys: a short number counts up, a name
// moves its last character on (a final "Z"/"z" stays).
std::string NextName(const std::string& text);

// The box of records a table refuses past its limit: `limitText`, then the
// record (or the run of records from `first` to `last`) that was not added.
std::string RefusedRecordsText(const std::string& limitText, int first, int last);

} // namespace zolt
