#include "reports/coverage_report.h"

#include "core/app_info.h"

#include <filesystem>
#include <iomanip>
#include <sstream>

namespace zolt::reports {
namespace {

ReportHeader Header(const std::string& heading, const std::string& programPath,
                    const analyzer::Coverage& coverage, const std::string& printed) {
    const std::filesystem::path path(programPath);
    ReportHeader header;
    header.product = "Thessor ZOLT 6.0";
    header.build = "(Build " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) +
                   "." + std::to_string(kVersionRevision) + ")";
    header.heading = heading;
    header.fileName = path.filename().string();
    header.baseName = path.stem().string();
    header.compiled =
        coverage.good.Passed() ? "Passes its designed harness" : "Fails its designed harness";
    header.printed = "Printed: " + printed;
    return header;
}

} // namespace

std::string CoveragePercent(int detected, int faults) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << (faults == 0 ? 100.0 : 100.0 * detected / faults);
    return text.str();
}

std::vector<Report> CoverageReports(const analyzer::Coverage& coverage,
                                    const analyzer::PointNames& names,
                                    const analyzer::Harness& harness,
                                    const std::string& programPath, const std::string& printed) {
    Report table;
    table.header = Header("Fault Coverage", programPath, coverage, printed);
    table.captions = {"Class", "Faults", "Detected", "Undetected", "Percent"};
    const auto row = [](std::string name, int faults, int detected) {
        return std::vector<std::string>{std::move(name), std::to_string(faults),
                                        std::to_string(detected), std::to_string(faults - detected),
                                        CoveragePercent(detected, faults) + "%"};
    };
    for (const auto& c : coverage.classes)
        table.rows.push_back(
            row(std::string(analyzer::FaultClassName(c.faultClass)), c.faults, c.detected));
    table.rows.push_back(row("all", coverage.faults, coverage.detected));
    std::vector<Report> made{table};
    if (coverage.undetected.empty())
        return made;
    Report undetected;
    undetected.header = Header("Undetected Faults", programPath, coverage, printed);
    undetected.captions = {"Class", "Fault", "Reason"};
    for (const auto& u : coverage.undetected)
        undetected.rows.push_back({std::string(analyzer::FaultClassName(u.fault.faultClass)),
                                   analyzer::FaultText(u.fault.fault, names, harness), u.reason});
    made.push_back(std::move(undetected));
    return made;
}

} // namespace zolt::reports
