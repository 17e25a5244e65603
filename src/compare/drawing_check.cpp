#include "compare/drawing_check.h"

#include "compare/connections.h"
#include "compare/nets.h"
#include "compare/row_compare.h"
#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <map>
#include <set>

namespace zolt::compare {
namespace {

// The colour names by number, from the Color table.
std::map<std::string, std::string> ColourNames(const CNetList& main) {
    std::map<std::string, std::string> names;
    if (const Table* table = main.GetTable(table::Color)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r)
            names.emplace(Cell(rows, r, color_column::Number),
                          vb::UCase(Cell(rows, r, color_column::Color)));
    }
    return names;
}

// The colour of the wire at every cavity: "GRN", or "GRN/BLK" with a stripe.
std::map<std::string, std::string> CavityColours(const CNetList& netlist, const CNetList& main) {
    const auto names = ColourNames(main);
    auto name = [&](const std::string& number) {
        const auto found = names.find(number);
        return found == names.end() ? number : found->second;
    };
    std::map<std::string, std::string> wireColour;
    if (const Table* table = netlist.GetTable(table::Wire)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r) {
            const std::string stripe = Cell(rows, r, wire_column::StripeColor);
            wireColour.emplace(
                Cell(rows, r, wire_column::Wire),
                name(Cell(rows, r, wire_column::BaseColor)) +
                    (stripe.empty() || stripe == "(none)" ? "" : "/" + name(stripe)));
        }
    }
    std::map<std::string, std::string> colours;
    if (const Table* table = netlist.GetTable(table::Pin)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r) {
            const auto found = wireColour.find(Cell(rows, r, pin_column::Wire));
            if (found != wireColour.end())
                colours.emplace(PinName(vb::UCase(Cell(rows, r, pin_column::Connector)),
                                        vb::UCase(Cell(rows, r, pin_column::Pin))),
                                found->second);
        }
    }
    return colours;
}

// The net of a cavity as the connections name it: "J1-4, J2-5".
std::string NetOf(const Connections& program, const std::string& cavity) {
    std::set<std::string> pins{cavity};
    if (const int found = program.Find(cavity); found >= 0)
        pins.merge(program.Partners(found));
    return Joined(pins);
}

// The components the drawing names against the Components table, by kind and
// by the nets of their sides: each one missing, fitted the other way round,
// or fitted here beyond the drawing.
void CheckParts(const CNetList& netlist, const Connections& program, const FromToList& drawing,
                Differences& out) {
    struct Fitted {
        std::string kind, number, side1, side2;
        bool matched = false;
    };
    std::vector<Fitted> fitted;
    if (const Table* table = netlist.GetTable(table::Component)) {
        const Grid& rows = table->gridarray();
        const auto netOfWire = [&](const std::string& wire) {
            const auto found = program.wireNet.find(wire);
            std::set<std::string> pins;
            if (found != program.wireNet.end() && found->second >= 0)
                for (const int cavity : program.nets[static_cast<std::size_t>(found->second)])
                    pins.insert(program.cavities[static_cast<std::size_t>(cavity)]);
            return pins.empty() ? std::string() : Joined(pins);
        };
        for (int r = 1; r <= rows.Rows(); ++r)
            fitted.push_back({vb::UCase(Cell(rows, r, component_column::DeviceType)),
                              Cell(rows, r, component_column::Number),
                              netOfWire(Cell(rows, r, component_column::Wire1)),
                              netOfWire(Cell(rows, r, component_column::Wire2))});
    }
    const std::string& where = netlist.NetlistName;
    const auto fits = [&](const std::string& cavity, const std::string& net) {
        return cavity.empty() || NetOf(program, cavity) == net;
    };
    for (const DrawingPart& part : drawing.parts) {
        const auto between = part.side1 + " and " + part.side2;
        Fitted* same = nullptr;
        Fitted* reversed = nullptr;
        for (Fitted& f : fitted) {
            if (f.matched || f.kind != part.kind)
                continue;
            if (fits(part.side1, f.side1) && fits(part.side2, f.side2))
                same = same ? same : &f;
            else if (fits(part.side1, f.side2) && fits(part.side2, f.side1))
                reversed = reversed ? reversed : &f;
        }
        if (Fitted* f = same ? same : reversed) {
            f->matched = true;
            if (!same)
                out.push_back({where, "Component",
                               part.kind + " " + part.name + " reversed: side 1 on " + part.side2 +
                                   " here, on " + part.side1 + " in the drawing"});
            continue;
        }
        out.push_back(
            {where, "Component", "missing " + part.kind + " " + part.name + " between " + between});
    }
    for (const Fitted& f : fitted)
        if (!f.matched)
            out.push_back(
                {where, "Component",
                 "extra " + f.kind + " " + f.number + " between " + f.side1 + " and " + f.side2});
}

} // namespace

Differences CheckAgainstDrawing(const CNetList& netlist, const CNetList& colours,
                                const FromToList& drawing) {
    const std::string& where = netlist.NetlistName;
    const std::string table = "Connections";
    const Connections program = ConnectionsOf(netlist);
    Differences out;

    Nets programNets;
    for (const auto& net : program.nets)
        for (const int other : net)
            programNets.Join(program.cavities[static_cast<std::size_t>(net.front())],
                             program.cavities[static_cast<std::size_t>(other)]);
    for (const auto& connection : drawing.connections) {
        if (programNets.Joined(connection.from, connection.to))
            continue;
        out.push_back({where, table, "missing " + connection.from + " to " + connection.to});
        programNets.Join(connection.from, connection.to);
    }

    Nets drawingNets;
    for (const auto& connection : drawing.connections)
        drawingNets.Join(connection.from, connection.to);
    for (std::size_t c = 0; c < program.cavities.size(); ++c)
        for (const int o : program.nets[static_cast<std::size_t>(program.netOf[c])]) {
            const std::string& pin = program.cavities[c];
            const std::string& other = program.cavities[static_cast<std::size_t>(o)];
            if (other <= pin || drawingNets.Joined(pin, other))
                continue;
            out.push_back({where, table, "extra " + pin + " to " + other});
            drawingNets.Join(pin, other);
        }

    const auto cavityColours = CavityColours(netlist, colours);
    for (const auto& connection : drawing.connections) {
        const auto found = cavityColours.find(connection.from);
        if (connection.colour.empty() || found == cavityColours.end() ||
            found->second == connection.colour)
            continue;
        out.push_back({where, "Wire",
                       connection.from + " to " + connection.to + ": colour " + connection.colour +
                           " in the drawing, " + found->second + " here"});
    }
    if (drawing.namesParts)
        CheckParts(netlist, program, drawing, out);
    return out;
}

} // namespace zolt::compare
