#pragma once

#include "analyzer/coverage.h"
#include "reports/report.h"

#include <string>
#include <vector>

namespace zolt::reports {

// The coverage as printed reports: the table of classes, then every undetected
// fault with its reason (left out when there is none).
std::vector<Report> CoverageReports(const analyzer::Coverage& coverage,
                                    const analyzer::PointNames& names,
                                    const analyzer::Harness& harness,
                                    const std::string& programPath, const std::string& printed);

// "97.5": the share of detected faults, 100 for none.
std::string CoveragePercent(int detected, int faults);

} // namespace zolt::reports
