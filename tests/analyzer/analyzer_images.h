#pragma once

// Hand-made compiled programs for the virtual analyzer's tests.

#include "compile/program_image.h"

#include <string>
#include <utility>
#include <vector>

namespace zolt::test {

using Lines = std::vector<std::pair<std::string, std::string>>;

inline compile::ImageNetlist MakeNetlist(std::string name, std::vector<compile::TestPointSet> nets,
                                         std::vector<compile::ImageComponent> components = {}) {
    compile::ImageNetlist netlist;
    netlist.name = std::move(name);
    netlist.nets = std::move(nets);
    netlist.components = std::move(components);
    return netlist;
}

inline compile::ImageComponent Diode(int number, int netA, int netB) {
    return {"DIOM", number, netA, netB, 0};
}

// Names test points as connector pins, the way group members carry them.
inline void NamePins(compile::ImageNetlist& netlist,
                     const std::vector<std::pair<std::string, int>>& pins) {
    for (const auto& [pin, point] : pins) {
        const auto dash = pin.find('-');
        netlist.groups.push_back(
            {"G", pin.substr(0, dash), pin.substr(dash + 1), "BLK", "", point});
    }
}

inline compile::ProgramImage MakeProgram(const Lines& sequence,
                                         std::vector<compile::ImageNetlist> netlists) {
    compile::ProgramImage image;
    image.header.programId = "TEST";
    image.header.programName = "test";
    image.header.fixturePoints = 2048;
    for (const auto& [command, parameter] : sequence)
        image.sequence.push_back({command, parameter});
    image.messages = {{"1", "FIRST"}, {"2", "SECOND"}, {"3", "THIRD"}};
    image.netlists = std::move(netlists);
    return image;
}

// MAIN: J1-1/J2-1 (0, 1), J1-2/J2-2 (2, 3), J1-3 alone (4), J1-4/J2-4 (5, 6);
// diode D1 from the first net (anode) to the second.
inline compile::ProgramImage DoorProgram(const Lines& sequence) {
    auto main = MakeNetlist("MAIN", {{0, 1}, {2, 3}, {4}, {5, 6}}, {Diode(1, 0, 1)});
    // clang-format off
    NamePins(main, {{"J1-1", 0}, {"J2-1", 1}, {"J1-2", 2}, {"J2-2", 3}, {"J1-3", 4}, {"J1-4", 5}, {"J2-4", 6}});
    // clang-format on
    return MakeProgram(sequence, {main});
}

} // namespace zolt::test
