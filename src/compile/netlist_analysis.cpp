#include "compile/netlist_analysis.h"

#include "core/value.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace zolt::compile {
namespace {

using PinKey = std::pair<std::string, std::string>; // connector, pin

std::string pinText(const PinKey& pin) {
    return pin.first + "-" + pin.second;
}

// The fixture row of a switch's common, as AutoGen writes it for each switch type.
PinKey commonOf(const NetlistFeed::Switch& s, int switchType) {
    switch (switchType) {
    case 1:
        return {kCommonConnector, kCommonPin};
    case 2:
        return {s.connector, kCommonPin};
    case 3:
        return {s.connector, s.pin + "-"};
    default:
        return {};
    }
}

// Numbers by value before names; names by character code.
bool pinNameLess(const std::string& a, const std::string& b) {
    const bool na = vb::IsNumeric(std::string_view(a));
    const bool nb = vb::IsNumeric(std::string_view(b));
    if (na && nb)
        return vb::Val(a) < vb::Val(b);
    if (na != nb)
        return na;
    return a < b;
}

class UnionFind {
public:
    int Add() {
        parent_.push_back(static_cast<int>(parent_.size()));
        return parent_.back();
    }
    int Find(int x) {
        while (parent_[x] != x)
            x = parent_[x] = parent_[parent_[x]];
        return x;
    }
    void Join(int a, int b) {
        a = Find(a);
        b = Find(b);
        if (a != b)
            parent_[std::max(a, b)] = std::min(a, b);
    }

private:
    std::vector<int> parent_;
};

class Analyser {
public:
    Analyser(const NetlistFeed& feed, const NetlistContext& context)
        : feed_(feed), context_(context) {
        result_.netlist.name = feed.name;
    }

    NetlistAnalysis Run() {
        if (!feed_.codes.empty()) {
            checkCodes();
            return std::move(result_);
        }
        indexTables();
        checkFixture();
        checkPins();
        checkSplices();
        checkComponents();
        checkWireEnds();
        checkSwitches();
        checkGroups();
        buildNets();
        fillNetlist();
        checkReversibles();
        result_.buildOrder = BuildOrder(feed_);
        return std::move(result_);
    }

private:
    void report(Code code, const char* table, int row, std::string text) {
        result_.diagnostics.push_back({code, feed_.name, table, row, std::move(text)});
    }

    void checkCodes() {
        result_.netlist.manual = true;
        int row = 0;
        for (const auto& code : feed_.codes) {
            ++row;
            if (!context_.codeNames.contains(vb::UCase(vb::Trim(code.command))))
                report(Code::CodeNotInDictionary, "Code", row,
                       "code '" + code.command + "' is not one of the manual netlist codes");
            result_.netlist.codes.push_back({code.command, code.parameter});
        }
    }

    void indexTables() {
        for (const auto& c : feed_.connectors)
            connectors_.insert(c.name);
        for (const auto& w : feed_.wires)
            wires_.try_emplace(w.name);
        for (const auto& p : feed_.pins)
            pins_.emplace(PinKey{p.connector, p.pin}, p.wire);
    }

    void checkFixture() {
        int row = 0;
        for (const auto& f : feed_.fixture) {
            ++row;
            const PinKey pin{f.connector, f.pin};
            fixtured_.insert(pin);
            const long tp = static_cast<long>(f.board) * 128 + f.point;
            const std::string point = TestPointText(f.board, f.point);
            if (f.board < 0 || f.board > 15 || f.point < 0 || f.point > 127 || tp < 0 ||
                tp >= context_.fixturePoints) {
                report(Code::TestPointOutOfRange, "Fixture", row,
                       "test point " + point + " of pin " + pinText(pin) +
                           " is not one of the analyzer's " +
                           std::to_string(context_.fixturePoints));
                continue;
            }
            if (!connectors_.contains(f.connector) && pin != sharedCommon()) {
                if (context_.ownFixture)
                    report(Code::FixtureUnknownConnector, "Fixture", row,
                           "connector '" + f.connector + "' is not in the Connector table");
                continue;
            }
            const auto number = static_cast<std::uint16_t>(tp);
            const auto [at, fresh] = pointOwner_.emplace(number, std::make_pair(pin, row));
            if (!fresh && at->second.first != pin) {
                report(Code::TestPointShared, "Fixture", row,
                       "pins " + pinText(at->second.first) + " and " + pinText(pin) +
                           " are both on test point " + point);
                continue;
            }
            const auto [held, first] = testPoints_.emplace(pin, number);
            if (!first && held->second != number)
                report(Code::PinOnTwoTestPoints, "Fixture", row,
                       "pin " + pinText(pin) + " is on test points " +
                           TestPointText(held->second / 128, held->second % 128) + " and " + point +
                           "; a pin is wired to one test point only");
        }
    }

