#include "compare/connections.h"

#include "compare/nets.h"
#include "compare/row_compare.h"
#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <unordered_map>

namespace zolt::compare {
namespace {

// "(none)" marks a cavity left empty on purpose.
bool IsWire(const std::string& wire) {
    return !wire.empty() && wire != "(none)";
}

Connections Collect(Nets& nets, const std::map<std::string, int>& pins,
                    const std::map<std::string, int>& wires) {
    std::unordered_map<int, std::set<std::string>> byRoot;
    for (const auto& [pin, node] : pins)
        byRoot[nets.Root(node)].insert(pin);
    Connections result;
    for (const auto& [pin, node] : pins) {
        auto others = byRoot[nets.Root(node)];
        others.erase(pin);
        result.partners.emplace(pin, std::move(others));
    }
    for (const auto& [wire, node] : wires) {
        const auto found = byRoot.find(nets.Root(node));
        result.wireNet.emplace(wire,
                               found == byRoot.end() ? "wire " + wire : Joined(found->second));
    }
    return result;
}

} // namespace

std::string PinName(const std::string& connector, const std::string& pin) {
    return connector + "-" + pin;
}

std::string Joined(const std::set<std::string>& pins) {
    if (pins.empty())
        return "nothing";
    std::string text;
    for (const auto& pin : pins)
        text += (text.empty() ? "" : ", ") + pin;
    return text;
}

Connections ConnectionsOf(const CNetList& netlist) {
    Nets nets;
    std::map<std::string, int> pins;
    std::map<std::string, int> wires;
    auto wireNode = [&](const std::string& wire) {
        const int node = nets.Node("W" + wire);
        wires.emplace(wire, node);
        return node;
    };
    if (const Table* table = netlist.GetTable(table::Pin)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r) {
            // Drawings name cavities in any case; the tables keep them upper case.
            const std::string connector = vb::UCase(Cell(rows, r, pin_column::Connector));
            if (connector.empty())
                continue;
            const std::string name = PinName(connector, vb::UCase(Cell(rows, r, pin_column::Pin)));
            const int node = nets.Node("P" + name);
            pins.emplace(name, node);
            const std::string wire = Cell(rows, r, pin_column::Wire);
            if (IsWire(wire))
                nets.Join(node, wireNode(wire));
        }
    }
    if (const Table* table = netlist.GetTable(table::Splice)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r) {
            const std::string splice = Cell(rows, r, splice_column::Number);
            const std::string wire = Cell(rows, r, splice_column::Wire);
            if (!splice.empty() && IsWire(wire))
                nets.Join(nets.Node("S" + splice), wireNode(wire));
        }
    }
    // Wires of the Wire and Component tables that reach no cavity still have a net.
    if (const Table* table = netlist.GetTable(table::Wire)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r)
            if (const auto wire = Cell(rows, r, wire_column::Wire); IsWire(wire))
                wireNode(wire);
    }
    if (const Table* table = netlist.GetTable(table::Component)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r)
            for (const int column : {component_column::Wire1, component_column::Wire2})
                if (const auto wire = Cell(rows, r, column); IsWire(wire))
                    wireNode(wire);
    }
    return Collect(nets, pins, wires);
}

Connections ConnectionsOfPairs(const std::vector<std::pair<std::string, std::string>>& pairs) {
    Nets nets;
    std::map<std::string, int> pins;
    for (const auto& [from, to] : pairs) {
        const int a = nets.Node(from);
        const int b = nets.Node(to);
        pins.emplace(from, a);
        pins.emplace(to, b);
        nets.Join(a, b);
    }
    return Collect(nets, pins, {});
}

} // namespace zolt::compare
