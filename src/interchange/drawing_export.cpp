#include "interchange/drawing_export.h"

#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/value.h"
#include "interchange/csv.h"
#include "interchange/wire_colours.h"
#include "tables/data_validation.h"

#include <map>
#include <set>
#include <sstream>

namespace zolt::interchange {
namespace {

std::string cell(const Grid& rows, int r, int c) {
    return vb::Trim(rows.Text(r, c));
}

const Grid* rowsOf(const CNetList& netlist, TableId id) {
    const Table* table = netlist.GetTable(id);
    return table ? &table->gridarray() : nullptr;
}

bool isWire(const std::string& wire) {
    return !wire.empty() && wire != "(none)";
}

// YAML double-quoted text.
std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            out += '\\';
        out += c;
    }
    return out + "\"";
}

// A pin as WireViz numbers it: a plain number bare, anything else quoted, so
// that the pin lists and the connections name it alike.
std::string pinText(const std::string& pin) {
    const bool plain = !pin.empty() && pin.size() < 7 && pin.front() != '0' &&
                       pin.find_first_not_of("0123456789") == std::string::npos;
    return plain ? pin : quoted(pin);
}

// The pins of a connector as WireViz lists them: those in use, then numbers
// up to the connector's count.
std::vector<std::string> pinsOf(const DrawingConnector& connector, const Drawing& drawing) {
    std::vector<std::string> pins;
    std::set<std::string> seen;
    for (int i = 1; i <= connector.pins; ++i)
        if (seen.insert(std::to_string(i)).second)
            pins.push_back(std::to_string(i));
    for (const DrawingWire& wire : drawing.wires)
        for (const Cavity& end : wire.ends)
            if (end.connector == connector.name && seen.insert(end.pin).second)
                pins.push_back(end.pin);
    return pins;
}

std::map<std::string, const DrawingSplice*> spliceOfWire(const Drawing& drawing) {
    std::map<std::string, const DrawingSplice*> splices;
    for (const DrawingSplice& splice : drawing.splices)
        for (const std::string& wire : splice.wires)
            splices.emplace(wire, &splice);
    return splices;
}

void noteComponents(const Drawing& drawing, const char* why, std::vector<std::string>& notes) {
    for (const DrawingComponent& c : drawing.components)
        notes.push_back(c.kind + " " + std::to_string(c.number) + " between wires " + c.wire1 +
                        " and " + c.wire2 + " is not written: " + why);
}

} // namespace

Drawing DrawingOfNetlist(const CNetList& netlist, const CNetList& main) {
    Drawing drawing;
    std::map<std::string, std::string> colourNames;
    if (const Grid* rows = rowsOf(main, table::Color))
        for (int r = 1; r <= rows->Rows(); ++r)
            colourNames.emplace(cell(*rows, r, color_column::Number),
                                vb::UCase(cell(*rows, r, color_column::Color)));
    const auto colour = [&](const std::string& number) {
        const auto found = colourNames.find(number);
        return found == colourNames.end() ? std::string() : found->second;
    };
    if (const Grid* rows = rowsOf(netlist, table::Connector))
        for (int r = 1; r <= rows->Rows(); ++r)
            drawing.connectors.push_back(
                {cell(*rows, r, connector_column::Connector),
                 static_cast<int>(ToLong(rows->At(r, connector_column::PinsQty))), r});
    std::map<std::string, std::size_t> wireAt;
    if (const Grid* rows = rowsOf(netlist, table::Wire))
        for (int r = 1; r <= rows->Rows(); ++r) {
            const std::string name = cell(*rows, r, wire_column::Wire);
            wireAt.emplace(name, drawing.wires.size());
            drawing.wires.push_back({name,
                                     colour(cell(*rows, r, wire_column::BaseColor)),
                                     colour(cell(*rows, r, wire_column::StripeColor)),
                                     {},
                                     r});
        }
    if (const Grid* rows = rowsOf(netlist, table::Pin))
        for (int r = 1; r <= rows->Rows(); ++r) {
            const auto found = wireAt.find(cell(*rows, r, pin_column::Wire));
            if (found != wireAt.end())
                drawing.wires[found->second].ends.push_back(
                    {cell(*rows, r, pin_column::Connector), cell(*rows, r, pin_column::Pin)});
        }
    if (const Grid* rows = rowsOf(netlist, table::Splice)) {
        std::map<int, std::size_t> spliceAt;
        for (int r = 1; r <= rows->Rows(); ++r) {
            const int number = static_cast<int>(ToLong(rows->At(r, splice_column::Number)));
            const std::string wire = cell(*rows, r, splice_column::Wire);
            if (!isWire(wire))
                continue;
            const auto [at, added] = spliceAt.emplace(number, drawing.splices.size());
            if (added)
                drawing.splices.push_back({number, {}, r});
            drawing.splices[at->second].wires.push_back(wire);
        }
    }
    if (const Grid* rows = rowsOf(netlist, table::Component))
        for (int r = 1; r <= rows->Rows(); ++r)
            drawing.components.push_back(
                {vb::UCase(cell(*rows, r, component_column::DeviceType)),
                 {},
                 static_cast<int>(ToLong(rows->At(r, component_column::Number))),
                 cell(*rows, r, component_column::Wire1),
                 cell(*rows, r, component_column::Wire2),
                 cell(*rows, r, component_column::Value),
                 r});
    return drawing;
}

