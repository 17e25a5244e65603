#pragma once

#include "compile/compile_control.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zolt {
class ProgramState;
class Clock;
class CNetList;
} // namespace zolt

namespace zolt::compile {

// How a compile run ended.
enum class CompileEnd {
    Finished,       // the counts are in the results; errors may be among them
    MissingNetlist, // the reference check stopped it
    Aborted,        // a label rule stopped it, after its box
    Failed,         // a run-time error, after the "Compilation Failed!" box
};

// The compiler window's logic without the window: it configures the control,
// feeds it the whole program and collects the results text. Boxes go through
// the program's Ui port.
class CompileDriver {
public:
    static constexpr std::size_t kResultsLimit = 50000;

    CompileDriver(ProgramState& state, NXComp& control, const Clock& clock);

    // Runs between the stages so that a window can paint.
    std::function<void()> pump;
    // Told whenever the results text grew.
    std::function<void(const std::string&)> resultsChanged;

    // The window's load: configures the control, deletes the old image and
    // disables the download.
    void Load();
    // The first tick: the whole compile.
    CompileEnd Run();

    const std::string& Results() const { return results_; }
    // A line of the results text ahead of the compile's own.
    void Note(const std::string& text) { appendLine(text); }
    // While a variant of a family compiles, the manual-netlist lookup walks
    // the family's netlists rather than those left in the program.
    void LookUpManualNetlistsIn(std::vector<const CNetList*> netlists) {
        manualLookup_ = std::move(netlists);
    }

    // Steps of the run, public for the window and the tests.
    bool CheckNetlistReferences() const;
    bool IsManualNetlist(const std::string& name) const;
    void LoadMainDataTables();
    std::int32_t LoadNetlistTables(int position);

private:
    void appendLine(const std::string& text);
    void appendCounts();
    bool scanLabels(int label);
    void feedCodes(const CNetList& netlist, std::int32_t& result);
    void replay(const NetlistFeed& feed);
    void rebuildWires(CNetList& netlist);
    void onLabelField(std::int16_t id, const std::string& text);

    ProgramState& state_;
    NXComp& control_;
    const Clock& clock_;
    std::string results_;
    bool compWarnings_ = false;
    std::array<int, 3> plabelState_{}; // by label, 1 and 2
    bool storedDataAsked_ = false;
    std::vector<const CNetList*> manualLookup_;
};

// The program id of a program name: its first 16 characters, cut at the first
// blank when that is not the first character.
std::string ProgramIdOf(const std::string& programName);

// An OLE date (days since 30 December 1899) of a local time.
double OleDate(int year, int month, int day, int hour, int minute, int second);

} // namespace zolt::compile
