#pragma once

// A run of the compiled sequence on a simulated harness, and what it leaves:
// the operator's display, the error lines, where it ended, the counters.

#include "analyzer/scan.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zolt::analyzer {

// What the operator presses, in order: "START", "STOP", "KEY" (the key switch) or a
// number typed on the key pad. When they run out the operator presses START.
using Keys = std::vector<std::string>;

struct KeysParse {
    Keys keys;
    std::string error;
};
// "start,start,stop,12": the words in any case.
KeysParse ParseKeys(std::string_view text);

struct RunOptions {
    Keys keys;
    std::size_t stepLimit = 100000;
};

struct TranscriptLine {
    std::size_t line = 0; // the sequence line, from 1
    std::string text;
    bool operator==(const TranscriptLine&) const = default;
};

struct ErrorLine {
    std::size_t line = 0;
    ErrorKind kind = ErrorKind::Open;
    std::string text;
    bool operator==(const ErrorLine&) const = default;
};

// A scan the run made, for deciding faults without running again.
struct ScanRecord {
    std::string netlist;
    int parts = 0;
    ScanSettings settings;
    bool operator==(const ScanRecord&) const = default;
};

struct Counters {
    int errors = 0; // since the last RESET
    int opens = 0;
    int shorts = 0;
    int softShorts = 0; // since the last RSS
    int components = 0;
    int switches = 0;
    int rcount = 0;
    int scount = 0;
    int holding = 0;
    bool operator==(const Counters&) const = default;
};

enum class RunEnd {
    End,          // END
    Repeat,       // REPEAT: ready for the next harness
    LastLine,     // ran past the last line
    StopKey,      // the operator stopped it
    BreakOnError, // EBRK and an error
    StepLimit,    // looped without end
    ProgramError, // a branch to no line, RETURN without GOSUB, a netlist that is not there
    OtherProgram, // RUN, SELECT, DOWNLOAD: another program would go on
};

struct RunResult {
    std::vector<TranscriptLine> transcript;
    std::vector<ErrorLine> errors;
    std::size_t endLine = 0;
    RunEnd end = RunEnd::LastLine;
    std::string endText; // why it ended, in words
    Counters counters;
    std::vector<int> timesRun; // per sequence line, line 1 first
    std::vector<ScanRecord> scans;
    std::size_t steps = 0;
    double seconds = 0; // simulated, never slept

    // Ended as the program means to and with no error on its counter.
    bool Passed() const;
};

// The scan parts a sequence command runs on its netlist; 0 for any other command.
int ScanPartsOf(std::string_view command);

RunResult Run(const compile::ProgramImage& image, const Harness& harness, const PointNames& names,
              const RunOptions& options);

} // namespace zolt::analyzer
