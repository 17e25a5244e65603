#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace zolt::file {

// Comma-separated rows as spreadsheets write them: a cell holding a comma, a
// quote or a line break is quoted, a quote inside doubled.
void WriteCsvRow(std::ostream& out, const std::vector<std::string>& cells);
// All rows of a CSV text; a quoted cell may span lines. Ends of line may be
// "\n" or "\r\n". False when a quote is left open (rows read so far are kept).
bool ReadCsv(std::istream& in, std::vector<std::vector<std::string>>& rows);

} // namespace zolt::file
