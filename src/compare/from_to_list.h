#pragma once

#include <string>
#include <vector>

namespace zolt::compare {

// One connection of a drawing's wire list.
struct DrawingConnection {
    std::string from; // "J1-4"
    std::string to;
    std::string wire;
    std::string colour;
    int line = 0; // of the list, for messages
};

// A part the drawing places between two nets, each named by one cavity on
// it (empty where the net reaches none).
struct DrawingPart {
    std::string kind;  // "DIODE"
    std::string name;  // "D1"
    std::string side1; // a diode's anode
    std::string side2;
    int line = 0;
};

struct FromToList {
    std::vector<DrawingConnection> connections;
    std::vector<DrawingPart> parts;
    // The drawing names every part: the Components table is checked against it.
    bool namesParts = false;
    // Why the list cannot be used; empty when it was read whole.
    std::string error;
    bool ok() const { return error.empty(); }
};

// The rows of a from/to list (from connector, from pin, to connector, to pin,
// wire, colour; the last two may be missing). A first row whose first cell
// starts with "from" is the heading; blank rows are skipped.
FromToList ReadFromToRows(const std::vector<std::vector<std::string>>& rows);

} // namespace zolt::compare
