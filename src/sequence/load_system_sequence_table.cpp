#include "sequence/load_system_sequence_table.h"

#include "core/netlist.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "sequence/command_strings.h"
#include "sequence/program_kind.h"
#include "sequence/system_sequence_table.h"

#include <algorithm>

namespace zolt {
namespace {

// Room made before reading; cut down to the real count at the end.
constexpr int kInitialRows = 200;

std::string FixedWidth(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

} // namespace

CommandStringFields CutCommandString(const std::string& line) {
    std::string parts[6];
    std::size_t start = 0;
    for (int i = 0; i < 5; ++i) {
        const auto comma = line.find(',', start);
        if (comma == std::string::npos) {
            parts[i] = line.substr(std::min(start, line.size()));
            start = line.size() + 1;
            break;
        }
        parts[i] = line.substr(start, comma - start);
        start = comma + 1;
    }
    if (start <= line.size())
        parts[5] = line.substr(start);
    CommandStringFields f;
    f.name = FixedWidth(parts[0], 15);
    f.flag = FixedWidth(parts[1], 2);
    f.type = FixedWidth(parts[2], 2);
    f.low = FixedWidth(parts[3], 2);
    f.high = FixedWidth(FixedWidth(parts[4], 6), 5);
    f.description = FixedWidth(parts[5], 50);
    return f;
}

void LoadSystemSequenceTable(CSystemSequenceTable& dictionary, const std::string& fileName) {
    const bool withPatterns = IsGrvFileName(fileName);
    dictionary.ReDimGrid(kInitialRows, CSystemSequenceTable::kColumns);
    int rows = 0;
    for (int id = kFirstCommandString;; ++id) {
        const std::string line = LoadCommandString(id);
        // An identifier past the table ends the run as the end marker does.
        if (line == kCommandStringsEnd || line.empty())
            break;
        const CommandStringFields f = CutCommandString(line);
        const std::string name = vb::Trim(f.name);
        if (!withPatterns && (name == "PBEGIN" || name == "PEND"))
            continue;
        ++rows;
        if (rows > dictionary.gridarray().Rows())
            dictionary.ReDimGrid(rows, CSystemSequenceTable::kColumns);
        dictionary.AddRecord_v1(rows, name, vb::Trim(f.flag), vb::Trim(f.type), vb::Trim(f.low),
                                vb::Trim(f.high), vb::Trim(f.description), "");
    }
    dictionary.ReDimGrid(rows, CSystemSequenceTable::kColumns);
}

bool LoadSystemSequenceTable(ProgramState& state, const std::string& fileName) {
    if (!state.project().MainNetlist)
        return false;
    auto* dictionary =
        state.project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList);
    if (!dictionary)
        return false;
    LoadSystemSequenceTable(*dictionary, fileName);
    return true;
}

} // namespace zolt
