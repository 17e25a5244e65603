#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zolt::compile {

// What the driver hands over for one netlist, row by row and in table order,
// before the compile control makes anything of it.
struct NetlistFeed {
    struct FixturePoint {
        std::int32_t board = 0;
        std::int32_t point = 0;
        std::string connector;
        std::string pin;
    };
    struct Connector {
        std::string name;
        std::int32_t pins = 0;
        std::int32_t switches = 0;
        std::int32_t lamp1 = -1;
        std::int32_t lamp2 = -1;
        std::string grid;
    };
    struct Switch {
        std::string connector;
        std::string pin;
        std::string commons;
        std::int16_t ordinal = 0;
    };
    struct Group {
        std::string group, connector, pin, base, stripe;
    };
    struct Wire {
        std::string name, base, stripe;
    };
    struct Pin {
        std::string connector, pin, wire;
    };
    struct Splice {
        std::int32_t number = 0;
        std::string wire;
    };
    struct Component {
        std::string kind;
        std::int32_t number = 0;
        std::string wire1, wire2;
        std::int32_t parameter = 0;
    };
    struct Reversible {
        std::int32_t number = 0;
        std::string connector1, pin1, connector2, pin2;
    };
    struct Code {
        std::string command, parameter;
    };

    std::string name;
    std::vector<FixturePoint> fixture;
    std::vector<Connector> connectors;
    std::vector<Switch> switches;
    std::vector<Group> groups;
    std::vector<Wire> wires;
    std::vector<Pin> pins;
    std::vector<Splice> splices;
    std::vector<Component> components;
    std::vector<Reversible> reversibles;
    std::vector<Code> codes;
};

// The pin text that means "no wire on this cavity".
inline constexpr const char* kUnconnected = "*UNC*";
// The fixture row of a switch common: connector "0" holds the one common of all
// switches, and a connector's own common is its pin "COM".
inline constexpr const char* kCommonConnector = "0";
inline constexpr const char* kCommonPin = "COM";

} // namespace zolt::compile
