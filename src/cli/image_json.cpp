#include "cli/image_json.h"

#include "cli/json_writer.h"
#include "core/value.h"

#include <cmath>
#include <initializer_list>
#include <utility>

namespace zolt::cli {
namespace {

using compile::ProgramImage;

std::string num(double n) {
    return std::isfinite(n) ? vb::NumberText(n) : "null";
}
std::string str(const std::string& s) {
    return JsonString(s);
}
std::string flag(bool b) {
    return b ? "true" : "false";
}

// {"a": 1, "b": "x"} from pairs whose values are JSON already.
std::string object(std::initializer_list<std::pair<const char*, std::string>> fields) {
    std::string out = "{";
    for (const auto& [key, value] : fields)
        out += (out.size() > 1 ? ", " : "") + str(key) + ": " + value;
    return out + "}";
}

template <typename T, typename F>
std::string list(const std::vector<T>& items, F each, const std::string& indent) {
    if (items.empty())
        return "[]";
    std::string out = "[";
    for (std::size_t i = 0; i < items.size(); ++i)
        out += (i ? ",\n" : "\n") + indent + "  " + each(items[i]);
    return out + "\n" + indent + "]";
}

std::string netlistJson(const compile::ImageNetlist& n) {
    const std::string in = "      ";
    std::string out = "{\n";
    out += in + "\"name\": " + str(n.name) + ",\n";
    out += in + "\"manual\": " + flag(n.manual) + ",\n";
    out += in + "\"nets\": " +
           list(
               n.nets,
               [](const compile::TestPointSet& net) {
                   std::string points = "[";
                   for (std::size_t i = 0; i < net.size(); ++i)
                       points += (i ? ", " : "") + std::to_string(net[i]);
                   return points + "]";
               },
               in) +
           ",\n";
    out += in + "\"connectors\": " +
           list(
               n.connectors,
               [](const compile::ImageConnector& c) {
                   return object({{"name", str(c.name)},
                                  {"pins", num(c.pins)},
                                  {"switches", num(c.switches)},
                                  {"lamp1", num(c.lamp1)},
                                  {"lamp2", num(c.lamp2)}});
               },
               in) +
           ",\n";
    out += in + "\"components\": " +
           list(
               n.components,
               [](const compile::ImageComponent& c) {
                   return object({{"kind", str(c.kind)},
                                  {"number", num(c.number)},
                                  {"netA", num(c.netA)},
                                  {"netB", num(c.netB)},
                                  {"parameter", num(c.parameter)}});
               },
               in) +
           ",\n";
    out += in + "\"switches\": " +
           list(
               n.switches,
               [](const compile::ImageSwitch& s) {
                   return object({{"connector", str(s.connector)},
                                  {"pin", str(s.pin)},
                                  {"commons", str(s.commons)},
                                  {"ordinal", num(s.ordinal)},
                                  {"testPoint", num(s.testPoint)},
                                  {"commonTestPoint", num(s.commonTestPoint)}});
               },
               in) +
           ",\n";
    out += in + "\"groups\": " +
           list(
               n.groups,
               [](const compile::ImageGroupMember& g) {
                   return object({{"group", str(g.group)},
                                  {"connector", str(g.connector)},
                                  {"pin", str(g.pin)},
                                  {"baseColor", str(g.baseColor)},
                                  {"stripeColor", str(g.stripeColor)},
                                  {"testPoint", num(g.testPoint)}});
               },
               in) +
           ",\n";
    out += in + "\"reversibles\": " +
           list(
               n.reversibles,
               [](const compile::ImageReversible& r) {
                   return object({{"number", num(r.number)},
                                  {"testPoint1", num(r.testPoint1)},
                                  {"testPoint2", num(r.testPoint2)}});
               },
               in) +
           ",\n";
    out += in + "\"codes\": " +
           list(
               n.codes,
               [](const compile::ImageCode& c) {
                   return object({{"command", str(c.command)}, {"parameter", str(c.parameter)}});
               },
               in) +
           ",\n";
    out += in + "\"points\": " +
           list(
               n.points,
               [](const compile::ImagePoint& p) {
                   return object({{"testPoint", num(p.testPoint)},
                                  {"connector", str(p.connector)},
                                  {"pin", str(p.pin)}});
               },
               in) +
           ",\n";
    out += in + "\"wires\": " +
           list(
               n.wires,
               [](const compile::ImageWire& w) {
                   return object({{"name", str(w.name)},
                                  {"baseColor", str(w.baseColor)},
                                  {"stripeColor", str(w.stripeColor)},
                                  {"net", num(w.net)},
                                  {"end1", num(w.end1)},
                                  {"end2", num(w.end2)}});
               },
               in) +
           "\n";
    return out + "    }";
}

} // namespace

std::string ImageJson(const ProgramImage& image, std::uint16_t version) {
    const compile::ImageHeader& h = image.header;
    const std::string in = "  ";
    std::string out = "{\n";
    out += in + "\"version\": " + num(version) + ",\n";
    out += in + "\"header\": " +
           object({{"programId", str(h.programId)},
                   {"programName", str(h.programName)},
                   {"optionFlag2", flag(h.optionFlag2)},
                   {"optionFlag18", flag(h.optionFlag18)},
                   {"seqBuild", flag(h.seqBuild)},
                   {"warningMask", num(h.warningMask)},
                   {"logMask", num(h.logMask)},
                   {"dwellTime", num(h.dwellTime)},
                   {"switchType", num(h.switchType)},
                   {"fixturePoints", num(h.fixturePoints)},
                   {"optionValue5", num(h.optionValue5)}}) +
           ",\n";
    out += in + "\"commands\": " +
           list(
               image.commands,
               [](const compile::ImageCommand& c) {
                   return object({{"name", str(c.name)},
                                  {"type", num(c.type)},
                                  {"low", num(c.low)},
                                  {"high", num(c.high)},
                                  {"description", str(c.description)}});
               },
               in) +
           ",\n";
    out += in + "\"sequence\": " +
           list(
               image.sequence,
               [](const compile::ImageSequenceLine& l) {
                   return object({{"command", str(l.command)}, {"parameter", str(l.parameter)}});
               },
               in) +
           ",\n";
    out += in + "\"macros\": " +
           list(
               image.macros,
               [](const compile::ImageMacroLine& l) {
                   return object({{"macro", str(l.macro)},
                                  {"command", str(l.command)},
                                  {"parameter", str(l.parameter)}});
               },
               in) +
           ",\n";
    out += in + "\"messages\": " +
           list(
               image.messages,
               [](const compile::ImageMessage& m) {
                   return object({{"id", str(m.id)}, {"text", str(m.text)}});
               },
               in) +
           ",\n";
    out +=
        in + "\"labels\": " +
        list(
            image.labels,
            [](const compile::ImageLabelField& l) {
                return object({{"label", num(l.label)}, {"id", num(l.id)}, {"text", str(l.text)}});
            },
            in) +
        ",\n";
    out += in + "\"testParameters\": " +
           list(
               image.testParameters,
               [](const compile::ImageTestParameter& t) {
                   return object({{"voltage", num(t.voltage)},
                                  {"secondValue", num(t.secondValue)},
                                  {"threshold", num(t.threshold)},
                                  {"current", num(t.current)}});
               },
               in) +
           ",\n";
    out += in + "\"devices\": " +
           list(
               image.devices,
               [](const compile::ImageDevice& d) {
                   return object({{"kind", str(d.kind)},
                                  {"side1", str(d.side1)},
                                  {"side2", str(d.side2)},
                                  {"description", str(d.description)}});
               },
               in) +
           ",\n";
    out += in + "\"netlists\": " + list(image.netlists, netlistJson, in) + "\n";
    return out + "}\n";
}

} // namespace zolt::cli
