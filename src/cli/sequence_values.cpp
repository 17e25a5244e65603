#include "cli/sequence_values.h"

#include "cli/batch_session.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/sequence_table.h"
#include "sequence/sequence_typing.h"

namespace zolt::cli {

std::vector<std::string> TypedValues(const DataTable& table, int row, int firstColumn,
                                     std::vector<std::string> values) {
    const auto* sequence = dynamic_cast<const CSequenceTable*>(&table);
    if (!sequence)
        return values;
    const Grid& grid = sequence->gridarray();
    std::string command = vb::Trim(grid.Text(row, sequence_column::Command));
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int column = firstColumn + static_cast<int>(i);
        // Said rather than dropped: the grid lets no key into these cells.
        if (column == sequence_column::Parameter && !vb::Trim(values[i]).empty() &&
            sequence->SkipsParameter(command))
            throw CommandError(command + " takes no parameter");
        if (column == sequence_column::Description && !vb::Trim(values[i]).empty())
            throw CommandError("the description is the command's or its message's; '" + values[i] +
                               "' cannot be typed into it");
        const std::string previous = vb::Trim(grid.Text(row, column));
        values[i] = TypeSequenceCell(*sequence, column, command, previous, values[i]);
        if (column == sequence_column::Command)
            command = values[i];
    }
    return values;
}

std::vector<std::string> NewRowValues(const DataTable& table, std::vector<std::string> values) {
    if (!dynamic_cast<const CSequenceTable*>(&table))
        return values;
    values = TypedValues(table, 0, sequence_column::Command, std::move(values));
    values.insert(values.begin(), std::string());
    return values;
}

} // namespace zolt::cli
