#include "core/value.h"
#include "interchange/wire_colours.h"
#include "interchange/wireviz_reader.h"
#include "interchange/yaml_document.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace zolt::interchange {
namespace {

// Bounds that keep aliases and long ranges from growing a small file into a
// huge drawing.
constexpr int kMaxParallel = 4096;
constexpr std::size_t kMaxEnds = 100'000; // fifty times the analyzer's test points
constexpr int kMaxWires = 50'000;

struct Invalid : std::runtime_error {
    Invalid(int line, const std::string& why) : std::runtime_error(AtLine(line, why)) {}
    Invalid(const YamlNode& node, const std::string& why) : Invalid(node.Line(), why) {}
};

std::string scalar(const YamlNode& node, const char* what) {
    if (!node.IsScalar())
        throw Invalid(node, std::string(what) + " must be a plain value");
    return node.Scalar();
}

int number(const YamlNode& node, const char* what, int limit) {
    const std::string text = scalar(node, what);
    if (text.empty() || text.size() > 9 ||
        text.find_first_not_of("0123456789") != std::string::npos)
        throw Invalid(node, std::string(what) + " \"" + text + "\" is no whole number");
    const int n = std::stoi(text);
    if (n > limit)
        throw Invalid(node,
                      std::string(what) + " " + text + " is more than " + std::to_string(limit));
    return n;
}

std::vector<std::string> scalars(const YamlNode& node, const char* what) {
    if (!node)
        return {};
    if (!node.IsSequence())
        throw Invalid(node, std::string(what) + " must be a list");
    std::vector<std::string> list;
    for (const YamlNode item : node)
        list.push_back(scalar(item, what));
    return list;
}

bool flag(const YamlNode& node) {
    return node && node.IsScalar() && vb::UCase(node.Scalar()) == "TRUE";
}

// "1-4" as 1, 2, 3, 4 and "9-7" as 9, 8, 7; anything else as itself.
std::vector<std::string> expand(const YamlNode& node, const char* what) {
    const std::string text = scalar(node, what);
    const std::size_t dash = text.find('-', 1);
    const auto whole = [](const std::string& part) {
        return !part.empty() && part.size() <= 6 &&
               part.find_first_not_of("0123456789") == std::string::npos;
    };
    if (dash == std::string::npos || !whole(text.substr(0, dash)) || !whole(text.substr(dash + 1)))
        return {text};
    const int from = std::stoi(text.substr(0, dash));
    const int to = std::stoi(text.substr(dash + 1));
    if (std::abs(to - from) >= kMaxParallel)
        throw Invalid(node,
                      "the range " + text + " is longer than " + std::to_string(kMaxParallel));
    std::vector<std::string> list;
    for (int i = from;; i += to >= from ? 1 : -1) {
        list.push_back(std::to_string(i));
        if (i == to)
            break;
    }
    return list;
}

struct ConnectorKind {
    std::vector<std::string> pins;
    std::set<std::string> pinSet;
    std::vector<std::string> labels;
    bool simple = false;
    bool autogenerate = false;
    int line = 0;
    YamlNode loops;
};

struct CableKind {
    int wires = 0;
    std::vector<std::string> colours; // codes, one a wire
    std::vector<std::string> labels;
    bool shield = false;
    int line = 0;
};

// A place along a connection: a connector's cavity, or a wire of a cable.
struct Stop {
    bool isCable = false;
    std::string instance;
    std::string pinOrWire; // the pin id, or the wire's index ("s" the shield)
};

class WireVizReader {
public:
    explicit WireVizReader(YamlNode root) : root_(root) {}

