#pragma once

#include <string>
#include <vector>

namespace zolt {
class DataTable;
}

namespace zolt::cli {

// Values typed into a row pass through the typing of their table: on the
// sequence the command completes from the dictionary and numeric parameters
// keep their digits; other tables take them as they are. `row` is the stored
// row typed into, 0 for a new one.
std::vector<std::string> TypedValues(const DataTable& table, int row, int firstColumn,
                                     std::vector<std::string> values);
// The values of a new row: on the sequence the line number is the program's,
// so what is typed starts at the command.
std::vector<std::string> NewRowValues(const DataTable& table, std::vector<std::string> values);

} // namespace zolt::cli
