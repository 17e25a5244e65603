#include "assembly/netlist_combining.h"

#include "assembly/compile_progress.h"
#include "core/app_info.h"
#include "core/netlist.h"
#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "file/record_layouts.h"
#include "sequence/sequence_renumbering.h"

namespace zolt {
namespace {

struct CombinedTable {
    TableId tableIndex;
    const char* caption;
};

// The tables in the order they have always been combined in.
constexpr CombinedTable kCombinedTables[] = {
    {table::Groups, "Combining Group Tables ..."},
    {table::Wire, "Combining Wire Tables ..."},
    {table::Reversible, "Combining Reverse Tables ..."},
    {table::Pin, "Combining Pin Tables ..."},
    {table::Component, "Combining Component Tables ..."},
    {table::Splice, "Combining Splice Tables ..."},
};

void combineTable(ProgramState& state, const CombinedTable& kind,
                  const std::vector<CNetlistInfo>& ordered, CompileProgress& progress) {
    Table* target = state.project().MainNetlist->GetTable(kind.tableIndex);
    const file::RecordLayout* layout = target ? file::LayoutOf(target->recordType()) : nullptr;
    if (!layout)
        return;
    const auto mainIndex = static_cast<std::int16_t>(state.project().MainNetlist->netlistIndex);
    for (const CNetlistInfo& info : ordered) {
        if (vb::UCase(vb::Trim(info.Name)) == "MAIN")
            continue;
        if (IsManualNetlist(state, info.Name) && HasManualNetlists(state))
            continue;
        if (!info.PartOfMain)
            continue;
        const CNetList* netlist = state.project().FindNetlist(info.Name);
        const Table* source = netlist ? netlist->GetTable(kind.tableIndex) : nullptr;
        if (!source || source == target)
            continue;
        progress.Caption(std::string(kind.caption) + " " + netlist->NetlistName);
        const Grid& rows = source->gridarray();
        for (int row = 1; row <= rows.Rows(); ++row) {
            if (kind.tableIndex == table::Pin && rows.Text(row, pin_column::Connector) == "(none)")
                continue;
            target->AddRecord_v1(target->gridarray().Rows() + 1,
                                 file::RecordArguments(*layout, rows, row, mainIndex));
        }
    }
}

} // namespace

std::optional<std::vector<std::string>> CheckPatternNumbers(const ProgramState& state) {
    std::vector<std::string> patterns;
    const Table* sequence = state.project().MainNetlist->GetTable(table::Sequence);
    const Grid& rows = sequence->gridarray();
    for (int row = 1; row <= rows.Rows(); ++row) {
        const std::string command = vb::UCase(vb::Trim(rows.Text(row, sequence_column::Command)));
        if (command != "PBEGIN")
            continue;
        const std::string parameter = vb::UCase(rows.Text(row, sequence_column::Parameter));
        const int number = vb::Trim(parameter).empty() ? 0 : static_cast<int>(vb::Val(parameter));
        if (number < 1 || number > 50) {
            state.ui().Show(MessageBox{kAppTitle,
                                       "Invalid Pattern number: " + std::to_string(number) +
                                           "\nLine Number: " + std::to_string(row) +
                                           "\nSequence Command: " + command +
                                           "\nParameter: " + parameter,
                                       Buttons::Ok, Icon::Stop, 1});
            return std::nullopt;
        }
        if (patterns.empty())
            patterns.push_back(parameter);
    }
    return patterns;
}

bool IsManualNetlist(const ProgramState& state, const std::string& name) {
    const CNetList* manual = state.project().FindNetlist(kManualNetlists);
    const Table* codes = manual ? manual->GetTable(table::Code) : nullptr;
    if (!codes)
        return false;
    const Grid& rows = codes->gridarray();
    for (int row = 1; row <= rows.Rows(); ++row)
        if (rows.Text(row, code_column::NetlistName) == name)
            return true;
    return false;
}

bool HasManualNetlists(const ProgramState& state) {
    bool found = false;
    state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        found = found || netlist->NetlistName == kManualNetlists;
    });
    return found;
}

bool CombineNetlists(ProgramState& state, const std::vector<CNetlistInfo>& ordered,
                     CompileProgress& progress) {
    const auto patterns = CheckPatternNumbers(state);
    if (!patterns)
        return false;
    for (const std::string& pattern : *patterns) {
        if (pattern.empty())
            break;
        CombineForPattern(state, static_cast<int>(vb::Val(pattern)), ordered, progress);
    }
    return true;
}

void CombineForPattern(ProgramState& state, int pattern, const std::vector<CNetlistInfo>& ordered,
                       CompileProgress& progress) {
    // Only the first block's pattern 1 means "the product as a whole".
    if (pattern != 1)
        return;
    for (const CombinedTable& kind : kCombinedTables)
        combineTable(state, kind, ordered, progress);
}

} // namespace zolt
