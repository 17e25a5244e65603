#include "reports/report_header.h"

#include "core/app_info.h"
#include "core/netlist.h"
#include "core/program_state.h"
#include "sequence/program_kind.h"

#include <chrono>
#include <cmath>
#include <filesystem>

namespace zolt::reports {

std::string FormatReportTime(const LocalTime& t) {
    const int hour12 = t.hour % 12 == 0 ? 12 : t.hour % 12;
    const std::string minute = (t.minute < 10 ? "0" : "") + std::to_string(t.minute);
    return std::to_string(t.month) + "/" + std::to_string(t.day) + "/" +
           (t.year % 100 < 10 ? "0" : "") + std::to_string(t.year % 100) + "  " +
           std::to_string(hour12) + ":" + minute + (t.hour < 12 ? " AM" : " PM");
}

LocalTime FromOleDate(double oleDate) {
    using namespace std::chrono;
    // The date part counts towards zero; the time part is the fraction's size, on either side.
    const double whole = std::trunc(oleDate);
    auto seconds = static_cast<long>(std::lround(std::fabs(oleDate - whole) * 86400.0));
    long dayOffset = static_cast<long>(whole);
    if (seconds >= 86400) {
        seconds -= 86400;
        ++dayOffset;
    }
    const year_month_day date{sys_days{year{1899} / December / 30} + days{dayOffset}};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(seconds / 3600),
            static_cast<int>(seconds / 60 % 60),
            static_cast<int>(seconds % 60)};
}

ReportHeader MakeReportHeader(const ProgramState& state, const CNetList& netlist,
                              const std::string& heading, const LocalTime& now) {
    const std::filesystem::path path(state.document().CurrentFile);
    ReportHeader header;
    header.product = IsGrvProgram(state) ? "Thessor ZOLT-GRV" : "Thessor ZOLT 6.0";
    header.build = "(Build " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) +
                   "." + std::to_string(kVersionRevision) + ")";
    header.heading = heading;
    header.fileName = path.filename().string();
    header.baseName = path.stem().string();
    if (&netlist != state.project().MainNetlist)
        header.baseName += " (" + netlist.NetlistName + ")";
    // A program never compiled has no date: 0 would read as 12/30/99.
    const double compiled = state.project().CompiledDate;
    header.compiled =
        compiled == 0.0 ? "Compiled:" : "Compiled: " + FormatReportTime(FromOleDate(compiled));
    header.printed = "Printed: " + FormatReportTime(now);
    return header;
}

} // namespace zolt::reports