std::string WireVizText(const Drawing& drawing, std::vector<std::string>& notes) {
    std::set<std::string> names;
    for (const DrawingConnector& c : drawing.connectors)
        names.insert(c.name);
    // The bundle and splice names must not be those of connectors.
    const auto freeName = [&](std::string name) {
        while (!names.insert(name).second)
            name += "_";
        return name;
    };
    const std::string bundle = freeName("W");
    std::map<const DrawingSplice*, std::string> spliceName;
    for (const DrawingSplice& splice : drawing.splices)
        spliceName[&splice] = freeName("SP" + std::to_string(splice.number));

    std::ostringstream out;
    out << "connectors:\n";
    for (const DrawingConnector& c : drawing.connectors) {
        out << "  " << quoted(c.name) << ":\n    pins: [";
        const auto pins = pinsOf(c, drawing);
        for (std::size_t i = 0; i < pins.size(); ++i)
            out << (i ? ", " : "") << pinText(pins[i]);
        out << "]\n";
    }
    for (const auto& [splice, name] : spliceName)
        out << "  " << quoted(name) << ":\n    style: simple\n    type: Splice\n";
    if (drawing.connectors.empty() && drawing.splices.empty())
        out << "  {}\n";

    out << "\ncables:\n  " << quoted(bundle) << ":\n    category: bundle\n";
    out << "    wirecount: " << drawing.wires.size() << "\n";
    out << "    colors: [";
    for (std::size_t i = 0; i < drawing.wires.size(); ++i) {
        const DrawingWire& w = drawing.wires[i];
        auto code = CodeOfColours({w.base, w.stripe});
        if (!code) {
            notes.push_back("wire " + w.name + ": colour " + ColourText({w.base, w.stripe}) +
                            " has no IEC 60757 code and is written without one");
            code = "";
        }
        out << (i ? ", " : "") << quoted(*code);
    }
    out << "]\n    wirelabels: [";
    for (std::size_t i = 0; i < drawing.wires.size(); ++i)
        out << (i ? ", " : "") << quoted(drawing.wires[i].name);
    out << "]\n";

    out << "\nconnections:\n";
    const auto splices = spliceOfWire(drawing);
    for (std::size_t i = 0; i < drawing.wires.size(); ++i) {
        const DrawingWire& w = drawing.wires[i];
        std::vector<std::string> sides;
        for (const Cavity& end : w.ends)
            sides.push_back(quoted(end.connector) + ": " + pinText(end.pin));
        if (const auto found = splices.find(w.name); found != splices.end())
            sides.push_back(quoted(spliceName[found->second]));
        if (sides.size() > 2) {
            notes.push_back("wire " + w.name + " has more than two ends; only two are written");
            sides.resize(2);
        }
        out << "  -\n";
        if (!sides.empty())
            out << "    - " << sides[0] << "\n";
        out << "    - " << quoted(bundle) << ": " << i + 1 << "\n";
        if (sides.size() > 1)
            out << "    - " << sides[1] << "\n";
    }
    noteComponents(drawing, "the WireViz export writes no parts", notes);
    return out.str();
}

std::string FromToText(const Drawing& drawing, std::vector<std::string>& notes) {
    std::ostringstream out;
    WriteCsvRow(out, {"From Connector", "From Pin", "To Connector", "To Pin", "Wire", "Colour"});
    const auto row = [&](const Cavity& from, const Cavity& to, const DrawingWire& wire) {
        WriteCsvRow(out, {from.connector, from.pin, to.connector, to.pin, wire.name,
                          ColourText({wire.base, wire.stripe})});
    };
    std::map<std::string, const DrawingWire*> byName;
    for (const DrawingWire& w : drawing.wires) {
        byName.emplace(w.name, &w);
        if (w.ends.size() == 2)
            row(w.ends[0], w.ends[1], w);
    }
    for (const DrawingSplice& splice : drawing.splices) {
        const Cavity* first = nullptr;
        for (const std::string& name : splice.wires) {
            const auto found = byName.find(name);
            if (found == byName.end() || found->second->ends.size() != 1)
                continue;
            if (!first)
                first = &found->second->ends.front();
            else
                row(*first, found->second->ends.front(), *found->second);
        }
    }
    noteComponents(drawing, "the list has no parts", notes);
    return out.str();
}

} // namespace zolt::interchange
