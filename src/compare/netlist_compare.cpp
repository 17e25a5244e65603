#include "compare/netlist_compare.h"

#include "compare/row_compare.h"
#include "core/netlist.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>

namespace zolt::compare {
namespace {

const Grid* RowsOf(const CNetList& netlist, TableId id) {
    const Table* table = netlist.GetTable(id);
    return table ? &table->gridarray() : nullptr;
}

// Rows by their key column (first row wins), as the shown cells.
std::map<std::string, int> RowsByKey(const Grid* rows, int keyColumn) {
    std::map<std::string, int> keyed;
    for (int r = 1; rows && r <= rows->Rows(); ++r)
        if (auto key = Cell(*rows, r, keyColumn); !key.empty())
            keyed.emplace(std::move(key), r);
    return keyed;
}

Differences CompareConnectors(const std::string& where, const CNetList& beforeNetlist,
                              const CNetList& afterNetlist) {
    const Grid* before = RowsOf(beforeNetlist, table::Connector);
    const Grid* after = RowsOf(afterNetlist, table::Connector);
    const auto a = RowsByKey(before, connector_column::Connector);
    const auto b = RowsByKey(after, connector_column::Connector);
    const std::string table = GetTableName(table::Connector);
    Differences out;
    auto pins = [](const Grid& rows, int r) { return Cell(rows, r, connector_column::PinsQty); };
    for (const auto& [name, row] : a)
        if (!b.contains(name))
            out.push_back(
                {where, table, "connector " + name + " removed (" + pins(*before, row) + " pins)"});
    for (const auto& [name, row] : b) {
        const auto old = a.find(name);
        if (old == a.end()) {
            out.push_back(
                {where, table, "connector " + name + " added (" + pins(*after, row) + " pins)"});
            continue;
        }
        const std::string was = pins(*before, old->second);
        const std::string now = pins(*after, row);
        if (was != now)
            out.push_back({where, table, name + " now has " + now + " pins (was " + was + ")"});
        const auto shown = ShownColumnsOf(*beforeNetlist.GetTable(table::Connector));
        const std::string wasRow = RowText(*before, old->second, shown);
        const std::string nowRow = RowText(*after, row, shown);
        if (was == now && wasRow != nowRow)
            out.push_back({where, table, "connector now " + nowRow + " (was " + wasRow + ")"});
    }
    return out;
}

// A component as the engineer reads it: its sides by the nets they reach.
struct ComponentView {
    std::string sides;
    std::string values;
};

std::map<std::string, ComponentView> Components(const Grid* rows, const Connections& nets) {
    std::map<std::string, ComponentView> found;
    auto net = [&](const std::string& wire) {
        return wire.empty() ? std::string("nothing") : nets.WireNetText(wire);
    };
    for (int r = 1; rows && r <= rows->Rows(); ++r) {
        const std::string name =
            Cell(*rows, r, component_column::DeviceType) + Cell(*rows, r, component_column::Number);
        if (name.empty())
            continue;
        ComponentView view;
        view.sides = "between " + net(Cell(*rows, r, component_column::Wire1)) + " and " +
                     net(Cell(*rows, r, component_column::Wire2));
        auto cell = [&](int column) {
            const std::string text = Cell(*rows, r, column);
            return text.empty() ? std::string("-") : text;
        };
        view.values = "value " + cell(component_column::Value) + " -" +
                      cell(component_column::LowerTol) + " +" + cell(component_column::UpperTol) +
                      ", parameter " + cell(component_column::Parameter);
        found.emplace(name, std::move(view));
    }
    return found;
}

Differences CompareComponents(const std::string& where, const Grid* before, const Grid* after,
                              const Connections& netsBefore, const Connections& netsAfter) {
    const auto a = Components(before, netsBefore);
    const auto b = Components(after, netsAfter);
    const std::string table = GetTableName(table::Component);
    Differences out;
    for (const auto& [name, view] : a)
        if (!b.contains(name))
            out.push_back({where, table, name + " removed (was " + view.sides + ")"});
    for (const auto& [name, view] : b) {
        const auto old = a.find(name);
        if (old == a.end()) {
            out.push_back({where, table, name + " added " + view.sides + ", " + view.values});
            continue;
        }
        if (old->second.sides != view.sides)
            out.push_back(
                {where, table, name + " now " + view.sides + " (was " + old->second.sides + ")"});
        if (old->second.values != view.values)
            out.push_back(
                {where, table, name + " now " + view.values + " (was " + old->second.values + ")"});
    }
    return out;
}

// Whether a cavity keeps its partners: the nets compare by cavity numbers, a
// cavity of `before` turned into the number it has in `after`.
bool SamePartners(const Connections& before, int a, const Connections& after, int b,
                  const std::vector<int>& toAfter) {
    const auto& was =
        before.nets[static_cast<std::size_t>(before.netOf[static_cast<std::size_t>(a)])];
    const auto& now =
        after.nets[static_cast<std::size_t>(after.netOf[static_cast<std::size_t>(b)])];
    if (was.size() != now.size())
        return false;
    // Both are ascending by name, and so by number in either list.
    for (std::size_t k = 0; k < was.size(); ++k)
        if (toAfter[static_cast<std::size_t>(was[k])] != now[k])
            return false;
    return true;
}

} // namespace

Differences CompareConnections(const std::string& where, const Connections& before,
                               const Connections& after) {
    struct Change {
        std::string pin;
        std::optional<std::set<std::string>> was;
        std::optional<std::set<std::string>> now;
        std::set<std::string> moved; // the partners gained or lost
        std::size_t kept = 0;
    };
    std::vector<int> toAfter(before.cavities.size(), -1);
    std::vector<std::pair<int, int>> cavities; // before, after; -1 where absent
    for (std::size_t a = 0, b = 0; a < before.cavities.size() || b < after.cavities.size();) {
        const int order = a == before.cavities.size() ? 1
                          : b == after.cavities.size()
                              ? -1
                              : before.cavities[a].compare(after.cavities[b]);
        if (order == 0)
            toAfter[a] = static_cast<int>(b);
        cavities.emplace_back(order <= 0 ? static_cast<int>(a++) : -1,
                              order >= 0 ? static_cast<int>(b++) : -1);
    }
    const std::set<std::string> none;
    std::vector<Change> changes;
    for (const auto& [a, b] : cavities) {
        if (a >= 0 && b >= 0 && SamePartners(before, a, after, b, toAfter))
            continue;
        Change change{a >= 0 ? before.cavities[static_cast<std::size_t>(a)]
                             : after.cavities[static_cast<std::size_t>(b)],
                      a >= 0 ? std::optional(before.Partners(a)) : std::nullopt,
                      b >= 0 ? std::optional(after.Partners(b)) : std::nullopt,
                      {},
                      0};
        const auto& was = change.was ? *change.was : none;
        const auto& now = change.now ? *change.now : none;
        std::set_symmetric_difference(was.begin(), was.end(), now.begin(), now.end(),
                                      std::inserter(change.moved, change.moved.end()));
        change.kept = was.size() + now.size() - change.moved.size();
        changes.push_back(std::move(change));
    }
    // The cavity that moved keeps none of its partners, while those it left or
    // joined only lost or gained it: telling it first explains the others.
    std::stable_sort(changes.begin(), changes.end(), [](const Change& x, const Change& y) {
        if (x.kept != y.kept)
            return x.kept < y.kept;
        return (x.now ? x.now->size() : 0) > (y.now ? y.now->size() : 0);
    });
    const std::string table = "Connections";
    std::set<std::string> told;
    Differences out;
    for (const auto& change : changes) {
        if (std::includes(told.begin(), told.end(), change.moved.begin(), change.moved.end()) &&
            change.was && change.now)
            continue;
        told.insert(change.pin);
        if (!change.was)
            out.push_back({where, table, change.pin + " added, joins " + Joined(*change.now)});
        else if (!change.now)
            out.push_back(
                {where, table, change.pin + " removed (joined " + Joined(*change.was) + ")"});
        else
            out.push_back({where, table,
                           change.pin + " now joins " + Joined(*change.now) + " (was " +
                               Joined(*change.was) + ")"});
    }
    return out;
}

Differences CompareNetlists(const CNetList& before, const CNetList& after) {
    const std::string& where = after.NetlistName;
    // Most edits touch one netlist: tables whose cells are all the same need
    // no nets built, which is most of the time a compare takes.
    auto same = [&](TableId id) {
        const Grid* a = RowsOf(before, id);
        const Grid* b = RowsOf(after, id);
        return a && b && *a == *b;
    };
    Differences out;
    const bool sameWiring =
        same(table::Pin) && same(table::Splice) && same(table::Wire) && same(table::Component);
    if (!sameWiring) {
        const Connections netsBefore = ConnectionsOf(before);
        const Connections netsAfter = ConnectionsOf(after);
        out = CompareConnections(where, netsBefore, netsAfter);
        Append(out, CompareConnectors(where, before, after));
        Append(out, CompareComponents(where, RowsOf(before, table::Component),
                                      RowsOf(after, table::Component), netsBefore, netsAfter));
    } else if (!same(table::Connector)) {
        Append(out, CompareConnectors(where, before, after));
    }
    for (const TableId id : {table::Switches, table::Groups, table::Reversible, table::Fixture}) {
        const Table* a = before.GetTable(id);
        const Table* b = after.GetTable(id);
        if (a && b && !(a->gridarray() == b->gridarray()))
            Append(out, CompareRows(where, *a, *b));
    }
    return out;
}

} // namespace zolt::compare
