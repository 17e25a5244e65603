#include "interchange/kicad_reader.h"

#include "core/value.h"
#include "interchange/s_expression.h"

#include <cctype>
#include <cmath>
#include <map>
#include <set>

namespace zolt::interchange {
namespace {

// What a part is to the harness.
struct Part {
    enum class Kind { Connector, Component } kind = Kind::Connector;
    std::string device; // DIODE, RESISTOR, CAPACITOR
    int number = 0;
    const SExpression* comp = nullptr;
    // The wires at its sides as nets give them, by pin.
    std::map<std::string, std::string> wireOfPin;
    std::map<std::string, std::string> functionOfPin;
};

// "J12" is prefix "J" and a number; the text after the prefix starts with a digit.
bool hasPrefix(const std::string& reference, const std::string& prefix) {
    return reference.size() > prefix.size() && vb::UCase(reference).starts_with(prefix) &&
           std::isdigit(static_cast<unsigned char>(reference[prefix.size()]));
}

std::optional<int> numberAfter(const std::string& reference, std::size_t prefix) {
    const std::string digits = reference.substr(prefix);
    if (digits.empty() || digits.size() > 6 ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    return std::stoi(digits);
}

// The net's own name, or "N" and its code where KiCad made the name up.
std::string wireBaseName(const SExpression& net) {
    std::string name = net.Value("name");
    if (name.starts_with("/"))
        name.erase(0, 1);
    if (name.empty() || name.find("Net-(") != std::string::npos ||
        name.starts_with("unconnected-") || name.find('/') != std::string::npos)
        return "N" + net.Value("code");
    return name;
}

class KicadReader {
public:
    KicadReader(const SExpression& root, const DrawingOptions& options)
        : root_(root), options_(options) {}

    std::string Run() {
        if (root_.Head() != "export")
            return AtLine(root_.line, "no KiCad netlist: the file does not start with (export");
        std::string error = readParts();
        if (error.empty())
            error = readNets();
        if (error.empty())
            error = readComponents();
        if (error.empty())
            AddConnectorsOfEnds(drawing_);
        return error;
    }

    Drawing& drawing() { return drawing_; }

private:
    std::string readParts() {
        const SExpression* components = root_.Child("components");
        if (!components)
            return AtLine(root_.line, "the netlist has no components");
        for (const SExpression* comp : components->Children("comp")) {
            const std::string reference = comp->Value("ref");
            if (reference.empty())
                return AtLine(comp->line, "a part without a reference");
            Part part;
            part.comp = comp;
            if (isConnector(reference)) {
                drawing_.connectors.push_back({reference, pinCountOf(*comp), comp->line});
            } else if (const auto device = deviceOf(reference)) {
                const auto number = numberAfter(reference, 1);
                if (!number)
                    return AtLine(comp->line, reference + " is not numbered as a part the "
                                                          "Components table takes");
                part.kind = Part::Kind::Component;
                part.device = *device;
                part.number = *number;
                componentOrder_.push_back(reference);
            } else {
                // Other parts stay out unless a net needs them (see readNets).
                continue;
            }
            if (!parts_.emplace(reference, std::move(part)).second)
                return AtLine(comp->line, "a second part " + reference);
        }
        return {};
    }

    std::string readNets() {
        const SExpression* nets = root_.Child("nets");
        if (!nets)
            return AtLine(root_.line, "the netlist has no nets");
        int splice = 0;
        for (const SExpression* net : nets->Children("net")) {
            struct End {
                std::string reference, pin;
                Part* part;
            };
            std::vector<End> ends;
            for (const SExpression* node : net->Children("node")) {
                const std::string reference = node->Value("ref");
                const std::string pin = node->Value("pin");
                if (reference.starts_with("#"))
                    continue; // power flags are no parts of the harness
                const auto found = parts_.find(reference);
                if (found == parts_.end())
                    return AtLine(node->line, reference + " is neither a connector nor a diode, "
                                                          "resistor or capacitor");
                if (pin.empty())
                    return AtLine(node->line, "a pin of " + reference + " without a number");
                found->second.functionOfPin[pin] = vb::UCase(node->Value("pinfunction"));
                ends.push_back({reference, pin, &found->second});
            }
            const bool onlyOneCavity =
                ends.size() == 1 && ends.front().part->kind == Part::Kind::Connector;
            if (ends.empty() || onlyOneCavity)
                continue;
            const std::string base = wireBaseName(*net);
            const bool spliced = ends.size() >= 3;
            if (spliced)
                drawing_.splices.push_back({++splice, {}, net->line});
            for (std::size_t i = 0; i < ends.size(); ++i) {
                const End& end = ends[i];
                if (!spliced && i == 1) {
                    addEnd(drawing_.wires.back(), end);
                    continue;
                }
                DrawingWire wire;
                wire.name = spliced ? base + "-" + std::to_string(i + 1) : base;
                wire.line = net->line;
                drawing_.wires.push_back(std::move(wire));
                addEnd(drawing_.wires.back(), end);
                if (spliced)
                    drawing_.splices.back().wires.push_back(drawing_.wires.back().name);
            }
        }
        return {};
    }

    template <typename End> void addEnd(DrawingWire& wire, const End& end) {
        if (end.part->kind == Part::Kind::Connector)
            wire.ends.push_back({end.reference, end.pin});
        else
            end.part->wireOfPin[end.pin] = wire.name;
    }

    std::string readComponents() {
        for (const std::string& reference : componentOrder_) {
            const Part& part = parts_.at(reference);
            const int line = part.comp->line;
            if (part.wireOfPin.size() != 2)
                return AtLine(line, reference + " has " + std::to_string(part.wireOfPin.size()) +
                                        " pins on nets; a component has two");
            auto first = part.wireOfPin.begin();
            auto second = std::next(first);
            if (part.device == "DIODE" && anodeLast(part, first->first, second->first))
                std::swap(first, second);
            DrawingComponent component{part.device,    reference, part.number, first->second,
                                       second->second, {},        line};
            if (part.device == "RESISTOR") {
                const std::string value = part.comp->Value("value");
                const auto ohms = OhmsOf(value);
                if (!ohms)
                    return AtLine(line, reference + "'s value \"" + value + "\" is no resistance");
                component.value = std::to_string(*ohms);
            }
            drawing_.components.push_back(std::move(component));
        }
        return {};
    }

    // KiCad's diodes name their pins K and A; without names pin 1 is the cathode.
    static bool anodeLast(const Part& part, const std::string& pin1, const std::string& pin2) {
        const auto function = [&](const std::string& pin) {
            const auto found = part.functionOfPin.find(pin);
            return found == part.functionOfPin.end() ? std::string() : found->second;
        };
        if (function(pin1) == "A" || function(pin2) == "K")
            return false;
        if (function(pin1) == "K" || function(pin2) == "A")
            return true;
        return pin1 == "1";
    }

    bool isConnector(const std::string& reference) const {
        for (const std::string& prefix : options_.connectorPrefixes)
            if (hasPrefix(reference, prefix))
                return true;
        return false;
    }

    static std::optional<std::string> deviceOf(const std::string& reference) {
        if (hasPrefix(reference, "D"))
            return "DIODE";
        if (hasPrefix(reference, "R"))
            return "RESISTOR";
        if (hasPrefix(reference, "C"))
            return "CAPACITOR";
        return std::nullopt;
    }

    // The pins of the connector's library part; 0 when the netlist does not
    // say, and then the nets give the count.
    int pinCountOf(const SExpression& comp) const {
        const SExpression* source = comp.Child("libsource");
        const SExpression* libparts = root_.Child("libparts");
        if (!source || !libparts)
            return 0;
        for (const SExpression* libpart : libparts->Children("libpart"))
            if (libpart->Value("lib") == source->Value("lib") &&
                libpart->Value("part") == source->Value("part")) {
                const SExpression* pins = libpart->Child("pins");
                return pins ? static_cast<int>(pins->Children("pin").size()) : 0;
            }
        return 0;
    }

    const SExpression& root_;
    const DrawingOptions& options_;
    Drawing drawing_;
    std::map<std::string, Part> parts_;
    std::vector<std::string> componentOrder_;
};

} // namespace

std::optional<long long> OhmsOf(std::string_view value) {
    std::string text = vb::UCase(vb::Trim(value));
    for (const char* unit : {"OHMS", "OHM"})
        if (text.ends_with(unit))
            text = vb::Trim(text.substr(0, text.size() - std::string_view(unit).size()));
    // A multiplier letter stands at the end ("4.7K") or for the decimal point ("4K7").
    double scale = 1;
    if (const std::size_t letter = text.find_first_of("RKM"); letter != std::string::npos) {
        scale = text[letter] == 'K' ? 1e3 : text[letter] == 'M' ? 1e6 : 1;
        const std::string after = text.substr(letter + 1);
        text.resize(letter);
        if (!after.empty()) {
            if (text.find('.') != std::string::npos)
                return std::nullopt;
            text += "." + after;
        }
    }
    const bool digitsOnly = !text.empty() && text.size() <= 15 &&
                            text.find_first_not_of("0123456789.") == std::string::npos &&
                            text.find('.') == text.rfind('.') && text != ".";
    if (!digitsOnly)
        return std::nullopt;
    return std::llround(std::stod(text) * scale);
}

DrawingRead ReadKicadNetlist(std::string_view text, const DrawingOptions& options) {
    const SExpressionRead parsed = ReadSExpression(text);
    if (!parsed.ok())
        return {{}, parsed.error};
    KicadReader reader(parsed.root, options);
    DrawingRead read;
    read.error = reader.Run();
    if (read.ok())
        read.drawing = std::move(reader.drawing());
    return read;
}

} // namespace zolt::interchange
