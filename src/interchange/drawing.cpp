#include "interchange/drawing.h"

#include "core/value.h"

#include <algorithm>
#include <map>
#include <set>

namespace zolt::interchange {

void AddConnectorsOfEnds(Drawing& drawing) {
    struct Seen {
        std::set<std::string> pins;
        int highest = 0;
        int line = 0;
        int needed() const { return std::max(highest, static_cast<int>(pins.size())); }
    };
    std::vector<std::string> order;
    std::map<std::string, Seen> seen;
    for (const DrawingConnector& c : drawing.connectors)
        seen[c.name].line = -1;
    for (const DrawingWire& wire : drawing.wires)
        for (const Cavity& end : wire.ends) {
            auto [at, added] = seen.try_emplace(end.connector);
            if (added) {
                order.push_back(end.connector);
                at->second.line = wire.line;
            }
            at->second.pins.insert(end.pin);
            if (vb::IsNumeric(std::string_view(end.pin)))
                // Clamped: the Connector table refuses past 999 pins anyway.
                at->second.highest = std::max(
                    at->second.highest, static_cast<int>(std::clamp(vb::Val(end.pin), 0.0, 1e6)));
        }
    // A listed connector whose pin count the drawing does not give takes its cavities'.
    for (DrawingConnector& c : drawing.connectors)
        if (c.pins == 0)
            c.pins = seen[c.name].needed();
    for (const std::string& name : order)
        drawing.connectors.push_back({name, seen[name].needed(), seen[name].line});
}

std::string FreeWireName(std::set<std::string>& taken, int& next) {
    for (;; ++next) {
        std::string name = "W" + std::to_string(next);
        if (taken.insert(name).second) {
            ++next;
            return name;
        }
    }
}

} // namespace zolt::interchange