    Drawing Run() {
        if (!root_.IsMap())
            throw Invalid(root_, "no WireViz harness: the file holds no sections");
        readConnectors();
        readCables();
        if (const YamlNode sets = root_["connections"]) {
            if (!sets.IsSequence())
                throw Invalid(sets, "connections must be a list of connection sets");
            for (const YamlNode set : sets)
                readSet(set);
        }
        return finish();
    }

private:
    void readConnectors() {
        const YamlNode connectors = root_["connectors"];
        if (!connectors)
            return;
        if (!connectors.IsMap())
            throw Invalid(connectors, "connectors must be a map of designators");
        for (std::size_t entry = 0; entry < connectors.size(); ++entry) {
            const std::string name = scalar(connectors.Key(entry), "a designator");
            const YamlNode a = connectors.Value(entry);
            ConnectorKind kind;
            kind.line = connectors.Key(entry).Line();
            kind.simple =
                a && a.IsMap() && a["style"] && vb::LCase(scalar(a["style"], "style")) == "simple";
            kind.autogenerate = a && a.IsMap() && flag(a["autogenerate"]);
            if (a && a.IsMap()) {
                kind.pins = scalars(a["pins"], "pins");
                kind.labels = scalars(a["pinlabels"], "pinlabels");
                kind.loops = a["loops"];
                int count = a["pincount"] ? number(a["pincount"], "pincount", 9999) : 0;
                count = std::max({count, static_cast<int>(kind.pins.size()),
                                  static_cast<int>(kind.labels.size()), kind.simple ? 1 : 0});
                for (int i = static_cast<int>(kind.pins.size()); i < count; ++i)
                    kind.pins.push_back(std::to_string(i + 1));
            } else if (a && !a.IsNull()) {
                throw Invalid(a, name + " must be a map of attributes");
            }
            if (kind.simple && kind.pins.empty())
                kind.pins.push_back("1");
            kind.pinSet.insert(kind.pins.begin(), kind.pins.end());
            connectorKinds_[name] = std::move(kind);
            connectorOrder_.push_back(name);
        }
    }

    void readCables() {
        const YamlNode cables = root_["cables"];
        if (!cables)
            return;
        if (!cables.IsMap())
            throw Invalid(cables, "cables must be a map of designators");
        for (std::size_t entry = 0; entry < cables.size(); ++entry) {
            const std::string name = scalar(cables.Key(entry), "a designator");
            const YamlNode a = cables.Value(entry);
            if (!a.IsMap())
                throw Invalid(cables.Key(entry), name + " must be a map of attributes");
            CableKind kind;
            kind.line = cables.Key(entry).Line();
            kind.colours = scalars(a["colors"], "colors");
            kind.labels = scalars(a["wirelabels"], "wirelabels");
            kind.wires = a["wirecount"] ? number(a["wirecount"], "wirecount", kMaxWires)
                                        : static_cast<int>(kind.colours.size());
            if (a["color_code"]) {
                const auto colours =
                    ColourCodeColours(scalar(a["color_code"], "color_code"), kind.wires);
                if (!colours)
                    throw Invalid(a["color_code"],
                                  "colour code " + a["color_code"].Scalar() + " is not known for " +
                                      std::to_string(kind.wires) + " wires; list the colours");
                kind.colours = *colours;
            } else if (!kind.colours.empty()) {
                const std::vector<std::string> given = kind.colours;
                kind.colours.clear();
                for (int i = 0; i < kind.wires; ++i)
                    kind.colours.push_back(given[static_cast<std::size_t>(i) % given.size()]);
            }
            kind.shield = a["shield"] &&
                          (!a["shield"].IsScalar() || vb::UCase(a["shield"].Scalar()) != "FALSE");
            cableKinds_[name] = std::move(kind);
        }
    }

    // An item's designator: "X1", "Y.Y1" (instance Y1 of template Y), "Z."
    // (a new unnamed instance at each use, as a connector that autogenerates).
    struct Designation {
        std::string templ;
        std::string instance; // empty: a new one at each use
    };
    Designation designator(const YamlNode& node) const {
        const std::string text = scalar(node, "a designator");
        const std::size_t dot = text.find('.');
        if (dot != std::string::npos)
            return {text.substr(0, dot), text.substr(dot + 1)};
        // An instance made earlier from a template is named by itself.
        for (const auto* instances : {&connectorInstances_, &cableInstances_})
            if (const auto made = instances->find(text); made != instances->end())
                return {made->second, text};
        const auto found = connectorKinds_.find(text);
        const bool fresh = found != connectorKinds_.end() && found->second.autogenerate;
        return {text, fresh ? std::string() : text};
    }

