#include "assembly/pattern_compile.h"

#include "assembly/compile_progress.h"
#include "assembly/feature_codes.h"
#include "assembly/grv_checks.h"
#include "assembly/netlist_combining.h"
#include "core/app_info.h"
#include "core/netlist.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "fixture/gap_sort.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"
#include "tables/message_table.h"

#include <algorithm>
#include <map>

namespace zolt {
namespace col = sequence_column;

namespace {

bool HoldsMarker(const std::string& text) {
    const std::string trimmed = vb::Trim(text);
    return trimmed.find("|R") != std::string::npos || trimmed.find("|P") != std::string::npos ||
           trimmed.find("|S") != std::string::npos;
}

} // namespace

// The new sequence, written row after row into a store sized once by the
// renumbering's count; a PBEGIN taken over by a later one leaves it a row short.
class PatternCompile::NewRows {
public:
    NewRows(int rows, int columns) : grid_(std::max(rows, 0), columns) {}
    void Copy(const Grid& from, int row) {
        if (++last_ > grid_.Rows())
            grid_.ReDim(last_, grid_.Columns());
        for (int c = 0; c < from.Columns() && c < grid_.Columns(); ++c)
            grid_.Set(last_, c, from.At(row, c));
    }
    void SetParameter(Value value) {
        grid_.Set(last_, sequence_column::Parameter, std::move(value));
    }
    const Grid& Finish() {
        grid_.ReDim(last_, grid_.Columns());
        return grid_;
    }

private:
    Grid grid_;
    int last_ = 0;
};

PatternCompile::PatternCompile(ProgramState& state, CompileProgress& progress)
    : state_(state), progress_(progress) {}

PatternCompile::~PatternCompile() = default;

bool PatternCompile::PreCompile() {
    if (!CheckGRVData(state_))
        return false;
    progress_.Caption("Getting Netlists");
    if (!CollectNetlists())
        return false;
    progress_.Caption("Creating Combined Netlists");
    if (!CombineNetlists(state_, ordered_, progress_))
        return false;
    progress_.Caption("Looking for Patterns");
    if (!HasPatterns())
        return true;
    progress_.Caption("Creating New Sequence Table");
    return ExpandedSequenceFits() && ExpandSequence();
}

std::map<int, int> PatternCompile::patternCounts() const {
    std::map<int, int> counts;
    for (const CNetlistInfo& info : ordered_)
        ++counts[info.Pattern];
    return counts;
}

bool PatternCompile::ExpandedSequenceFits() const {
    const Grid& rows = state_.project().MainNetlist->GetTable(table::Sequence)->gridarray();
    const auto blocks = ScanPatternBlocks(rows);
    if (!blocks)
        return true; // the expansion itself reports it
    const LineRenumbering lines(*blocks, patternCounts());
    const int newRows = rows.Rows() + lines.ExtraLines() - 2 * static_cast<int>(blocks->size());
    if (newRows <= CSequenceTable::kMaxLines)
        return true;
    state_.ui().Show(MessageBox{kAppTitle,
                                "The expanded sequence would have " + std::to_string(newRows) +
                                    " lines; a sequence holds " +
                                    std::to_string(CSequenceTable::kMaxLines) + " at most.",
                                Buttons::Ok, Icon::Stop, 1});
    return false;
}

bool PatternCompile::CollectNetlists() {
    chosen_ = ChosenNetlistsOf(state_.project().SelectedFeatureCodes);
    if (chosen_.empty())
        return false;
    const CAssemblyOrderList& order = state_.project().Assembly.AssemblyOrderList;
    std::vector<std::size_t> positions{0}; // from 1, as the sort takes them
    for (const std::string& name : chosen_)
        positions.push_back(order.PositionOf(name));
    ShellSort(positions, 1, static_cast<int>(positions.size()) - 1);
    ordered_.clear();
    for (std::size_t i = 1; i < positions.size(); ++i) {
        const CAssemblyRec* rec = order.Item(positions[i]);
        if (!rec)
            continue;
        if (const CNetlistInfo* info = state_.project().Assembly.NetlistInfoList.Item(rec->Name))
            ordered_.push_back(*info);
    }
    return true;
}

bool PatternCompile::HasPatterns() const {
    const Grid& rows = state_.project().MainNetlist->GetTable(table::Sequence)->gridarray();
    for (int row = 1; row <= rows.Rows(); ++row) {
        const std::string command = rows.Text(row, col::Command);
        if (IsPatternBegin(command) || IsPatternEnd(command))
            return true;
    }
    return false;
}

int PatternCompile::commandType(const std::string& command) const {
    const auto* dictionary =
        state_.project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList);
    return dictionary ? dictionary->GetCommandType(vb::UCase(vb::Trim(command)))
                      : command_type::Unknown;
}

