#pragma once

#include "reports/report.h"

#include <string>
#include <vector>

namespace zolt::reports {

// The pages of reports as plain text, for diffs and tests: each page gives
// the header labels a line each, the captions, one detail row a line (cells
// between tabs) and "Page" n; a form feed ends every page.
std::string ReportText(const std::vector<Report>& reports);

} // namespace zolt::reports