    std::string instanceOf(const Designation& d) {
        return d.instance.empty() ? d.templ + "_" + std::to_string(++unnamedCount_[d.templ])
                                  : d.instance;
    }

    static bool isArrow(const std::string& text) {
        return !text.empty() && text.find_first_not_of("<>-=") == std::string::npos;
    }

    // The stops of one item for each of `width` parallel connections.
    // The pins or wires an item names, ranges expanded.
    static std::vector<std::string> refsOf(const YamlNode& node) {
        if (!node.IsSequence())
            return expand(node, "a pin or wire");
        std::vector<std::string> refs;
        for (const YamlNode ref : node)
            for (std::string& one : expand(ref, "a pin or wire"))
                refs.push_back(std::move(one));
        return refs;
    }

    std::vector<Stop> stopsOf(const YamlNode& item, int width,
                              const std::vector<std::string>& refs) {
        std::vector<Stop> stops;
        if (item.IsScalar() || item.IsSequence()) {
            // Single-pin connectors: one named, or one of a list for each connection.
            std::vector<YamlNode> names;
            if (item.IsScalar())
                names.assign(static_cast<std::size_t>(width), item);
            else
                for (const YamlNode n : item)
                    names.push_back(n);
            if (static_cast<int>(names.size()) != width)
                throw Invalid(item, "this item names " + std::to_string(names.size()) +
                                        " connectors where the set has " + std::to_string(width));
            for (const YamlNode name : names) {
                if (isArrow(scalar(name, "a designator")))
                    throw Invalid(name, "arrows join mated connectors, which no netlist holds; "
                                        "join the pins with wires");
                const Designation d = designator(name);
                const ConnectorKind& kind = connectorKind(name, d.templ);
                if (kind.pins.size() != 1)
                    throw Invalid(name, d.templ + " has " + std::to_string(kind.pins.size()) +
                                            " pins; name the pin");
                const std::string instance = instanceOf(d);
                noteInstance(instance, d.templ, false);
                stops.push_back({false, instance, kind.pins.front()});
            }
            return stops;
        }
        if (!item.IsMap() || item.size() != 1)
            throw Invalid(item, "a connection item is a designator with its pins or wires");
        const YamlNode designation = item.Key(0);
        const YamlNode given = item.Value(0);
        const Designation d = designator(designation);
        if (static_cast<int>(refs.size()) != width && refs.size() != 1)
            throw Invalid(item, "this item has " + std::to_string(refs.size()) +
                                    " pins or wires where the set has " + std::to_string(width));
        const bool cable = cableKinds_.count(d.templ) > 0;
        if (!cable)
            connectorKind(designation, d.templ);
        const std::string instance = instanceOf(d);
        noteInstance(instance, d.templ, cable);
        for (int i = 0; i < width; ++i) {
            const std::string& ref = refs[refs.size() == 1 ? 0 : static_cast<std::size_t>(i)];
            stops.push_back({cable, instance,
                             cable ? wireOf(given, d.templ, ref) : pinOf(given, d.templ, ref)});
        }
        return stops;
    }

    const ConnectorKind& connectorKind(const YamlNode& node, const std::string& name) {
        const auto found = connectorKinds_.find(name);
        if (found == connectorKinds_.end())
            throw Invalid(node, name + " is neither a connector nor a cable of the file");
        return found->second;
    }

    void noteInstance(const std::string& instance, const std::string& templ, bool cable) {
        auto& instances = cable ? cableInstances_ : connectorInstances_;
        if (instances.emplace(instance, templ).second && !cable)
            instanceOrder_.push_back(instance);
        if (templ != instance)
            templates_.insert(templ);
    }

    std::string pinOf(const YamlNode& node, const std::string& templ, const std::string& ref) {
        const ConnectorKind& kind = connectorKinds_.at(templ);
        if (kind.pinSet.count(ref))
            return ref;
        const auto label = std::find(kind.labels.begin(), kind.labels.end(), ref);
        if (label != kind.labels.end() &&
            std::count(kind.labels.begin(), kind.labels.end(), ref) == 1)
            return kind.pins[static_cast<std::size_t>(label - kind.labels.begin())];
        throw Invalid(node, templ + " has no pin \"" + ref + "\"");
    }