bool PatternCompile::ExpandSequence() {
    const Grid& rows = state_.project().MainNetlist->GetTable(table::Sequence)->gridarray();
    const auto blocks = ScanPatternBlocks(rows);
    if (!blocks) {
        state_.ui().Show(MessageBox{
            kAppTitle, "All 'PBEGIN' sequence commands do not have a matching 'PEND' command.",
            Buttons::Ok, Icon::Stop, 1});
        return false;
    }
    const LineRenumbering lines(*blocks, patternCounts());
    if (!stationsFit(*blocks))
        return false;

    progress_.Caption("Creating New Sequence Table ...");
    progress_.SetRange(0, rows.Rows());
    NewRows out(rows.Rows() + lines.ExtraLines() - 2 * static_cast<int>(blocks->size()),
                rows.Columns());
    auto* messages = state_.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    const int messagesBefore = messages->gridarray().Rows();
    std::size_t nextBlock = 0;
    for (int r = 1; r <= rows.Rows();) {
        const std::string command = rows.Text(r, col::Command);
        if (IsPatternBegin(command) && nextBlock < blocks->size() &&
            (*blocks)[nextBlock].Start == r) {
            const PatternBlock& block = (*blocks)[nextBlock++];
            if (!expandBlock(block, rows, lines, out)) {
                messages->ReDimGrid(messagesBefore, messages->gridColumns());
                return false;
            }
            r = block.End + 1;
            progress_.SetPosition(std::min(r, rows.Rows()));
            continue;
        }
        // A PBEGIN whose block a later PBEGIN took over has no block of its own.
        if (IsPatternEnd(command) || IsPatternBegin(command)) {
            ++r;
            continue;
        }
        out.Copy(rows, r);
        if (commandType(command) == command_type::LineNumber) {
            const std::string parameter = rows.Text(r, col::Parameter);
            if (vb::IsNumeric(std::string_view(parameter)))
                out.SetParameter(
                    Value(std::to_string(lines.Outside(static_cast<int>(vb::Val(parameter))))));
        }
        ++r;
        progress_.SetPosition(r - 1);
    }
    replaceSequence(out.Finish());
    return true;
}

bool PatternCompile::expandBlock(const PatternBlock& block, const Grid& rows,
                                 const LineRenumbering& lines, NewRows& out) {
    const auto* messages = state_.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    std::optional<std::string> lastStation;
    std::size_t k = 0;
    bool messageMade = false;
    int copy = 0;
    for (const CNetlistInfo& entry : ordered_) {
        if (entry.Pattern != block.Pattern)
            continue;
        ++copy;
        if (!lastStation || *lastStation != entry.Station) {
            lastStation = entry.Station;
            k = 0;
            messageMade = false;
            makePatternMessages(entry.Station);
        }
        for (int r = block.Start + 1; r < block.End; ++r) {
            out.Copy(rows, r);
            const std::string parameter = rows.Text(r, col::Parameter);
            switch (commandType(rows.Text(r, col::Command))) {
            case command_type::MessageId: {
                const auto number = vb::CInt(Value(vb::Trim(parameter)));
                if (messages && number && k < messages_.size() &&
                    HoldsMarker(messages->GetMessage(*number))) {
                    out.SetParameter(Value(messages_[k].Number));
                    if (!messageMade && !addPatternMessage(k))
                        return false;
                    messageMade = true;
                }
                break;
            }
            case command_type::Netlist:
                out.SetParameter(Value(entry.Name));
                break;
            case command_type::LineNumber:
                if (vb::IsNumeric(std::string_view(parameter)))
                    out.SetParameter(Value(std::to_string(
                        lines.InBlock(static_cast<int>(vb::Val(parameter)), copy, block))));
                break;
            default:
                break;
            }
        }
        ++k;
        messageMade = false;
    }
    return true;
}

