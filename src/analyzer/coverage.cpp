#include "analyzer/coverage.h"

#include "analyzer/comma_list.h"
#include "analyzer/component_kind.h"
#include "analyzer/ohms.h"
#include "core/value.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>

namespace zolt::analyzer {
namespace {

using compile::ImageNetlist;
using compile::ProgramImage;

constexpr std::string_view kClassNames[] = {"open", "short", "soft", "swap", "component", "switch"};

Fault PointFault(FaultKind kind, int a, int b) {
    Fault fault;
    fault.kind = kind;
    fault.a = a;
    fault.b = b;
    return fault;
}

Fault ComponentFault(FaultKind kind, int component, std::optional<double> ohms = std::nullopt) {
    Fault fault;
    fault.kind = kind;
    fault.component = component;
    fault.ohms = ohms;
    return fault;
}

// The limits a fitted resistor is read against: those of the first check of it
// that has any.
std::optional<OhmsLimits> LimitsOf(const HarnessComponent& fitted, const ProgramImage& image) {
    if (!IsResistive(fitted.kind))
        return std::nullopt;
    for (const auto& netlist : image.netlists)
        for (const auto& c : netlist.components)
            if (c.kind == fitted.kind && c.number == fitted.number)
                if (auto limits = ResistanceLimits(image.testParameters, c.parameter))
                    return limits;
    return std::nullopt;
}

// What a fault changes, kept small so that a scan reads only what moved.
struct Change {
    std::vector<Move> moves;
    std::optional<Move> renamed;
    std::optional<SoftShort> soft;
    std::optional<std::vector<HarnessComponent>> components;
    std::optional<std::vector<HarnessSwitch>> switches;
};

Change ChangeOf(const Fault& fault, const Harness& harness, const HarnessConductors& base) {
    Change change;
    switch (fault.kind) {
    case FaultKind::Open:
    case FaultKind::Dead:
        change.moves = {{fault.a, LooseConductor(fault.a)}};
        break;
    case FaultKind::Swap:
        change.moves = {{fault.a, base.Of(fault.b)}, {fault.b, base.Of(fault.a)}};
        break;
    case FaultKind::Short:
        if (fault.ohms) {
            change.soft = SoftShort{fault.a, fault.b, *fault.ohms};
        } else {
            for (const int p : base.Members(base.Of(fault.b)))
                change.moves.emplace_back(p, base.Of(fault.a));
            change.renamed = Move{base.Of(fault.b), base.Of(fault.a)};
        }
        break;
    case FaultKind::Missing:
    case FaultKind::Reverse:
    case FaultKind::Value:
        change.components = WithFault(harness, fault).components;
        break;
    case FaultKind::StuckOpen:
    case FaultKind::StuckClosed:
        change.switches = WithFault(harness, fault).switches;
        break;
    }
    return change;
}

// A netlist with the test points whose move can change what its scans read.
struct NetlistView {
    NetlistView(const ImageNetlist& netlist, const ProgramImage& image, const Harness& harness,
                const HarnessConductors& base)
        : index(netlist, image.testParameters), reads(kPoints), componentPoints(kPoints),
          readsConductor(2 * kPoints) {
        for (std::size_t n = 0; n < index.NetCount(); ++n)
            for (const int p : index.Points(n)) {
                reads[static_cast<std::size_t>(p)] = true;
                readsConductor[static_cast<std::size_t>(base.Of(p))] = true;
            }
        const auto mark = [this](int p) {
            reads[static_cast<std::size_t>(p)] = componentPoints[static_cast<std::size_t>(p)] =
                true;
        };
        // A single fault moves one conductor's points, or two points: a fitted device
        // can only come to read differently here if a side of it already lies on
        // the conductor of a side of this netlist's devices.
        std::vector<int> sides;
        for (const auto& c : netlist.components)
            for (const auto net : {c.netA, c.netB})
                if (net >= 0 && static_cast<std::size_t>(net) < index.NetCount() &&
                    !index.Points(static_cast<std::size_t>(net)).empty()) {
                    const int p = index.Points(static_cast<std::size_t>(net)).front();
                    mark(p);
                    sides.push_back(base.Of(p));
                }
        for (const auto& f : harness.components)
            if (std::ranges::find(sides, f.sideA) != sides.end() ||
                std::ranges::find(sides, f.sideB) != sides.end()) {
                // A fitted device's conductor is named by its lowest point.
                mark(f.sideA);
                mark(f.sideB);
            }
    }

