#pragma once

// A run the engineer goes through line by line: one line at a time, or on to
// the end, and back to the top.

#include "analyzer/run.h"

#include <cstddef>

namespace zolt::analyzer {

class Simulation {
public:
    Simulation(compile::ProgramImage image, Harness harness, PointNames names, RunOptions options);

    // Runs the next line.
    void Step();
    // Runs on until the run ends.
    void RunToEnd();
    // Back before the first line.
    void Reset();

    // What the lines run so far have shown.
    const RunResult& Result() const { return result_; }
    bool Ended() const { return !paused_; }
    // The line that runs next (from 1); where the run ended once it has.
    std::size_t CurrentLine() const { return result_.endLine; }
    std::size_t Steps() const { return steps_; }
    const compile::ProgramImage& Image() const { return image_; }

private:
    void runTo(std::size_t steps);

    compile::ProgramImage image_;
    Harness harness_;
    PointNames names_;
    RunOptions options_;
    RunResult result_;
    std::size_t steps_ = 0;
    bool paused_ = true;
};

} // namespace zolt::analyzer