bool PatternCompile::stationsFit(const std::vector<PatternBlock>& blocks) const {
    std::map<std::string, std::size_t> perStation;
    for (const CNetlistInfo& info : ordered_)
        ++perStation[info.Station];
    for (const CNetlistInfo& info : ordered_) {
        const bool expanded = std::any_of(blocks.begin(), blocks.end(), [&](const PatternBlock& b) {
            return b.Pattern == info.Pattern;
        });
        if (expanded && perStation[info.Station] > kMaxStationNetlists) {
            state_.ui().Show(MessageBox{
                kAppTitle,
                "Station " + info.Station + " has " + std::to_string(perStation[info.Station]) +
                    " netlists. A station can take at most " + std::to_string(kMaxStationNetlists) +
                    " netlists in a pattern; please divide it between more stations.",
                Buttons::Ok, Icon::Stop, 1});
            return false;
        }
    }
    return true;
}

int PatternCompile::firstFreeMessage() const {
    const Grid& rows = state_.project().MainNetlist->GetTable(table::Message)->gridarray();
    int highest = 0;
    for (int row = 1; row <= rows.Rows(); ++row)
        if (vb::IsNumeric(rows.At(row, message_column::Number)))
            highest = std::max(highest,
                               static_cast<int>(vb::Val(rows.Text(row, message_column::Number))));
    return highest + 1;
}

void PatternCompile::makePatternMessages(const std::string& station) {
    std::vector<std::string> descriptions;
    for (const CNetlistInfo& info : ordered_)
        if (info.Station == station)
            descriptions.push_back(info.Description);
    const int base = std::max(firstFreeMessage(), kFirstPatternMessage);
    messages_.clear();
    for (std::size_t k = 0; k < descriptions.size(); ++k) {
        PatternMessage message{
            std::to_string(base + static_cast<int>(k)), station, descriptions[k], {}};
        for (std::size_t j = k + 1; j < descriptions.size(); ++j)
            message.Rest += descriptions[j] + " ";
        messages_.push_back(std::move(message));
    }
}

bool PatternCompile::addPatternMessage(std::size_t k) {
    auto* table = state_.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    const PatternMessage& m = messages_[k];
    const int row = table->gridarray().Rows() + 1;
    const int number = std::stoi(m.Number);
    // A message the table cannot hold would leave the sequence naming one that is not there.
    if (number > CMessageTable::kMaxMessages || row > CMessageTable::kMaxMessages) {
        state_.ui().Show(MessageBox{kAppTitle,
                                    "The expanded sequence would need message " +
                                        std::to_string(number) + "; a program holds " +
                                        std::to_string(CMessageTable::kMaxMessages) +
                                        " messages at most.",
                                    Buttons::Ok, Icon::Stop, 1});
        return false;
    }
    return table->AddMessageRecord(
        row, {Value(static_cast<std::int16_t>(number)),
              Value(m.Station + ": " + m.Description + " " + m.Rest), Value(std::int32_t{row}),
              Value(std::int32_t{state_.project().MainNetlist->netlistIndex})});
}

void PatternCompile::replaceSequence(const Grid& rows) {
    auto* sequence = state_.project().MainNetlist->TableAs<CSequenceTable>(table::Sequence);
    sequence->ReDimGrid(rows.Rows(), sequence->gridColumns());
    Grid& grid = sequence->gridarray();
    used_.clear();
    for (int row = 1; row <= rows.Rows(); ++row) {
        for (int c = 0; c < grid.Columns(); ++c)
            grid.Set(row, c, rows.At(row, c));
        if (commandType(rows.Text(row, col::Command)) == command_type::Netlist) {
            const std::string name = rows.Text(row, col::Parameter);
            if (std::find(used_.begin(), used_.end(), name) == used_.end())
                used_.push_back(name);
        }
    }
    RenumberLines(grid);
    sequence->UpdateMessages();
    state_.SetDirty(true);
}

void PatternCompile::FilterNetlists() {
    auto& netlists = state_.project().NetlistCollection;
    for (std::size_t i = netlists.Count(); i >= 1; --i) {
        const CNetList& netlist = **netlists.Item(i);
        const std::string name = vb::UCase(vb::Trim(netlist.NetlistName));
        const bool usedName = std::any_of(used_.begin(), used_.end(), [&](const std::string& used) {
            return vb::UCase(vb::Trim(used)) == name;
        });
        if (name != "MAIN" && name != "MANUAL NETLISTS" && !usedName)
            filteredOut_.push_back(std::move(*netlists.Remove(i)));
    }
}

} // namespace zolt
