#include "cli/command_listing.h"

#include "cli/batch_session.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/system_sequence_table.h"

#include <iomanip>
#include <ostream>
#include <sstream>

namespace zolt::cli {

void PrintCommandDictionary(std::ostream& out, bool grv) {
    std::ostringstream quiet;
    BatchSession session(quiet);
    CSystemSequenceTable dictionary(session.state());
    LoadSystemSequenceTable(dictionary, grv ? "COMMANDS.GRV" : "COMMANDS.ZLF");
    const auto line = [&](const std::string& name, const std::string& type, const std::string& low,
                          const std::string& high, const std::string& description) {
        out << std::left << std::setw(16) << name << std::setw(6) << type << std::setw(6) << low
            << std::setw(7) << high << description << '\n';
    };
    line("COMMAND", "TYPE", "LOW", "HIGH", "DESCRIPTION");
    const Grid& g = dictionary.gridarray();
    using C = CSystemSequenceTable;
    for (int row = 1; row <= g.Rows(); ++row)
        line(g.Text(row, C::Name), g.Text(row, C::Type), g.Text(row, C::Low), g.Text(row, C::High),
             g.Text(row, C::Description));
}

} // namespace zolt::cli
