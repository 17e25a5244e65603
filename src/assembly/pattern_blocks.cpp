#include "assembly/pattern_blocks.h"

#include "core/value.h"
#include "sequence/sequence_renumbering.h"

namespace zolt {
namespace {

std::string commandOf(const Grid& rows, int row) {
    return vb::UCase(vb::Trim(rows.Text(row, sequence_column::Command)));
}

} // namespace

bool IsPatternBegin(const std::string& command) {
    return vb::UCase(vb::Trim(command)) == "PBEGIN";
}

bool IsPatternEnd(const std::string& command) {
    return vb::UCase(vb::Trim(command)) == "PEND";
}

std::optional<std::vector<PatternBlock>> ScanPatternBlocks(const Grid& rows) {
    std::vector<PatternBlock> blocks;
    std::optional<PatternBlock> open;
    for (int row = 1; row <= rows.Rows(); ++row) {
        const std::string command = commandOf(rows, row);
        if (command == "PBEGIN") {
            open = PatternBlock{
                row, 0, 0, static_cast<int>(vb::Val(rows.Text(row, sequence_column::Parameter)))};
        } else if (command == "PEND") {
            if (!open)
                return std::nullopt;
            open->End = row;
            open->Length = row - open->Start - 1;
            blocks.push_back(*open);
            open.reset();
        }
    }
    if (open)
        return std::nullopt;
    return blocks;
}

LineRenumbering::LineRenumbering(std::vector<PatternBlock> blocks, const std::map<int, int>& counts)
    : blocks_(std::move(blocks)), counts_(counts) {
    for (const PatternBlock& block : blocks_)
        extraLines_ += extraOf(block);
}

int LineRenumbering::extraOf(const PatternBlock& block) const {
    const auto found = counts_.find(block.Pattern);
    const int count = found == counts_.end() ? 0 : found->second;
    return block.Length * (count - 1);
}

int LineRenumbering::ExtraLinesBefore(int line) const {
    int extra = 0;
    for (const PatternBlock& block : blocks_)
        if (block.End < line)
            extra += extraOf(block);
    return extra;
}

int LineRenumbering::BlocksBefore(int line) const {
    int count = 0;
    for (const PatternBlock& block : blocks_)
        if (block.End < line)
            ++count;
    return count;
}

int LineRenumbering::Outside(int line) const {
    if (blocks_.empty() || line < blocks_.front().Start)
        return line;
    const int b = static_cast<int>(blocks_.size());
    if (line <= blocks_.front().End || line >= blocks_.back().Start)
        return line + extraLines_ - 2 * b;
    return line + ExtraLinesBefore(line) - 2 * BlocksBefore(line);
}

int LineRenumbering::InBlock(int line, int copy, const PatternBlock& block) const {
    if (blocks_.empty() || line < blocks_.front().Start)
        return line;
    const int b = static_cast<int>(blocks_.size());
    if (line > blocks_.back().Start || line <= blocks_.front().End) {
        if (line > blocks_.back().End)
            return line + extraLines_ - 2 * b;
        return line + (copy - 1) * block.Length + ExtraLinesBefore(line) - 2 * BlocksBefore(line) -
               1;
    }
    return line + ExtraLinesBefore(line) - 2 * BlocksBefore(line);
}

} // namespace zolt
