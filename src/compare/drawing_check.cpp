#include "compare/drawing_check.h"

#include "compare/connections.h"
#include "compare/nets.h"
#include "compare/row_compare.h"
#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <map>

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
    return out;
}

} // namespace zolt::compare
