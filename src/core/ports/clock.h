#pragma once

#include <chrono>

namespace zolt {

// A moment of local time, to the second.
struct LocalTime {
    int year = 2000; // full year
    int month = 1;   // 1 to 12
    int day = 1;
    int hour = 0; // 0 to 23
    int minute = 0;
    int second = 0;
};

// The time of day as the program sees it; tests give a fixed one.
class Clock {
public:
    virtual ~Clock() = default;
    virtual LocalTime Now() const = 0;
    // For measuring intervals (time-outs); never goes back. Tests may speed it up.
    virtual std::chrono::steady_clock::time_point Monotonic() const {
        return std::chrono::steady_clock::now();
    }
};

// The machine's own clock.
class SystemClock final : public Clock {
public:
    LocalTime Now() const override;
};

} // namespace zolt
