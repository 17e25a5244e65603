#include "sequence/sequence_typing.h"

#include "core/netlist.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"

namespace zolt {

std::string TypeSequenceCell(const CSequenceTable& sequence, int column, const std::string& command,
                             const std::string& previousText, const std::string& typed) {
    const ProgramState& state = sequence.state();
    const auto* dictionary =
        state.project().MainNetlist
            ? state.project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList)
            : nullptr;
    if (column == sequence_column::Command) {
        // Commands compare trimmed. Key by key: each key that leaves a prefix no
        // command has beeps and the cell goes back to the text before it.
        const std::string keys = vb::Trim(typed);
        if (!dictionary || keys.empty())
            return keys;
        const std::vector<std::string> names = SortedCommandNames(*dictionary);
        std::string prefix;
        std::string shown = previousText;
        for (const char key : keys) {
            const auto completion = CompleteCommandPrefix(names, shown, prefix + key);
            if (!completion.found) {
                state.ui().Beep();
                continue;
            }
            prefix += key;
            shown = completion.text;
        }
        return shown;
    }
    const int type = dictionary ? dictionary->GetCommandType(command) : command_type::Unknown;
    std::string text;
    for (const char c : typed) {
        const int key = sequence.KeyPress(column, type, static_cast<unsigned char>(c));
        if (key != 0)
            text += static_cast<char>(key);
    }
    return text;
}

} // namespace zolt
