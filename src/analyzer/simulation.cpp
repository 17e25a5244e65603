#include "analyzer/simulation.h"

#include <utility>

namespace zolt::analyzer {

Simulation::Simulation(compile::ProgramImage image, Harness harness, PointNames names,
                       RunOptions options)
    : image_(std::move(image)), harness_(std::move(harness)), names_(std::move(names)),
      options_(std::move(options)) {
    Reset();
}

void Simulation::Step() {
    if (paused_)
        runTo(steps_ + 1);
}

void Simulation::RunToEnd() {
    if (paused_)
        runTo(options_.stepLimit);
}

void Simulation::Reset() {
    runTo(0);
}

// The interpreter is deterministic: running from the top to a step count gives
// the state a paused interpreter would hold, so stepping needs no second one.
void Simulation::runTo(std::size_t steps) {
    RunOptions limited = options_;
    limited.stepLimit = steps;
    result_ = Run(image_, harness_, names_, limited);
    steps_ = result_.steps;
    paused_ = result_.end == RunEnd::StepLimit && steps < options_.stepLimit;
}

} // namespace zolt::analyzer
