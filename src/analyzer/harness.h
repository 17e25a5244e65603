#pragma once

// The harness on the fixture, as the analyzer's probes meet it: which test points
// one conductor joins, the devices between conductors, and the soft shorts.

#include "compile/program_image.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt::analyzer {

struct HarnessComponent {
    std::string kind; // the image's kind code
    int number = 0;
    // The conductors the sides are wired to (side A: the anode of a diode). A
    // device stays on its wires when a pin is cut loose or moved.
    int sideA = 0;
    int sideB = 0;
    bool missing = false;
    bool reversed = false;
    std::optional<double> ohms; // a resistor off its value
    bool operator==(const HarnessComponent&) const = default;
};

// A switch between its own test point and its common's.
struct HarnessSwitch {
    std::string connector;
    std::string name;
    int point = 0;
    int common = 0;
    bool stuckOpen = false;
    bool stuckClosed = false;
    bool operator==(const HarnessSwitch&) const = default;
};

// Two conductors joined through a resistance rather than metal.
struct SoftShort {
    int a = 0;
    int b = 0;
    double ohms = 0;
    bool operator==(const SoftShort&) const = default;
};

struct Harness {
    // Per test point the conductor it lies on; points of one conductor share the
    // number. An unwired point is a conductor of its own.
    std::vector<int> conductor;
    std::vector<HarnessComponent> components;
    std::vector<SoftShort> softShorts;
    std::vector<HarnessSwitch> switches;
    bool operator==(const Harness&) const = default;
};

// The netlists the designed harness is made of, in the order they were laid on:
// MAIN, then those the sequence names, then the rest. A netlist that would join
// two nets another one keeps apart is another build and is left out; one the
// sequence never names is left out also when it joins two loose points.
std::vector<std::string> HarnessNetlists(const compile::ProgramImage& image);

// The harness as the image designs it.
Harness DesignedHarness(const compile::ProgramImage& image);

// A label no designed conductor uses: the conductor of a point cut loose.
int LooseConductor(int point);

} // namespace zolt::analyzer
