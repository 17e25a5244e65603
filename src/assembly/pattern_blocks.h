#pragma once

#include "core/grid.h"

#include <map>
#include <optional>
#include <vector>

namespace zolt {

// One PBEGIN...PEND block of the sequence, by the rows of its two markers.
struct PatternBlock {
    int Start = 0;   // row of PBEGIN
    int End = 0;     // row of PEND
    int Length = 0;  // rows between them
    int Pattern = 0; // the PBEGIN's number
};

// Whether a sequence command opens or closes a block (trimmed, any case).
bool IsPatternBegin(const std::string& command);
bool IsPatternEnd(const std::string& command);

// The blocks of a sequence's rows, in row order; nullopt when a PEND has no
// PBEGIN or a PBEGIN is left open. A second PBEGIN before the PEND takes over
// the block's start and number.
std::optional<std::vector<PatternBlock>> ScanPatternBlocks(const Grid& rows);

// Where the branch targets of the old sequence land once each block is copied
// count(pattern) times and the marker rows vanish.
class LineRenumbering {
public:
    // `counts`: how many chosen netlists each pattern has.
    LineRenumbering(std::vector<PatternBlock> blocks, const std::map<int, int>& counts);

    int ExtraLines() const { return extraLines_; }
    int ExtraLinesBefore(int line) const;
    int BlocksBefore(int line) const;

    // A reference found outside all blocks. A reference into the first block
    // lands as if it were behind all blocks: programs written for the analyzer
    // depend on that.
    int Outside(int line) const;
    // A reference found in the `copy`-th (from 1) copy of a block.
    int InBlock(int line, int copy, const PatternBlock& block) const;

private:
    int extraOf(const PatternBlock& block) const;
    std::vector<PatternBlock> blocks_;
    std::map<int, int> counts_;
    int extraLines_ = 0;
};

} // namespace zolt