    std::string wireOf(const YamlNode& node, const std::string& templ, const std::string& ref) {
        const CableKind& kind = cableKinds_.at(templ);
        if (vb::UCase(ref) == "S" && kind.shield)
            return "S";
        if (!ref.empty() && ref.find_first_not_of("0123456789") == std::string::npos &&
            ref.size() <= 6) {
            const int n = std::stoi(ref);
            if (n >= 1 && n <= kind.wires)
                return ref;
            throw Invalid(node, templ + " has no wire " + ref);
        }
        for (const auto* names : {&kind.labels, &kind.colours})
            if (std::count(names->begin(), names->end(), ref) == 1)
                return std::to_string(std::find(names->begin(), names->end(), ref) -
                                      names->begin() + 1);
        throw Invalid(node, templ + " has no wire \"" + ref + "\" (or more than one)");
    }

    void readSet(const YamlNode& set) {
        if (!set.IsSequence() || set.size() == 0)
            throw Invalid(set, "a connection set is a list of items");
        const YamlNode& items = set;
        int width = 1;
        std::vector<std::vector<std::string>> refs(items.size());
        for (std::size_t c = 0; c < items.size(); ++c) {
            const YamlNode& item = items[c];
            if (item.IsSequence())
                width = std::max(width, static_cast<int>(item.size()));
            else if (item.IsMap() && item.size() == 1) {
                refs[c] = refsOf(item.Value(0));
                width = std::max(width, static_cast<int>(refs[c].size()));
            }
            if (width > kMaxParallel)
                throw Invalid(item, "more than " + std::to_string(kMaxParallel) +
                                        " parallel connections");
        }
        // Bounded before the work is done: aliases may name one wide set many times.
        stops_ += static_cast<std::size_t>(width) * items.size();
        if (stops_ > kMaxEnds)
            throw Invalid(set, "the connections expand to more than " + std::to_string(kMaxEnds) +
                                   " wire ends");
        std::vector<std::vector<Stop>> columns;
        for (std::size_t c = 0; c < items.size(); ++c)
            columns.push_back(stopsOf(items[c], width, refs[c]));
        // Each wire of a cable ends at the connectors on either side of it.
        for (std::size_t c = 0; c < columns.size(); ++c) {
            if (!columns[c].front().isCable)
                continue;
            for (std::size_t i = 0; i < static_cast<std::size_t>(width); ++i) {
                const std::size_t wire = wireAt(columns[c][i], items[c]);
                if (c > 0 && !columns[c - 1].front().isCable)
                    endAt(wire, columns[c - 1][i]);
                if (c + 1 < columns.size() && !columns[c + 1].front().isCable)
                    endAt(wire, columns[c + 1][i]);
            }
        }
    }

    std::size_t wireAt(const Stop& stop, const YamlNode& near) {
        const int line = near.Line();
        const std::string key = stop.instance + "\n" + stop.pinOrWire;
        const auto found = wireIndex_.find(key);
        if (found != wireIndex_.end())
            return found->second;
        if (drawing_.wires.size() >= static_cast<std::size_t>(kMaxWires))
            throw Invalid(near, "more than " + std::to_string(kMaxWires) + " wires");
        const CableKind& kind = cableKinds_.at(cableInstances_.at(stop.instance));
        DrawingWire wire;
        wire.line = line;
        if (stop.pinOrWire == "S") {
            wire.name = stop.instance + "-S";
        } else {
            const auto n = static_cast<std::size_t>(std::stoi(stop.pinOrWire));
            const std::string label = n <= kind.labels.size() ? kind.labels[n - 1] : "";
            wire.name = label.empty() ? stop.instance + "-" + stop.pinOrWire : label;
            if (n <= kind.colours.size()) {
                const auto colours = ColoursOfCode(kind.colours[n - 1]);
                if (!colours)
                    throw Invalid(kind.line, "colour \"" + kind.colours[n - 1] + "\" of " +
                                                 wire.name +
                                                 " is no IEC 60757 code of one or two colours");
                wire.base = colours->base;
                wire.stripe = colours->stripe;
            }
        }
        drawing_.wires.push_back(std::move(wire));
        wireIndex_.emplace(key, drawing_.wires.size() - 1);
        return drawing_.wires.size() - 1;
    }

