#include "analyzer/harness.h"

#include "analyzer/point_names.h"
#include "core/value.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace zolt::analyzer {
namespace {

using compile::ImageNetlist;
using compile::ProgramImage;

class Joins {
public:
    Joins() : parent_(kPoints) { std::iota(parent_.begin(), parent_.end(), 0); }

    int Root(int p) const {
        while (parent_[static_cast<std::size_t>(p)] != p)
            p = parent_[static_cast<std::size_t>(p)];
        return p;
    }
    void Join(int a, int b) {
        a = Root(a);
        b = Root(b);
        if (a != b)
            parent_[static_cast<std::size_t>(std::max(a, b))] = std::min(a, b);
    }
    void Add(const ImageNetlist& netlist) {
        for (const auto& net : netlist.nets)
            for (const auto p : net)
                if (p < kPoints && net.front() < kPoints)
                    Join(net.front(), p);
    }

private:
    std::vector<int> parent_;
};

// `smallestNet`: the nets that count; to a netlist the sequence names, a net
// of one point asserts nothing about what it is kept apart from.
bool KeptApart(const ImageNetlist& netlist, const Joins& joins, std::size_t smallestNet) {
    std::vector<int> netOfRoot(kPoints, -1);
    for (std::size_t n = 0; n < netlist.nets.size(); ++n) {
        const auto& net = netlist.nets[n];
        if (net.size() < smallestNet || net.empty() || net.front() >= kPoints)
            continue;
        int& seen = netOfRoot[static_cast<std::size_t>(joins.Root(net.front()))];
        if (seen >= 0 && seen != static_cast<int>(n))
            return false;
        seen = static_cast<int>(n);
    }
    return true;
}

const ImageNetlist* Named(const ProgramImage& image, const std::string& name) {
    for (const auto& netlist : image.netlists)
        if (netlist.name == name && !netlist.manual)
            return &netlist;
    return nullptr;
}

struct Candidate {
    const ImageNetlist* netlist;
    bool named; // by the sequence
};

std::vector<Candidate> CandidateOrder(const ProgramImage& image) {
    std::vector<Candidate> order;
    const auto add = [&order](const ImageNetlist* netlist, bool named) {
        if (netlist && std::ranges::none_of(
                           order, [netlist](const Candidate& c) { return c.netlist == netlist; }))
            order.push_back({netlist, named});
    };
    add(Named(image, "MAIN"), true);
    for (const auto& line : image.sequence)
        add(Named(image, vb::UCase(vb::Trim(line.parameter))), true);
    for (const auto& netlist : image.netlists)
        add(netlist.manual ? nullptr : &netlist, false);
    return order;
}

std::vector<const ImageNetlist*> Chosen(const ProgramImage& image) {
    std::vector<const ImageNetlist*> taken;
    Joins joins;
    for (const auto& [candidate, named] : CandidateOrder(image)) {
        Joins trial = joins;
        trial.Add(*candidate);
        // A netlist the sequence never names may be an option this build
        // leaves out (a family's variant keeps them all): it must not join
        // even the loose points of what is laid already.
        const std::size_t smallestNet = named ? 2 : 1;
        const bool fits = std::ranges::all_of(
            taken, [&](const ImageNetlist* t) { return KeptApart(*t, trial, smallestNet); });
        if (!fits || !KeptApart(*candidate, trial, 2))
            continue;
        joins = trial;
        taken.push_back(candidate);
    }
    return taken;
}

int SidePoint(const ImageNetlist& netlist, std::int32_t net) {
    if (net < 0 || static_cast<std::size_t>(net) >= netlist.nets.size() ||
        netlist.nets[static_cast<std::size_t>(net)].empty())
        return -1;
    const int point = netlist.nets[static_cast<std::size_t>(net)].front();
    return point < kPoints ? point : -1;
}

} // namespace

std::vector<std::string> HarnessNetlists(const ProgramImage& image) {
    std::vector<std::string> names;
    for (const auto* netlist : Chosen(image))
        names.push_back(netlist->name);
    return names;
}

Harness DesignedHarness(const ProgramImage& image) {
    Joins joins;
    Harness harness;
    std::set<std::tuple<std::string, int, int, int>> seen;
    std::set<std::pair<int, int>> switchPoints;
    for (const auto* netlist : Chosen(image)) {
        joins.Add(*netlist);
        for (const auto& s : netlist->switches)
            if (s.testPoint >= 0 && s.testPoint < kPoints && s.commonTestPoint >= 0 &&
                s.commonTestPoint < kPoints &&
                switchPoints.emplace(s.testPoint, s.commonTestPoint).second)
                harness.switches.push_back(
                    {s.connector, s.pin, s.testPoint, s.commonTestPoint, false, false});
        for (const auto& c : netlist->components) {
            const int a = SidePoint(*netlist, c.netA);
            const int b = SidePoint(*netlist, c.netB);
            if (a < 0 || b < 0 || !seen.emplace(c.kind, c.number, a, b).second)
                continue;
            harness.components.push_back({c.kind, c.number, a, b, false, false, std::nullopt});
        }
    }
    harness.conductor.resize(kPoints);
    for (int p = 0; p < kPoints; ++p)
        harness.conductor[static_cast<std::size_t>(p)] = joins.Root(p);
    for (auto& c : harness.components) {
        c.sideA = joins.Root(c.sideA);
        c.sideB = joins.Root(c.sideB);
    }
    return harness;
}

int LooseConductor(int point) {
    return kPoints + point;
}

} // namespace zolt::analyzer
