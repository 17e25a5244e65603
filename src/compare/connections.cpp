#include "compare/connections.h"

#include "compare/nets.h"
#include "compare/row_compare.h"
#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <algorithm>

namespace zolt::compare {
namespace {

// "(none)" marks a cavity left empty on purpose.
bool IsWire(const std::string& wire) {
    return !wire.empty() && wire != "(none)";
}

// The node of a name among those of one kind (cavities, wires, splices).
int NodeOf(std::unordered_map<std::string, int>& nodes, Nets& nets, const std::string& name) {
    const auto [it, added] = nodes.try_emplace(name, 0);
    if (added)
        it->second = nets.Add();
    return it->second;
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

int Connections::Find(const std::string& name) const {
    const auto found = std::lower_bound(cavities.begin(), cavities.end(), name);
    return found != cavities.end() && *found == name ? static_cast<int>(found - cavities.begin())
                                                     : -1;
}

std::set<std::string> Connections::Partners(int cavity) const {
    std::set<std::string> names;
    for (const int other : nets[static_cast<std::size_t>(netOf[static_cast<std::size_t>(cavity)])])
        if (other != cavity)
            names.insert(cavities[static_cast<std::size_t>(other)]);
    return names;
}

std::string Connections::WireNetText(const std::string& wire) const {
    const auto found = wireNet.find(wire);
    if (found == wireNet.end() || found->second < 0)
        return "wire " + wire;
    std::set<std::string> names;
    for (const int cavity : nets[static_cast<std::size_t>(found->second)])
        names.insert(cavities[static_cast<std::size_t>(cavity)]);
    return Joined(names);
}

Connections GatherConnections(std::vector<std::pair<std::string, int>> cavityKeys,
                              const std::vector<std::pair<std::string, int>>& wireKeys) {
    std::stable_sort(cavityKeys.begin(), cavityKeys.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    cavityKeys.erase(std::unique(cavityKeys.begin(), cavityKeys.end(),
                                 [](const auto& a, const auto& b) { return a.first == b.first; }),
                     cavityKeys.end());
    Connections result;
    std::vector<int> netOfKey;
    result.cavities.reserve(cavityKeys.size());
    result.netOf.reserve(cavityKeys.size());
    for (auto& [name, key] : cavityKeys) {
        const auto k = static_cast<std::size_t>(key);
        if (k >= netOfKey.size())
            netOfKey.resize(k + 1, -1);
        if (netOfKey[k] < 0) {
            netOfKey[k] = static_cast<int>(result.nets.size());
            result.nets.emplace_back();
        }
        result.nets[static_cast<std::size_t>(netOfKey[k])].push_back(
            static_cast<int>(result.cavities.size()));
        result.netOf.push_back(netOfKey[k]);
        result.cavities.push_back(std::move(name));
    }
    result.wireNet.reserve(wireKeys.size());
    for (const auto& [wire, key] : wireKeys) {
        const auto k = static_cast<std::size_t>(key);
        result.wireNet.emplace(wire, k < netOfKey.size() ? netOfKey[k] : -1);
    }
    return result;
}

Connections ConnectionsOf(const CNetList& netlist) {
    Nets nets;
    std::unordered_map<std::string, int> pinNodes, wireNodes, spliceNodes;
    std::vector<std::pair<std::string, int>> pins;
    if (const Table* table = netlist.GetTable(table::Pin)) {
        const Grid& rows = table->gridarray();
        pins.reserve(static_cast<std::size_t>(rows.Rows()));
        pinNodes.reserve(static_cast<std::size_t>(rows.Rows()));
        wireNodes.reserve(static_cast<std::size_t>(rows.Rows()));
        for (int r = 1; r <= rows.Rows(); ++r) {
            // Drawings name cavities in any case; the tables keep them upper case.
            const std::string connector = vb::UCase(Cell(rows, r, pin_column::Connector));
            if (connector.empty())
                continue;
            std::string name = PinName(connector, vb::UCase(Cell(rows, r, pin_column::Pin)));
            const int node = NodeOf(pinNodes, nets, name);
            pins.emplace_back(std::move(name), node);
            const std::string wire = Cell(rows, r, pin_column::Wire);
            if (IsWire(wire))
                nets.Join(node, NodeOf(wireNodes, nets, wire));
        }
    }
    if (const Table* table = netlist.GetTable(table::Splice)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r) {
            const std::string splice = Cell(rows, r, splice_column::Number);
            const std::string wire = Cell(rows, r, splice_column::Wire);
            if (!splice.empty() && IsWire(wire))
                nets.Join(NodeOf(spliceNodes, nets, splice), NodeOf(wireNodes, nets, wire));
        }
    }
    // Wires of the Wire and Component tables that reach no cavity still have a net.
    if (const Table* table = netlist.GetTable(table::Wire)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r)
            if (const auto wire = Cell(rows, r, wire_column::Wire); IsWire(wire))
                NodeOf(wireNodes, nets, wire);
    }
    if (const Table* table = netlist.GetTable(table::Component)) {
        const Grid& rows = table->gridarray();
        for (int r = 1; r <= rows.Rows(); ++r)
            for (const int column : {component_column::Wire1, component_column::Wire2})
                if (const auto wire = Cell(rows, r, column); IsWire(wire))
                    NodeOf(wireNodes, nets, wire);
    }
    for (auto& [pin, node] : pins)
        node = nets.Root(node);
    std::vector<std::pair<std::string, int>> wires;
    wires.reserve(wireNodes.size());
    for (const auto& [wire, node] : wireNodes)
        wires.emplace_back(wire, nets.Root(node));
    return GatherConnections(std::move(pins), wires);
}

Connections ConnectionsOfPairs(const std::vector<std::pair<std::string, std::string>>& pairs) {
    Nets nets;
    std::vector<std::pair<std::string, int>> pins;
    for (const auto& [from, to] : pairs) {
        const int a = nets.Node(from);
        const int b = nets.Node(to);
        pins.emplace_back(from, a);
        pins.emplace_back(to, b);
        nets.Join(a, b);
    }
    for (auto& [pin, node] : pins)
        node = nets.Root(node);
    return GatherConnections(std::move(pins));
}

} // namespace zolt::compare
