#pragma once

#include "core/ports/clock.h"
#include "reports/report.h"

#include <string>

namespace zolt {
class CNetList;
class ProgramState;
} // namespace zolt

namespace zolt::reports {

// A date and time as "m/d/yy  h:Nn AMPM" formats it: "3/7/26  2:05 PM".
std::string FormatReportTime(const LocalTime& time);
// An OLE date (days since 30 December 1899, the time as the fraction) as local time.
LocalTime FromOleDate(double oleDate);

// The page header of a report of `netlist`, printed at `now`.
ReportHeader MakeReportHeader(const ProgramState& state, const CNetList& netlist,
                              const std::string& heading, const LocalTime& now);

} // namespace zolt::reports
