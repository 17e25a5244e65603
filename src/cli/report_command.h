#pragma once

#include "reports/report.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// Writes reports to a PDF file; false with a reason when it cannot. The
// desktop layer provides it; without one, `--pdf` is refused.
using PdfWriter = std::function<bool(const std::vector<reports::Report>& reports,
                                     const std::string& path, std::string& error)>;

// `zolt-cli report FILE [--netlist NAME] [--tables A,B,...] [--summary wire|group]
// (--pdf OUT | --text)`: the reports a print dialog would make, as a PDF or as
// plain text on `out`. `args` are the words after "report". Exit code 0, 1
// when the file or the data does not allow it, 2 for a bad command line.
int ReportCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                  SettingsStore& settings, const PdfWriter& pdf, std::ostream& out,
                  std::ostream& err);

} // namespace zolt::cli