    // Connector "0" is no connector: its one pin is the common of all switches.
    PinKey sharedCommon() const {
        if (context_.switchType != 1 || feed_.switches.empty())
            return {};
        return {kCommonConnector, kCommonPin};
    }

    void checkPins() {
        int row = 0;
        for (const auto& p : feed_.pins) {
            ++row;
            const PinKey pin{p.connector, p.pin};
            if (!connectors_.contains(p.connector))
                report(Code::PinUnknownConnector, "Pin", row,
                       "pin " + pinText(pin) + " is on connector '" + p.connector +
                           "', which is not in the Connector table");
            if (p.wire == kUnconnected)
                continue;
            if (!wires_.contains(p.wire))
                report(Code::PinUnknownWire, "Pin", row,
                       "pin " + pinText(pin) + " names wire '" + p.wire +
                           "', which is not in the Wire table");
            else
                addEnd(p.wire, "pin " + pinText(pin));
            if (!fixtured_.contains(pin))
                report(Code::PinWithoutTestPoint, "Pin", row,
                       "pin " + pinText(pin) + " (wire '" + p.wire +
                           "') has no test point in the fixture");
        }
    }

    void checkSplices() {
        std::map<std::int32_t, int> wiresOnSplice;
        std::map<std::int32_t, int> firstRow;
        int row = 0;
        for (const auto& s : feed_.splices) {
            ++row;
            ++wiresOnSplice[s.number];
            firstRow.emplace(s.number, row);
            if (!wires_.contains(s.wire))
                report(Code::SpliceUnknownWire, "Splice", row,
                       "splice " + std::to_string(s.number) + " names wire '" + s.wire +
                           "', which is not in the Wire table");
            else
                addEnd(s.wire, "splice " + std::to_string(s.number));
        }
        for (const auto& [number, count] : wiresOnSplice)
            if (count == 1)
                report(Code::SpliceOneWire, "Splice", firstRow[number],
                       "splice " + std::to_string(number) + " joins only one wire");
    }

    void checkComponents() {
        int row = 0;
        for (const auto& c : feed_.components) {
            ++row;
            const std::string what = c.kind + " " + std::to_string(c.number);
            if (!context_.deviceKinds.contains(c.kind))
                report(Code::ComponentUnknownKind, "Component", row,
                       "component " + what + " is of a kind no device has");
            if (c.parameter < 0 || c.parameter >= context_.testParameterCount)
                report(Code::ComponentNoTestParameter, "Component", row,
                       "component " + what + " uses test parameter " + std::to_string(c.parameter) +
                           ", which has no row");
            for (const std::string* wire : {&c.wire1, &c.wire2}) {
                if (!wires_.contains(*wire))
                    report(Code::ComponentUnknownWire, "Component", row,
                           "component " + what + " names wire '" + *wire +
                               "', which is not in the Wire table");
                else
                    addEnd(*wire, "component " + what);
            }
        }
    }

    void addEnd(const std::string& wire, std::string end) {
        wires_[wire].push_back(std::move(end));
    }

    void checkWireEnds() {
        int row = 0;
        for (const auto& w : feed_.wires) {
            ++row;
            const std::vector<std::string>& ends = wires_[w.name];
            const auto n = ends.size();
            const std::string list = n == 0 ? "" : " (" + joined(ends) + ")";
            if (n > 2)
                report(Code::WireTooManyEnds, "Wire", row,
                       "wire '" + w.name + "' has " + std::to_string(n) + " ends" + list);
            else if (n == 0)
                report(Code::WireWithoutEnds, "Wire", row, "wire '" + w.name + "' has no ends");
            else if (n == 1)
                report(Code::WireOneEnd, "Wire", row,
                       "wire '" + w.name + "' has one end only" + list);
        }
    }

