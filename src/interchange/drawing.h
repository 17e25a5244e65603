#pragma once

#include <set>
#include <string>
#include <vector>

namespace zolt::interchange {

// A harness as another tool draws it, in the terms of a netlist's tables:
// names as the tables store them, colours as the Color table names them
// ("GRN"), each row with the line of the file it came from.
struct Cavity {
    std::string connector;
    std::string pin;
};

struct DrawingConnector {
    std::string name;
    int pins = 0;
    int line = 0;
};

// A wire and the cavities it lands on: two, one (the other end goes to a
// splice or a part) or none.
struct DrawingWire {
    std::string name;
    std::string base;
    std::string stripe; // empty for none
    std::vector<Cavity> ends;
    int line = 0;
};

struct DrawingSplice {
    int number = 0;
    std::vector<std::string> wires;
    int line = 0;
};

// A part between the wires of its two sides; side 1 is a diode's anode.
struct DrawingComponent {
    std::string kind;      // a device kind of ZOLT.DEV: "DIODE", "RESISTOR"
    std::string reference; // "D1", as the drawing names it
    int number = 0;
    std::string wire1;
    std::string wire2;
    std::string value; // empty for none
    int line = 0;
};

struct Drawing {
    std::vector<DrawingConnector> connectors;
    std::vector<DrawingWire> wires;
    std::vector<DrawingSplice> splices;
    std::vector<DrawingComponent> components;
};

// What a reader made of a file: the drawing, or why there is none.
struct DrawingRead {
    Drawing drawing;
    std::string error; // "line 12: ..." where a line is to blame
    bool ok() const { return error.empty(); }
};

inline std::string AtLine(int line, const std::string& text) {
    return line > 0 ? "line " + std::to_string(line) + ": " + text : text;
}

// The connectors a drawing's wire ends name that it does not list yet, in
// the order they come, each with pins enough for the cavities it shows: its
// highest pin number, or its count of pins where that is more. A listed
// connector without a pin count gets its count so too.
void AddConnectorsOfEnds(Drawing& drawing);

// A wire name not `taken` yet, "W1", "W2", … from `next` on; taken from now on.
std::string FreeWireName(std::set<std::string>& taken, int& next);

} // namespace zolt::interchange
