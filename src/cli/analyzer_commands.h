#pragma once

#include "cli/report_command.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace zolt {
class SettingsStore;
}

namespace zolt::cli {

// `zolt-analyzer run IMAGE [--harness FILE] [--fault F]... [--keys K,...] [--steps N] [--json]`:
// exit 0 when the run passed, 1 when it did not, 2 for a bad image or argument.
int AnalyzerRunCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                       SettingsStore& settings, std::ostream& out, std::ostream& err);

// `zolt-cli coverage FILE [--classes open,short,soft,swap,component,switch] [--json | --pdf OUT]`:
// exit 0 when the coverage was measured, 1 when the PDF cannot be written, 2 for a bad
// program or argument.
int CoverageCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                    SettingsStore& settings, const PdfWriter& pdf, std::ostream& out,
                    std::ostream& err);

} // namespace zolt::cli