    static std::string joined(const std::vector<std::string>& items) {
        std::string out;
        for (const auto& item : items)
            out += (out.empty() ? "" : ", ") + item;
        return out;
    }

    void checkSwitches() {
        int row = 0;
        for (const auto& s : feed_.switches) {
            ++row;
            if (!connectors_.contains(s.connector))
                report(Code::SwitchUnknownConnector, "Switches", row,
                       "switch '" + s.pin + "' is on connector '" + s.connector +
                           "', which is not in the Connector table");
            result_.netlist.switches.push_back({s.connector, s.pin, s.commons, s.ordinal,
                                                testPointOf(s.connector, s.pin),
                                                testPointOf(commonOf(s, context_.switchType))});
        }
    }

    void checkGroups() {
        int row = 0;
        for (const auto& g : feed_.groups) {
            ++row;
            const PinKey pin{g.connector, g.pin};
            if (!connectors_.contains(g.connector))
                report(Code::GroupUnknownConnector, "Groups", row,
                       "group '" + g.group + "' names connector '" + g.connector +
                           "', which is not in the Connector table");
            else if (!pins_.contains(pin) && !testPoints_.contains(pin))
                report(Code::GroupUnknownPin, "Groups", row,
                       "group '" + g.group + "' names pin " + pinText(pin) +
                           ", which is neither in the Pin table nor in the fixture");
            const auto tp = testPoints_.find(pin);
            result_.netlist.groups.push_back(
                {g.group, g.connector, g.pin, g.base, g.stripe,
                 tp == testPoints_.end() ? -1 : static_cast<std::int32_t>(tp->second)});
        }
    }

    // Nodes: every fixtured pin, every pin, wire and splice; pins join their
    // wires, splices the wires on them.
    void buildNets() {
        std::map<PinKey, int> pinNode;
        std::map<std::string, int> wireNode;
        std::map<std::int32_t, int> spliceNode;
        auto nodeOf = [&](auto& index, const auto& key) {
            auto [at, fresh] = index.emplace(key, 0);
            if (fresh)
                at->second = sets_.Add();
            return at->second;
        };
        for (const auto& [pin, tp] : testPoints_)
            nodeOf(pinNode, pin);
        for (const auto& w : feed_.wires)
            nodeOf(wireNode, w.name);
        for (const auto& p : feed_.pins) {
            const int node = nodeOf(pinNode, PinKey{p.connector, p.pin});
            if (p.wire != kUnconnected && wires_.contains(p.wire))
                sets_.Join(node, nodeOf(wireNode, p.wire));
        }
        for (const auto& s : feed_.splices)
            if (wires_.contains(s.wire))
                sets_.Join(nodeOf(spliceNode, s.number), nodeOf(wireNode, s.wire));

        std::map<int, TestPointSet> byRoot;
        for (const auto& [pin, tp] : testPoints_)
            byRoot[sets_.Find(pinNode[pin])].push_back(tp);
        std::vector<std::pair<int, TestPointSet>> nets(byRoot.begin(), byRoot.end());
        for (auto& [root, points] : nets)
            std::sort(points.begin(), points.end());
        std::sort(nets.begin(), nets.end(),
                  [](const auto& a, const auto& b) { return a.second.front() < b.second.front(); });
        for (std::size_t i = 0; i < nets.size(); ++i) {
            netOfRoot_[nets[i].first] = static_cast<int>(i);
            result_.netlist.nets.push_back(std::move(nets[i].second));
        }
        wireNode_ = std::move(wireNode);
    }

    int netOfWire(const std::string& wire) {
        const auto node = wireNode_.find(wire);
        if (node == wireNode_.end())
            return -1;
        const auto net = netOfRoot_.find(sets_.Find(node->second));
        return net == netOfRoot_.end() ? -1 : net->second;
    }

