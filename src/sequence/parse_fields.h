#pragma once

#include <array>
#include <string>

namespace zolt {

// The most fields one line of a data file can hold.
inline constexpr int kMaxFields = 21;
using FieldArray = std::array<std::string, kMaxFields>;

// Splits a line of ZOLT.MAC, ZOLT.DEV or a PID file into trimmed fields at each
// comma, or at each blank when `commaSeparated` is false. Runs of blanks around
// a separator count for nothing. The slots are cleared first; the count of
// fields found is returned. Splitting stops at the first field that is empty
// with nothing left behind it, and after kMaxFields fields.
int ParseFields(const std::string& line, FieldArray& fields, bool commaSeparated);

} // namespace zolt
