#pragma once

#include "assembly/compile_progress.h"
#include "core/ports/clock.h"

#include <string>

namespace zolt {

// Always the same moment, so that every run writes the same compile date.
class FixedClock final : public Clock {
public:
    LocalTime Now() const override { return {2026, 1, 1, 0, 0, 0}; }
};

// A progress window nobody watches.
class SilentProgress final : public CompileProgress {
public:
    void Caption(const std::string&) override {}
    void SetRange(int, int) override {}
    void SetPosition(int) override {}
    void Hide() override {}
};

} // namespace zolt
