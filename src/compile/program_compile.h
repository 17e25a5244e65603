#pragma once

#include "compile/diagnostics.h"
#include "compile/netlist_feed_of.h"
#include "compile/program_image.h"
#include "core/grid.h"
#include "core/ports/clock.h"
#include "core/ports/ui.h"
#include "core/value.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zolt {
struct Project;
class CNetList;
class CParamList;
} // namespace zolt

namespace zolt::compile {

// How a compile run ended.
enum class CompileEnd {
    Finished,       // the counts are in the results; errors may be among them
    MissingNetlist, // the reference check stopped it
    Aborted,        // a label rule stopped it, after its box
    Failed,         // a run-time error, after the "Compilation Failed!" box
    Asking,         // it stopped at `CompileResult::question`: run it again with the answer
};

// The settings a compile reads, as they stand when it starts.
struct CompileSettings {
    bool compWarnings = false;
    Value logMask; // empty: log everything
    double dwellTime = 0;
    std::int32_t switchType = 0;
    bool seqBuild = false;
    Value testVoltage;
    Value testCurrent;
    Value threshold;
    FeedSettings feed;
    std::string ejfFolder; // where the label files of PLABEL lines lie
};

// The parameters' values of those settings.
CompileSettings CompileSettingsOf(CParamList& params);

// Everything a compile needs besides the project.
struct CompileRequest {
    std::string programFile; // names the image: "<folder>/<stem>.bin"
    CompileSettings settings;
    LocalTime now; // the compile date
    // A line ahead of the compile's own results.
    std::string note;
    // Where the manual-netlist lookup looks; empty: the project's own netlists.
    std::vector<const CNetList*> manualNetlists;
    // The answer to the stored-label-data question once it has been asked.
    std::optional<bool> useStoredLabels;
    bool trace = false;
    // Told of the results text whenever it grew, so that a window can show it.
    std::function<void(const std::string&)> resultsChanged;
};

// A netlist's Wires rows in sequential build order.
struct WireOrder {
    std::string netlist;
    Grid wires;
};

// What a compile made, for the caller to show, store and apply.
struct CompileResult {
    static constexpr std::size_t kResultsLimit = 50000;

    CompileEnd end = CompileEnd::Finished;
    // The box the run ended with (a label rule, "Compilation Failed!").
    std::optional<MessageBox> box;
    // With `CompileEnd::Asking`: the question to ask before the run can go on.
    std::optional<MessageBox> question;
    std::string results;
    std::vector<std::string> trace; // every control call, when asked for
    ProgramImage image;
    std::vector<Diagnostic> diagnostics;
    std::int32_t warnings = 0;
    std::int32_t errors = 0;
    std::int32_t logMask = 0;
    // The files of the compiled program by path: the `.bin` only without errors.
    std::vector<std::pair<std::string, std::string>> files;
    std::vector<WireOrder> wireOrders;
    // The rows the label files gave labels 1 and 2, to be kept for the next compile.
    std::array<std::optional<Grid>, 2> labelData;
    // Set once a netlist compiled from its tables: the project's compile date.
    std::optional<double> compiledDate;
};

// Compiles `project` as it stands, touching neither it nor any file: the image
// and `.dgn` bytes, the findings and the results text, the build order and the
// label data come back in the result.
CompileResult Compile(const Project& project, const CompileRequest& request);

// The image at `path` could not be stored: its finding joins the results,
// ahead of the counts, and the `.dgn` bytes, and the result has one more error.
void ReportUnwrittenImage(CompileResult& result, const std::string& path);

// The program id of a program name: its first 16 characters, cut at the first
// blank when that is not the first character.
std::string ProgramIdOf(const std::string& programName);

// An OLE date (days since 30 December 1899) of a local time.
double OleDate(const LocalTime& time);

} // namespace zolt::compile