    bool AnyIn(const std::vector<bool>& points, const std::vector<Move>& moves) const {
        return std::ranges::any_of(
            moves, [&points](const Move& m) { return points[static_cast<std::size_t>(m.first)]; });
    }

    NetlistIndex index;
    std::vector<bool> reads;
    std::vector<bool> componentPoints;
    std::vector<bool> readsConductor; // a point of a net lies on it
};

void AddOnce(std::vector<int>& values, int value) {
    if (std::ranges::find(values, value) == values.end())
        values.push_back(value);
}

// Whether one scan of a fault-free harness reports the change: only the nets and
// conductors the change touches are read.
bool ScanSees(const NetlistView& view, int parts, const ScanSettings& settings,
              const Harness& harness, const HarnessConductors& base, const Change& change) {
    if (!change.soft && !change.components && !change.switches &&
        !view.AnyIn(view.reads, change.moves))
        return false;
    // A leak is read only between conductors that both hold a point of a net.
    if (change.soft && (!(parts & kShorts) ||
                        !view.readsConductor[static_cast<std::size_t>(base.Of(change.soft->a))] ||
                        !view.readsConductor[static_cast<std::size_t>(base.Of(change.soft->b))]))
        return false;
    const NetlistIndex& index = view.index;
    const MovedConductors moved(base, change.moves, change.renamed);
    const PointNames names;
    if (parts & kContinuity) {
        std::vector<int> nets;
        for (const auto& [p, c] : change.moves)
            if (index.NetOf(p) >= 0)
                AddOnce(nets, index.NetOf(p));
        for (const int n : nets)
            if (NetContinuity(index, static_cast<std::size_t>(n), moved, names, settings))
                return true;
    }
    if (parts & kShorts) {
        std::vector<int> conductors;
        for (const auto& [p, c] : change.moves)
            if (index.NetOf(p) >= 0)
                AddOnce(conductors, c);
        for (const int c : conductors)
            if (!ConductorShorts(index, c, moved, names, settings).empty())
                return true;
        if (change.soft && SoftShortError(index, *change.soft, moved, names, settings))
            return true;
    }
    if ((parts & kComponents) &&
        (change.components || view.AnyIn(view.componentPoints, change.moves))) {
        const auto& fitted = change.components ? *change.components : harness.components;
        for (const auto& component : index.Netlist().components)
            if (ComponentError(index, component, fitted, moved))
                return true;
    }
    return change.switches && !SwitchErrors(index, parts, *change.switches).empty();
}

// A scan of the fault-free run, its netlist looked up once.
struct JudgedScan {
    const NetlistView* view;
    int parts;
    ScanSettings settings;
};

class Judge {
public:
    Judge(const ProgramImage& image, const Harness& harness) : harness_(harness), base_(harness) {
        for (const auto& netlist : image.netlists)
            if (!netlist.manual && !views_.contains(netlist.name))
                views_.emplace(netlist.name,
                               std::make_unique<NetlistView>(netlist, image, harness, base_));
    }

    const NetlistView* View(const std::string& netlist) const {
        const auto found = views_.find(netlist);
        return found != views_.end() ? found->second.get() : nullptr;
    }

    bool Sees(const JudgedScan& scan, const Change& change) const {
        return scan.view &&
               ScanSees(*scan.view, scan.parts, scan.settings, harness_, base_, change);
    }

