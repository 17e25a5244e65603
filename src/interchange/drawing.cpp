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
    };
    std::vector<std::string> order;
    std::map<std::string, Seen> seen;
    for (const DrawingConnector& c : drawing.connectors)
        seen[c.name].line = -1;
    for (const DrawingWire& wire : drawing.wires)
        for (const Cavity& end : wire.ends) {
            auto [at, added] = seen.try_emplace(end.connector);
            if (at->second.line < 0)
                continue;
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
    for (const std::string& name : order) {
        const Seen& s = seen[name];
        drawing.connectors.push_back(
            {name, std::max(s.highest, static_cast<int>(s.pins.size())), s.line});
    }
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