    // What the image holds besides the nets: each row with its nets and test points.
    void fillNetlist() {
        for (const auto& c : feed_.components)
            result_.netlist.components.push_back(
                {c.kind, c.number, netOfWire(c.wire1), netOfWire(c.wire2), c.parameter});
        for (const auto& c : feed_.connectors)
            result_.netlist.connectors.push_back({c.name, c.pins, c.switches, c.lamp1, c.lamp2});
        for (const auto& r : feed_.reversibles)
            result_.netlist.reversibles.push_back(
                {r.number, testPointOf(r.connector1, r.pin1), testPointOf(r.connector2, r.pin2)});
        std::map<std::string, std::vector<std::int32_t>> ends;
        for (const auto& p : feed_.pins)
            if (const std::int32_t tp = testPointOf(p.connector, p.pin); tp >= 0)
                ends[p.wire].push_back(tp);
        for (const auto& w : feed_.wires) {
            const std::vector<std::int32_t>& at = ends[w.name];
            result_.netlist.wires.push_back({w.name, w.base, w.stripe, netOfWire(w.name),
                                             at.size() > 0 ? at[0] : -1,
                                             at.size() > 1 ? at[1] : -1});
        }
        for (const auto& [pin, tp] : testPoints_)
            result_.netlist.points.push_back({tp, pin.first, pin.second});
        std::sort(
            result_.netlist.points.begin(), result_.netlist.points.end(),
            [](const ImagePoint& a, const ImagePoint& b) { return a.testPoint < b.testPoint; });
    }

    std::int32_t testPointOf(const std::string& connector, const std::string& pin) const {
        return testPointOf(PinKey{connector, pin});
    }
    std::int32_t testPointOf(const PinKey& pin) const {
        const auto tp = testPoints_.find(pin);
        return tp == testPoints_.end() ? -1 : tp->second;
    }

    void checkReversibles() {
        int row = 0;
        for (const auto& r : feed_.reversibles) {
            ++row;
            for (const PinKey& pin : {PinKey{r.connector1, r.pin1}, PinKey{r.connector2, r.pin2}})
                if (!pins_.contains(pin) && !testPoints_.contains(pin))
                    report(Code::ReversibleUnknownPin, "Reversible", row,
                           "reversible pair " + std::to_string(r.number) + " names pin " +
                               pinText(pin) +
                               ", which is neither in the Pin table nor in the fixture");
        }
    }

    const NetlistFeed& feed_;
    const NetlistContext& context_;
    NetlistAnalysis result_;
    std::set<std::string> connectors_;
    std::map<std::string, std::vector<std::string>> wires_; // name -> what its ends are on
    std::map<PinKey, std::string> pins_;
    std::map<PinKey, std::uint16_t> testPoints_;
    std::set<PinKey> fixtured_; // pins with a fixture row, taken or refused
    std::map<std::uint16_t, std::pair<PinKey, int>> pointOwner_;
    UnionFind sets_;
    std::map<std::string, int> wireNode_;
    std::map<int, int> netOfRoot_;
};

} // namespace

NetlistAnalysis AnalyseNetlist(const NetlistFeed& feed, const NetlistContext& context) {
    return Analyser(feed, context).Run();
}

std::vector<std::string> BuildOrder(const NetlistFeed& feed) {
    std::vector<std::string> order;
    std::set<std::string> placed;
    auto place = [&](const std::string& wire) {
        if (!wire.empty() && wire != kUnconnected && placed.insert(wire).second)
            order.push_back(wire);
    };
    std::set<std::string> wireNames;
    for (const auto& w : feed.wires)
        wireNames.insert(w.name);
    std::set<std::string> seenConnectors;
    for (const auto& c : feed.connectors) {
        if (!seenConnectors.insert(c.name).second)
            continue;
        std::vector<const NetlistFeed::Pin*> cavities;
        for (const auto& p : feed.pins)
            if (p.connector == c.name)
                cavities.push_back(&p);
        std::stable_sort(cavities.begin(), cavities.end(),
                         [](const auto* a, const auto* b) { return pinNameLess(a->pin, b->pin); });
        for (const auto* p : cavities)
            if (wireNames.contains(p->wire))
                place(p->wire);
    }
    for (const auto& w : feed.wires)
        place(w.name);
    return order;
}

} // namespace zolt::compile