    Change ChangeOf(const Fault& fault) const { return analyzer::ChangeOf(fault, harness_, base_); }
    const HarnessConductors& Base() const { return base_; }
    const std::map<std::string, std::unique_ptr<NetlistView>>& Views() const { return views_; }

private:
    const Harness& harness_;
    const HarnessConductors base_;
    std::map<std::string, std::unique_ptr<NetlistView>> views_;
};

std::string PartWords(int part) {
    switch (part) {
    case kContinuity:
        return "continuity";
    case kShorts:
        return "shorts";
    case kComponents:
        return "components";
    case kSwitchesClosed:
        return "switches closing";
    default:
        return "switches opening";
    }
}

constexpr int kParts[] = {kContinuity, kShorts, kComponents, kSwitchesClosed, kSwitchesOpen};

struct Reason {
    std::string text;
    std::size_t line = 0;
};

// Why no run sees the fault, in the engineer's terms.
Reason ReasonOf(const ClassFault& f, const Judge& judge, const ProgramImage& image,
                const Harness& harness, const RunResult& good) {
    const Change change = judge.ChangeOf(f.fault);
    std::vector<std::pair<std::string, int>> seers;
    constexpr int kEveryPart =
        kContinuity | kShorts | kComponents | kSwitchesClosed | kSwitchesOpen;
    for (const auto& [netlist, view] : judge.Views()) {
        if (!judge.Sees({view.get(), kEveryPart, ScanSettings{}}, change))
            continue;
        for (const int part : kParts)
            if (judge.Sees({view.get(), part, ScanSettings{}}, change))
                seers.emplace_back(netlist, part);
    }
    if (seers.empty()) {
        if (f.faultClass == FaultClass::Short || f.faultClass == FaultClass::Soft)
            return {"a short between points the scans never see"};
        if (f.faultClass == FaultClass::Component && f.fault.component >= 0) {
            const auto& c = harness.components[static_cast<std::size_t>(f.fault.component)];
            for (std::size_t i = 0; i < harness.components.size(); ++i) {
                const auto& o = harness.components[i];
                if (static_cast<int>(i) != f.fault.component && o.kind == c.kind &&
                    std::set{o.sideA, o.sideB} == std::set{c.sideA, c.sideB})
                    return {"a component in parallel hides it (" + ComponentName(o.kind, o.number) +
                            ")"};
            }
        }
        return {"no netlist of the program tests it"};
    }
    std::size_t named = 0; // the first line that scans the netlist
    for (std::size_t l = 1; l <= image.sequence.size(); ++l) {
        const auto& line = image.sequence[l - 1];
        const int parts = ScanPartsOf(line.command);
        for (const auto& [netlist, part] : seers) {
            if (vb::UCase(vb::Trim(line.parameter)) != netlist || parts == 0)
                continue;
            if ((parts & part) && good.timesRun[l - 1] == 0)
                return {"a branch skips the scan on line " + std::to_string(l), l};
            if (parts & part)
                return {"the short scan limits (SETLOWER, SETUPPER) leave it out", l};
            if (!named)
                named = l;
        }
    }
    const auto& [netlist, part] = seers.front();
    if (named)
        return {netlist + " is scanned, but not for " + PartWords(part), named};
    return {"its netlist is not in the sequence (" + netlist + ")"};
}

} // namespace

std::string_view FaultClassName(FaultClass c) {
    return kClassNames[static_cast<int>(c)];
}

ClassesParse ParseFaultClasses(std::string_view text) {
    ClassesParse parse;
    for (const auto word : CommaList(text)) {
        const auto found = std::ranges::find(kClassNames, word);
        if (found == std::end(kClassNames)) {
            parse.error = "unknown fault class '" + std::string(word) +
                          "' (open, short, soft, swap, component, switch)";
            return parse;
        }
        parse.classes.push_back(static_cast<FaultClass>(found - std::begin(kClassNames)));
    }
    return parse;
}

std::vector<ClassFault> SingleFaults(const ProgramImage& image, const Harness& harness,
                                     const PointNames& names,
                                     const std::vector<FaultClass>& classes) {
    const HarnessConductors base(harness);
    std::set<int> tested; // points some netlist has in a net
    for (const auto& netlist : image.netlists)
        for (const auto& net : netlist.nets)
            for (const auto p : net)
                if (p < kPoints)
                    tested.insert(p);
    std::vector<int> firsts; // one point of each tested conductor
    std::set<int> conductors;
    for (const int p : tested)
        if (conductors.insert(base.Of(p)).second)
            firsts.push_back(p);
    const auto wanted = [&classes](FaultClass c) {
        return std::ranges::find(classes, c) != classes.end();
    };
    std::vector<ClassFault> faults;
    if (wanted(FaultClass::Open))
        for (const int p : tested)
            if (base.Members(base.Of(p)).size() > 1)
                faults.push_back({FaultClass::Open, PointFault(FaultKind::Open, p, -1)});
    for (const auto c : {FaultClass::Short, FaultClass::Soft}) {
        if (!wanted(c))
            continue;
        for (std::size_t i = 0; i < firsts.size(); ++i)
            for (std::size_t j = i + 1; j < firsts.size(); ++j) {
                Fault fault = PointFault(FaultKind::Short, firsts[i], firsts[j]);
                if (c == FaultClass::Soft)
                    fault.ohms = kSoftShortOhms;
                faults.push_back({c, fault});
            }
    }
    if (wanted(FaultClass::Swap)) {
        // Two empty cavities exchanged are no fault.
        const auto empty = [&](int p) {
            const int c = base.Of(p);
            return base.Members(c).size() == 1 &&
                   std::ranges::none_of(harness.components, [c](const HarnessComponent& f) {
                       return f.sideA == c || f.sideB == c;
                   });
        };
        std::map<std::string, std::vector<int>> byConnector;
        for (const int p : tested)
            if (const std::string connector = names.Connector(p); !connector.empty())
                byConnector[connector].push_back(p);
        for (const auto& [connector, pins] : byConnector)
            for (std::size_t a = 0; a < pins.size(); ++a)
                for (std::size_t b = a + 1; b < pins.size(); ++b)
                    if (base.Of(pins[a]) != base.Of(pins[b]) && !(empty(pins[a]) && empty(pins[b])))
                        faults.push_back(
                            {FaultClass::Swap, PointFault(FaultKind::Swap, pins[a], pins[b])});
    }
    if (wanted(FaultClass::Component))
        for (std::size_t i = 0; i < harness.components.size(); ++i) {
            const int index = static_cast<int>(i);
            faults.push_back({FaultClass::Component, ComponentFault(FaultKind::Missing, index)});
            if (IsPolarised(harness.components[i].kind))
                faults.push_back(
                    {FaultClass::Component, ComponentFault(FaultKind::Reverse, index)});
            // Twice the upper limit: off any tolerance a row can give.
            if (const auto limits = LimitsOf(harness.components[i], image);
                limits && limits->high > 0)
                faults.push_back({FaultClass::Component,
                                  ComponentFault(FaultKind::Value, index, 2 * limits->high)});
        }
    if (wanted(FaultClass::Switch))
        for (std::size_t i = 0; i < harness.switches.size(); ++i)
            for (const auto kind : {FaultKind::StuckOpen, FaultKind::StuckClosed}) {
                Fault fault;
                fault.kind = kind;
                fault.switchIndex = static_cast<int>(i);
                faults.push_back({FaultClass::Switch, fault});
            }
    return faults;
}

bool DetectedByRun(const ProgramImage& image, const Harness& harness, const PointNames& names,
                   const RunOptions& options, const RunResult& good, const Fault& fault) {
    const RunResult run = Run(image, WithFault(harness, fault), names, options);
    return run.errors != good.errors || run.Passed() != good.Passed();
}

Coverage MeasureCoverage(const ProgramImage& image, const Harness& harness, const PointNames& names,
                         const std::vector<FaultClass>& classes, const RunOptions& options,
                         const CoverageProgress& progress) {
    Coverage coverage;
    coverage.good = Run(image, harness, names, options);
    const RunResult& good = coverage.good;
    coverage.judgedByScans = good.errors.empty() && good.Passed();
    const Judge judge(image, harness);
    std::vector<ScanRecord> records;
    std::vector<JudgedScan> scans;
    for (const auto& scan : good.scans)
        if (std::ranges::find(records, scan) == records.end()) {
            records.push_back(scan);
            scans.push_back({judge.View(scan.netlist), scan.parts, scan.settings});
        }
    for (const FaultClass c : classes)
        coverage.classes.push_back({c});
    const std::vector<ClassFault> faults = SingleFaults(image, harness, names, classes);
    for (const auto& f : faults) {
        if (progress && !progress(coverage.faults, static_cast<int>(faults.size()))) {
            coverage.cancelled = true;
            break;
        }
        bool detected = false;
        if (coverage.judgedByScans) {
            const Change change = judge.ChangeOf(f.fault);
            detected = std::ranges::any_of(
                scans, [&](const JudgedScan& s) { return judge.Sees(s, change); });
        } else {
            detected = DetectedByRun(image, harness, names, options, good, f.fault);
        }
        auto& count =
            *std::ranges::find(coverage.classes, f.faultClass, &ClassCoverage::faultClass);
        ++count.faults;
        ++coverage.faults;
        if (detected) {
            ++count.detected;
            ++coverage.detected;
        } else {
            Reason reason = ReasonOf(f, judge, image, harness, good);
            coverage.undetected.push_back({f, std::move(reason.text), reason.line});
        }
    }
    return coverage;
}

} // namespace zolt::analyzer
