#pragma once

// Fault coverage: every single fault of the chosen classes on the designed
// harness, and whether the program shows it.

#include "analyzer/fault.h"
#include "analyzer/run.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zolt::analyzer {

enum class FaultClass { Open, Short, Soft, Swap, Component, Switch };

inline constexpr FaultClass kFaultClasses[] = {FaultClass::Open,      FaultClass::Short,
                                               FaultClass::Soft,      FaultClass::Swap,
                                               FaultClass::Component, FaultClass::Switch};

std::string_view FaultClassName(FaultClass c);

// Well above any continuity threshold (Test Resistance is 1000 to 5000 ohms).
inline constexpr double kSoftShortOhms = 10000;

struct ClassesParse {
    std::vector<FaultClass> classes;
    std::string error;
};
// "open,short,soft,swap,component,switch"
ClassesParse ParseFaultClasses(std::string_view text);

struct ClassFault {
    FaultClass faultClass = FaultClass::Open;
    Fault fault;
};

// Opens of every point that shares its conductor, hard and soft shorts between
// every two conductors the netlists test, swaps of two pins of one connector on
// different conductors, each component missing, each polarised one reversed and
// each resistor with limits read off them, each switch stuck open and stuck closed.
// The soft shorts leak through kSoftShortOhms.
std::vector<ClassFault> SingleFaults(const compile::ProgramImage& image, const Harness& harness,
                                     const PointNames& names,
                                     const std::vector<FaultClass>& classes);

struct ClassCoverage {
    FaultClass faultClass = FaultClass::Open;
    int faults = 0;
    int detected = 0;
};

struct UndetectedFault {
    ClassFault fault;
    std::string reason;
    // The sequence line the reason is about (from 1); 0 when it names none.
    std::size_t line = 0;
};

struct Coverage {
    RunResult good; // the run on the fault-free harness
    std::vector<ClassCoverage> classes;
    std::vector<UndetectedFault> undetected;
    int faults = 0;
    int detected = 0;
    // Every fault was judged by the scans it touches; false when the fault-free
    // run shows errors and each fault had to be run.
    bool judgedByScans = true;
    // The user stopped the measure: the counts are of the faults judged so far.
    bool cancelled = false;
};

// Told after each fault judged; false stops the measure.
using CoverageProgress = std::function<bool(int judged, int faults)>;

// A fault is detected when its run's error lines or verdict differ from the
// fault-free run's.
bool DetectedByRun(const compile::ProgramImage& image, const Harness& harness,
                   const PointNames& names, const RunOptions& options, const RunResult& good,
                   const Fault& fault);

Coverage MeasureCoverage(const compile::ProgramImage& image, const Harness& harness,
                         const PointNames& names, const std::vector<FaultClass>& classes,
                         const RunOptions& options, const CoverageProgress& progress = {});

} // namespace zolt::analyzer
