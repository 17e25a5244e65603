#include "analyzer/scan.h"

#include "analyzer/component_kind.h"
#include "analyzer/ohms.h"

#include <algorithm>

namespace zolt::analyzer {
namespace {

bool InWindow(int point, const ScanSettings& settings) {
    return point >= settings.lower && point <= settings.upper;
}

int SidePoint(const NetlistIndex& index, std::int32_t net) {
    if (net < 0 || static_cast<std::size_t>(net) >= index.NetCount() ||
        index.Points(static_cast<std::size_t>(net)).empty())
        return -1;
    return index.Points(static_cast<std::size_t>(net)).front();
}

} // namespace

NetlistIndex::NetlistIndex(const compile::ImageNetlist& netlist,
                           const std::vector<compile::ImageTestParameter>& testParameters)
    : netlist_(&netlist), testParameters_(&testParameters), netOf_(kPoints, -1) {
    for (const auto& net : netlist.nets) {
        std::vector<int> points;
        for (const auto p : net)
            if (p < kPoints && netOf_[p] < 0) {
                netOf_[p] = static_cast<int>(nets_.size());
                points.push_back(p);
            }
        nets_.push_back(std::move(points));
    }
}

std::string NetlistIndex::WireText(std::size_t net, int stray, WireInfo info) const {
    std::vector<std::string> parts; // the names, then each colour once
    std::vector<std::string> colors;
    const auto inNet = [net](const compile::ImageWire& wire) {
        return wire.net == static_cast<std::int32_t>(net);
    };
    const auto landsOnStray = [stray](const compile::ImageWire& wire) {
        return wire.end1 == stray || wire.end2 == stray;
    };
    const bool known = std::ranges::any_of(netlist_->wires, [&](const compile::ImageWire& wire) {
        return inNet(wire) && landsOnStray(wire);
    });
    for (const auto& wire : netlist_->wires) {
        if (!inNet(wire) || (known && !landsOnStray(wire)))
            continue;
        if (info != WireInfo::Colors && !wire.name.empty())
            parts.push_back(wire.name);
        const std::string color =
            wire.baseColor + (wire.stripeColor.empty() ? "" : "/" + wire.stripeColor);
        if (info != WireInfo::Names && !color.empty() &&
            std::ranges::find(colors, color) == colors.end())
            colors.push_back(color);
    }
    parts.insert(parts.end(), colors.begin(), colors.end());
    if (parts.empty())
        return {};
    std::string text = " (";
    for (std::size_t i = 0; i < parts.size(); ++i)
        text += (i ? ", " : "") + parts[i];
    return text + ")";
}

int NetlistIndex::NetOf(int point) const {
    return netOf_[static_cast<std::size_t>(point)];
}

std::optional<ScanError> NetContinuity(const NetlistIndex& index, std::size_t net,
                                       const Conductors& conductors, const PointNames& names,
                                       const ScanSettings& settings) {
    const auto& points = index.Points(net);
    if (points.size() < 2)
        return std::nullopt;
    const int home = conductors.Of(points.front());
    const auto stray =
        std::ranges::find_if(points, [&](int p) { return conductors.Of(p) != home; });
    if (stray == points.end())
        return std::nullopt;
    std::string text = "OPEN " + names.Name(points.front()) + " TO " + names.Name(*stray) +
                       index.WireText(net, *stray, settings.wireInfo);
    if (settings.miswire) {
        // Where the stray end went: a point of another net on its conductor.
        for (const int p : conductors.Members(conductors.Of(*stray))) {
            const int other = index.NetOf(p);
            if (other >= 0 && other != static_cast<int>(net)) {
                text += ", MISWIRE TO " + names.Name(p);
                break;
            }
        }
    }
    return ScanError{ErrorKind::Open, text};
}

std::vector<ScanError> ConductorShorts(const NetlistIndex& index, int conductor,
                                       const Conductors& conductors, const PointNames& names,
                                       const ScanSettings& settings) {
    std::vector<std::pair<int, int>> netPoints; // net, its first point here
    for (const int p : conductors.Members(conductor)) {
        const int net = index.NetOf(p);
        if (net < 0 || !InWindow(p, settings))
            continue;
        if (std::ranges::find(netPoints, net, &std::pair<int, int>::first) == netPoints.end())
            netPoints.emplace_back(net, p);
    }
    std::ranges::sort(netPoints);
    std::vector<ScanError> errors;
    for (std::size_t i = 1; i < netPoints.size(); ++i)
        errors.push_back({ErrorKind::Short, "SHORT " + names.Name(netPoints.front().second) +
                                                " TO " + names.Name(netPoints[i].second)});
    return errors;
}

std::optional<ScanError> SoftShortError(const NetlistIndex& index, const SoftShort& soft,
                                        const Conductors& conductors, const PointNames& names,
                                        const ScanSettings& settings) {
    const int ca = conductors.Of(soft.a);
    const int cb = conductors.Of(soft.b);
    if (ca == cb)
        return std::nullopt;
    // The leak joins two conductors: the scan reads it between any points of its
    // nets on them, the faulted pins first.
    const auto pointOn = [&](int conductor, int faulted) {
        if (index.NetOf(faulted) >= 0 && InWindow(faulted, settings))
            return faulted;
        for (const int p : conductors.Members(conductor))
            if (index.NetOf(p) >= 0 && InWindow(p, settings))
                return p;
        return -1;
    };
    const int a = pointOn(ca, soft.a);
    const int b = a < 0 ? -1 : pointOn(cb, soft.b);
    if (b < 0 || index.NetOf(a) == index.NetOf(b))
        return std::nullopt;
    return ScanError{ErrorKind::SoftShort, "SOFT SHORT " + names.Name(a) + " TO " + names.Name(b) +
                                               " (" + OhmsText(soft.ohms) + " OHMS)"};
}

std::optional<ScanError> ComponentError(const NetlistIndex& index,
                                        const compile::ImageComponent& component,
                                        const std::vector<HarnessComponent>& fitted,
                                        const Conductors& conductors) {
    const int a = SidePoint(index, component.netA);
    const int b = SidePoint(index, component.netB);
    if (a < 0 || b < 0)
        return std::nullopt;
    const auto name = [&component] {
        return ComponentWord(component.kind) + ' ' +
               ComponentName(component.kind, component.number);
    };
    const int ca = conductors.Of(a);
    const int cb = conductors.Of(b);
    if (ca == cb)
        return ScanError{ErrorKind::Component, name() + " SHORTED"};
    const auto limits = IsResistive(component.kind)
                            ? ResistanceLimits(index.TestParameters(), component.parameter)
                            : std::nullopt;
    bool forward = false;
    bool backward = false;
    bool zero = false;
    std::optional<double> offLimits; // the reading of a resistor out of tolerance
    for (const auto& f : fitted) {
        if (f.missing || f.kind != component.kind)
            continue;
        const int fa = conductors.Renamed(f.reversed ? f.sideB : f.sideA);
        const int fb = conductors.Renamed(f.reversed ? f.sideA : f.sideB);
        const bool along = fa == ca && fb == cb;
        if (!along && !(fa == cb && fb == ca))
            continue;
        if (f.ohms && *f.ohms == 0) {
            zero = true;
            continue;
        }
        if (f.ohms && limits && !limits->Within(*f.ohms)) {
            offLimits = f.ohms;
            continue;
        }
        (along || !IsPolarised(component.kind) ? forward : backward) = true;
    }
    if (forward)
        return std::nullopt;
    if (backward)
        return ScanError{ErrorKind::Component, name() + " REVERSED"};
    if (zero)
        return ScanError{ErrorKind::Component, name() + " SHORTED"};
    if (offLimits)
        return ScanError{ErrorKind::Component,
                         name() + " OUT OF TOLERANCE (" + OhmsText(*offLimits) + " OHMS)"};
    return ScanError{ErrorKind::Component, name() + " MISSING"};
}

std::vector<ScanError> SwitchErrors(const NetlistIndex& index, int parts,
                                    const std::vector<HarnessSwitch>& fitted) {
    std::vector<ScanError> errors;
    for (const auto& s : index.Netlist().switches) {
        if (s.testPoint < 0 || s.commonTestPoint < 0)
            continue;
        const auto found = std::ranges::find_if(fitted, [&s](const HarnessSwitch& f) {
            return f.point == s.testPoint && f.common == s.commonTestPoint;
        });
        const bool fittedHere = found != fitted.end();
        if ((parts & kSwitchesClosed) && (!fittedHere || found->stuckOpen))
            errors.push_back({ErrorKind::Switch, "SWITCH " + s.pin + " DID NOT CLOSE"});
        if ((parts & kSwitchesOpen) && fittedHere && found->stuckClosed)
            errors.push_back({ErrorKind::Switch, "SWITCH " + s.pin + " DID NOT OPEN"});
    }
    return errors;
}

std::vector<ScanError> Scan(const NetlistIndex& index, int parts, const Harness& harness,
                            const Conductors& conductors, const PointNames& names,
                            const ScanSettings& settings) {
    std::vector<ScanError> errors;
    if (parts & kContinuity)
        for (std::size_t n = 0; n < index.NetCount(); ++n)
            if (auto error = NetContinuity(index, n, conductors, names, settings))
                errors.push_back(std::move(*error));
    if (parts & kShorts) {
        std::vector<bool> seen(2 * kPoints);
        for (std::size_t n = 0; n < index.NetCount(); ++n)
            for (const int p : index.Points(n)) {
                const int c = conductors.Of(p);
                if (seen[static_cast<std::size_t>(c)])
                    continue;
                seen[static_cast<std::size_t>(c)] = true;
                for (auto& error : ConductorShorts(index, c, conductors, names, settings))
                    errors.push_back(std::move(error));
            }
        for (const auto& soft : harness.softShorts)
            if (auto error = SoftShortError(index, soft, conductors, names, settings))
                errors.push_back(std::move(*error));
    }
    if (parts & kComponents)
        for (const auto& component : index.Netlist().components)
            if (auto error = ComponentError(index, component, harness.components, conductors))
                errors.push_back(std::move(*error));
    for (auto& error : SwitchErrors(index, parts, harness.switches))
        errors.push_back(std::move(error));
    return errors;
}

} // namespace zolt::analyzer
