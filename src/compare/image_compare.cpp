#include "compare/image_compare.h"

#include "compare/line_alignment.h"
#include "compare/netlist_compare.h"
#include "compile/program_image.h"

#include <map>

namespace zolt::compare {
namespace {

// As the fixture names a test point: board, then the point on it.
std::string TestPointName(int testPoint) {
    const std::string point = std::to_string(testPoint % 128);
    return std::to_string(testPoint / 128) + "-" + std::string(3 - point.size(), '0') + point;
}

Connections NetsOf(const compile::ImageNetlist& netlist) {
    std::vector<std::pair<std::string, int>> points;
    for (std::size_t n = 0; n < netlist.nets.size(); ++n)
        for (const auto testPoint : netlist.nets[n])
            points.emplace_back(TestPointName(testPoint), static_cast<int>(n));
    return GatherConnections(std::move(points));
}

std::string NetText(const compile::ImageNetlist& netlist, std::int32_t net) {
    if (net < 0 || static_cast<std::size_t>(net) >= netlist.nets.size())
        return "no tested net";
    std::set<std::string> points;
    for (const auto testPoint : netlist.nets[static_cast<std::size_t>(net)])
        points.insert(TestPointName(testPoint));
    return Joined(points);
}

// Everything of a netlist but its nets, a text a name.
std::map<std::string, std::string> Parts(const compile::ImageNetlist& netlist) {
    std::map<std::string, std::string> parts;
    for (const auto& c : netlist.connectors)
        parts.emplace("connector " + c.name, std::to_string(c.pins) + " pins");
    for (const auto& c : netlist.components)
        parts.emplace(c.kind + std::to_string(c.number),
                      "between " + NetText(netlist, c.netA) + " and " + NetText(netlist, c.netB) +
                          ", parameter " + std::to_string(c.parameter));
    return parts;
}

void CompareParts(const std::string& where, const compile::ImageNetlist& before,
                  const compile::ImageNetlist& after, Differences& out) {
    const auto a = Parts(before);
    const auto b = Parts(after);
    for (const auto& [name, text] : a)
        if (!b.contains(name))
            out.push_back({where, "Parts", name + " removed (was " + text + ")"});
    for (const auto& [name, text] : b) {
        const auto old = a.find(name);
        if (old == a.end())
            out.push_back({where, "Parts", name + " added, " + text});
        else if (old->second != text)
            out.push_back({where, "Parts", name + " now " + text + " (was " + old->second + ")"});
    }
}

void CompareSequence(const compile::ProgramImage& before, const compile::ProgramImage& after,
                     Differences& out) {
    auto lines = [](const compile::ProgramImage& image) {
        std::vector<std::string> texts;
        for (const auto& line : image.sequence)
            texts.push_back(line.parameter.empty() ? line.command
                                                   : line.command + " " + line.parameter);
        return texts;
    };
    const auto a = lines(before);
    const auto b = lines(after);
    WalkAlignment(
        AlignLines(a, b), a.size(), b.size(),
        [&](std::size_t i) {
            out.push_back({"sequence", "Sequence", "-" + std::to_string(i + 1) + " " + a[i]});
        },
        [&](std::size_t j) {
            out.push_back({"sequence", "Sequence", "+" + std::to_string(j + 1) + " " + b[j]});
        },
        [](std::size_t, std::size_t) {});
}

} // namespace

Differences CompareImages(const compile::ProgramImage& before, const compile::ProgramImage& after) {
    Differences out;
    std::map<std::string, const compile::ImageNetlist*> old;
    for (const auto& netlist : before.netlists)
        old.emplace(netlist.name, &netlist);
    std::set<std::string> names;
    for (const auto& netlist : after.netlists) {
        names.insert(netlist.name);
        const auto found = old.find(netlist.name);
        if (found == old.end()) {
            out.push_back({netlist.name, "Netlists", "netlist added"});
            continue;
        }
        auto changes = CompareConnections(netlist.name, NetsOf(*found->second), NetsOf(netlist));
        out.insert(out.end(), changes.begin(), changes.end());
        CompareParts(netlist.name, *found->second, netlist, out);
    }
    for (const auto& netlist : before.netlists)
        if (!names.contains(netlist.name))
            out.push_back({netlist.name, "Netlists", "netlist removed"});
    CompareSequence(before, after, out);
    std::map<std::string, std::string> messages;
    for (const auto& m : before.messages)
        messages.emplace(m.id, m.text);
    for (const auto& m : after.messages) {
        const auto found = messages.find(m.id);
        if (found == messages.end())
            out.push_back({"messages", "Message", "+ " + m.id + " " + m.text});
        else if (found->second != m.text)
            out.push_back(
                {"messages", "Message", m.id + " now " + m.text + " (was " + found->second + ")"});
        if (found != messages.end())
            messages.erase(found);
    }
    for (const auto& [id, text] : messages)
        out.push_back({"messages", "Message", "- " + id + " " + text});
    return out;
}

} // namespace zolt::compare
