#pragma once

#include "assembly/pattern_blocks.h"
#include "core/assembly_lists.h"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zolt {

class CNetList;
class CompileProgress;
class ProgramState;

// The analyzer message made for one netlist of a station.
struct PatternMessage {
    std::string Number;
    std::string Station;
    std::string Description;
    std::string Rest;
};

// One run of the pattern pre-compile: the chosen netlists in assembly order,
// the sequence's blocks expanded once per netlist of their pattern, the
// netlists the new sequence uses.
class PatternCompile {
public:
    // A station's messages are numbered from one base; the analyzer's message
    // array of a station has room for this many.
    static constexpr std::size_t kMaxStationNetlists = 51;
    static constexpr int kFirstPatternMessage = 800;

    PatternCompile(ProgramState& state, CompileProgress& progress);
    ~PatternCompile();
    PatternCompile(const PatternCompile&) = delete;
    PatternCompile& operator=(const PatternCompile&) = delete;

    // Check, collect, combine and expand; false when the run must end.
    bool PreCompile();

    // The netlists of the selected feature codes, ordered by the assembly
    // order; those missing from it are left out. False when none is chosen.
    bool CollectNetlists();
    bool HasPatterns() const;
    // False (after its box) for unbalanced blocks, a station past the message
    // room or messages past the Message table's limit; the messages stay as they were.
    bool ExpandSequence();
    // False (after its box) when the expanded sequence would not fit the
    // analyzer's program: the file would lose the lines past the limit.
    bool ExpandedSequenceFits() const;

    // Leaves only MAIN, "MANUAL NETLISTS" and the netlists the new sequence
    // uses in the program; the others live on with this run, for the
    // manual-netlist lookup of the compile.
    void FilterNetlists();

    const std::vector<std::string>& ChosenNetlists() const { return chosen_; }
    const std::vector<CNetlistInfo>& OrderedInfo() const { return ordered_; }
    const std::vector<std::string>& UsedNetlists() const { return used_; }

private:
    class NewRows;
    int commandType(const std::string& command) const;
    std::map<int, int> patternCounts() const;
    bool expandBlock(const PatternBlock& block, const Grid& rows, const LineRenumbering& lines,
                     NewRows& out);
    void makePatternMessages(const std::string& station);
    bool addPatternMessage(std::size_t k);
    int firstFreeMessage() const;
    bool stationsFit(const std::vector<PatternBlock>& blocks) const;
    void replaceSequence(const Grid& rows);

    ProgramState& state_;
    CompileProgress& progress_;
    std::vector<std::string> chosen_;
    std::vector<CNetlistInfo> ordered_;
    std::vector<PatternMessage> messages_;
    std::vector<std::string> used_;
    std::vector<std::unique_ptr<CNetList>> filteredOut_;
};

} // namespace zolt
