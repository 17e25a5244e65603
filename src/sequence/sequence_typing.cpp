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
        state.MainNetlist ? state.MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList)
                          : nullptr;
    if (column == sequence_column::Command) {
        if (!dictionary || typed.empty())
            return typed;
        const auto completion =
            CompleteCommandPrefix(SortedCommandNames(*dictionary), previousText, typed);
        if (!completion.found)
            state.ui().Beep();
        return completion.text;
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
