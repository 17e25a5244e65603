#include "interchange/drawing_connections.h"

#include "compare/connections.h"
#include "compare/nets.h"
#include "core/value.h"
#include "interchange/wire_colours.h"

#include <map>

namespace zolt::interchange {

compare::FromToList FromToListOf(const Drawing& drawing, bool namesParts) {
    compare::Nets nets;
    for (const DrawingSplice& splice : drawing.splices)
        for (const std::string& wire : splice.wires)
            nets.Join("S" + std::to_string(splice.number), "W" + wire);
    // The nets in the order their first wire comes, each with its cavities.
    struct Stop {
        std::string cavity;
        const DrawingWire* wire;
    };
    std::map<int, std::vector<Stop>> stops;
    std::vector<int> order;
    std::map<std::string, std::string> cavityOfWire;
    for (const DrawingWire& wire : drawing.wires)
        for (const Cavity& end : wire.ends) {
            const int root = nets.Root(nets.Node("W" + wire.name));
            auto [at, added] = stops.try_emplace(root);
            if (added)
                order.push_back(root);
            const std::string cavity =
                compare::PinName(vb::UCase(end.connector), vb::UCase(end.pin));
            at->second.push_back({cavity, &wire});
        }
    compare::FromToList list;
    list.namesParts = namesParts;
    for (const int root : order) {
        const auto& net = stops[root];
        for (std::size_t i = 1; i < net.size(); ++i)
            list.connections.push_back(
                {net[0].cavity, net[i].cavity, vb::UCase(net[0].wire->name),
                 vb::UCase(ColourText({net[0].wire->base, net[0].wire->stripe})),
                 net[i].wire->line});
    }
    for (const DrawingComponent& c : drawing.components) {
        const auto cavityOn = [&](const std::string& wire) {
            const auto found = stops.find(nets.Root(nets.Node("W" + wire)));
            return found == stops.end() ? std::string() : found->second.front().cavity;
        };
        list.parts.push_back({c.kind, c.reference.empty() ? std::to_string(c.number) : c.reference,
                              cavityOn(c.wire1), cavityOn(c.wire2), c.line});
    }
    if (list.connections.empty() && list.parts.empty())
        list.error = "the drawing holds no connection";
    return list;
}

compare::FromToList ReadDrawingConnections(const std::string& path, const DrawingOptions& options) {
    const DrawingRead read = ReadDrawingFile(path, options);
    if (!read.ok()) {
        compare::FromToList failed;
        failed.error = read.error;
        return failed;
    }
    const DrawingFormat* format = FindDrawingFormat(path);
    return FromToListOf(read.drawing, format && format->namesParts);
}

} // namespace zolt::interchange