    void endAt(std::size_t wire, const Stop& cavity) {
        const ConnectorKind& kind = connectorKinds_.at(connectorInstances_.at(cavity.instance));
        DrawingWire& w = drawing_.wires[wire];
        if (kind.simple || kind.autogenerate) {
            auto& joined = spliceWires_[cavity.instance];
            if (std::find(joined.begin(), joined.end(), w.name) == joined.end())
                joined.push_back(w.name);
            return;
        }
        for (const Cavity& end : w.ends)
            if (end.connector == cavity.instance && end.pin == cavity.pinOrWire)
                return;
        w.ends.push_back({cavity.instance, cavity.pinOrWire});
    }

    Drawing finish() {
        // Connectors: each named one that is not only a template, then the instances.
        std::vector<std::string> names;
        for (const std::string& name : connectorOrder_)
            if (!templates_.count(name) && !connectorKinds_.at(name).simple &&
                !connectorKinds_.at(name).autogenerate)
                names.push_back(name);
        for (const std::string& name : instanceOrder_)
            if (std::find(names.begin(), names.end(), name) == names.end()) {
                const ConnectorKind& kind = connectorKinds_.at(connectorInstances_.at(name));
                if (!kind.simple && !kind.autogenerate)
                    names.push_back(name);
            }
        for (const std::string& name : names) {
            const auto templ =
                connectorInstances_.count(name) ? connectorInstances_.at(name) : name;
            const ConnectorKind& kind = connectorKinds_.at(templ);
            drawing_.connectors.push_back({name, static_cast<int>(kind.pins.size()), kind.line});
            addLoops(name, templ);
        }
        int number = 0;
        for (const std::string& instance : instanceOrder_) {
            const auto found = spliceWires_.find(instance);
            if (found == spliceWires_.end() || found->second.size() < 2)
                continue;
            const int line = connectorKinds_.at(connectorInstances_.at(instance)).line;
            drawing_.splices.push_back({++number, found->second, line});
        }
        return std::move(drawing_);
    }

    // A loop shorts two pins of the connector: a wire between them.
    void addLoops(const std::string& name, const std::string& templ) {
        const YamlNode loops = connectorKinds_.at(templ).loops;
        if (!loops)
            return;
        if (!loops.IsSequence())
            throw Invalid(loops, "loops must be a list of pin pairs");
        int n = 0;
        for (const YamlNode loop : loops) {
            if (!loop.IsSequence() || loop.size() != 2)
                throw Invalid(loop, "a loop joins exactly two pins");
            DrawingWire wire;
            wire.name = name + "-L" + std::to_string(++n);
            wire.line = loop.Line();
            for (const YamlNode pin : loop)
                wire.ends.push_back({name, pinOf(pin, templ, scalar(pin, "a pin"))});
            drawing_.wires.push_back(std::move(wire));
        }
    }

    const YamlNode root_;
    Drawing drawing_;
    std::map<std::string, ConnectorKind> connectorKinds_;
    std::vector<std::string> connectorOrder_;
    std::map<std::string, CableKind> cableKinds_;
    std::map<std::string, std::string> connectorInstances_; // instance → template
    std::map<std::string, std::string> cableInstances_;
    std::vector<std::string> instanceOrder_;
    std::set<std::string> templates_;
    std::map<std::string, int> unnamedCount_;
    std::map<std::string, std::size_t> wireIndex_;
    std::map<std::string, std::vector<std::string>> spliceWires_;
    std::size_t stops_ = 0;
};

} // namespace

DrawingRead ReadWireViz(std::string_view text, const DrawingOptions& /*options*/) {
    const YamlRead yaml = ReadYaml(text);
    if (!yaml.ok())
        return {{}, yaml.error};
    try {
        return {WireVizReader(yaml.document.Root()).Run(), {}};
    } catch (const std::runtime_error& e) {
        return {{}, e.what()};
    }
}

} // namespace zolt::interchange
