#include "analyzer/fault.h"

#include "analyzer/comma_list.h"
#include "analyzer/component_kind.h"
#include "analyzer/ohms.h"
#include "core/value.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zolt::analyzer {
namespace {

struct KindText {
    FaultKind kind;
    std::string_view text;
};

constexpr KindText kKindTexts[] = {
    {FaultKind::Open, "open"},
    {FaultKind::Dead, "dead"},
    {FaultKind::Short, "short"},
    {FaultKind::Swap, "swap"},
    {FaultKind::Missing, "missing"},
    {FaultKind::Reverse, "reverse"},
    {FaultKind::Value, "value"},
    {FaultKind::StuckOpen, "stuck-open"},
    {FaultKind::StuckClosed, "stuck-closed"},
};

constexpr std::string_view kKnownKinds =
    "open, dead, short, swap, missing, reverse, value, stuck-open or stuck-closed";

std::optional<double> Ohms(std::string_view text) {
    double value = 0;
    const auto [rest, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || ec != std::errc() || rest != text.data() + text.size() ||
        !std::isfinite(value) || value < 0)
        return std::nullopt;
    return value;
}

FaultParse Refused(std::string error) {
    return {std::nullopt, std::move(error)};
}

// "a" or "a,b", each a pin or test point the harness has.
FaultParse Points(Fault fault, std::string_view args, int count, const PointNames& names,
                  std::string_view whole) {
    std::vector<std::string> parts;
    for (const auto part : CommaList(args))
        parts.push_back(vb::Trim(part));
    if (static_cast<int>(parts.size()) != count)
        return Refused("fault '" + std::string(whole) + "' needs " +
                       (count == 1 ? "one pin" : "two pins, separated by a comma"));
    int* targets[] = {&fault.a, &fault.b};
    for (int i = 0; i < count; ++i) {
        const auto point = names.Find(parts[static_cast<std::size_t>(i)]);
        if (!point)
            return Refused("fault '" + std::string(whole) + "': no pin or test point '" +
                           std::string(parts[static_cast<std::size_t>(i)]) + "'");
        *targets[i] = *point;
    }
    if (count == 2 && fault.a == fault.b)
        return Refused("fault '" + std::string(whole) + "' names one pin twice");
    return {fault, {}};
}

FaultParse Component(Fault fault, std::string_view name, const Harness& harness,
                     std::string_view whole) {
    const std::string wanted = vb::UCase(vb::Trim(name));
    for (std::size_t i = 0; i < harness.components.size(); ++i) {
        const auto& c = harness.components[i];
        if (ComponentName(c.kind, c.number) != wanted)
            continue;
        if (fault.kind == FaultKind::Reverse && !IsPolarised(c.kind))
            return Refused("fault '" + std::string(whole) + "': " + wanted +
                           " has no direction to reverse");
        if (fault.kind == FaultKind::Value && !IsResistive(c.kind))
            return Refused("fault '" + std::string(whole) + "': " + wanted + " is not a resistor");
        fault.component = static_cast<int>(i);
        return {fault, {}};
    }
    return Refused("fault '" + std::string(whole) + "': no component '" + wanted +
                   "' in the harness");
}

// A switch by its name ("S1") or its connector and name ("J1-S1").
FaultParse Switch(Fault fault, std::string_view name, const Harness& harness,
                  std::string_view whole) {
    const std::string wanted = vb::UCase(vb::Trim(name));
    for (std::size_t i = 0; i < harness.switches.size(); ++i) {
        const auto& s = harness.switches[i];
        if (vb::UCase(s.name) == wanted || vb::UCase(s.connector + '-' + s.name) == wanted) {
            fault.switchIndex = static_cast<int>(i);
            return {fault, {}};
        }
    }
    return Refused("fault '" + std::string(whole) + "': no switch '" + wanted +
                   "' with test points in the harness");
}

} // namespace

FaultParse ParseFault(std::string_view text, const PointNames& names, const Harness& harness) {
    const std::string whole = vb::Trim(text);
    const auto colon = whole.find(':');
    const std::string kindText = vb::LCase(vb::Trim(whole.substr(0, colon)));
    const auto known = std::ranges::find(kKindTexts, kindText, &KindText::text);
    if (colon == std::string_view::npos || known == std::end(kKindTexts))
        return Refused("unknown fault '" + std::string(whole) + "' (" + std::string(kKnownKinds) +
                       ", then ':' and what it names)");
    Fault fault;
    fault.kind = known->kind;
    std::string args = vb::Trim(std::string_view(whole).substr(colon + 1));
    const auto equals = args.find('=');
    if (fault.kind == FaultKind::Short || fault.kind == FaultKind::Value) {
        if (equals != std::string_view::npos) {
            fault.ohms = Ohms(vb::Trim(args.substr(equals + 1)));
            if (!fault.ohms)
                return Refused("fault '" + std::string(whole) +
                               "': the resistance is no number of ohms");
            args = vb::Trim(args.substr(0, equals));
        } else if (fault.kind == FaultKind::Value) {
            return Refused("fault '" + std::string(whole) + "' needs the new value: value:R3=1500");
        }
    } else if (equals != std::string_view::npos) {
        return Refused("fault '" + std::string(whole) + "' takes no value");
    }
    switch (fault.kind) {
    case FaultKind::Open:
    case FaultKind::Dead:
        return Points(fault, args, 1, names, whole);
    case FaultKind::Short:
    case FaultKind::Swap:
        return Points(fault, args, 2, names, whole);
    case FaultKind::Missing:
    case FaultKind::Reverse:
    case FaultKind::Value:
        return Component(fault, args, harness, whole);
    case FaultKind::StuckOpen:
    case FaultKind::StuckClosed:
        return Switch(fault, args, harness, whole);
    }
    return Refused("unknown fault '" + std::string(whole) + "'");
}

std::string FaultText(const Fault& fault, const PointNames& names, const Harness& harness) {
    const std::string kind(std::ranges::find(kKindTexts, fault.kind, &KindText::kind)->text);
    const std::string value = fault.ohms ? "=" + OhmsText(*fault.ohms) : "";
    if (fault.component >= 0) {
        const auto& c = harness.components[static_cast<std::size_t>(fault.component)];
        return kind + ':' + ComponentName(c.kind, c.number) + value;
    }
    if (fault.switchIndex >= 0) {
        const auto& s = harness.switches[static_cast<std::size_t>(fault.switchIndex)];
        const bool unique = std::ranges::count(harness.switches, s.name, &HarnessSwitch::name) == 1;
        return kind + ':' + (unique ? s.name : s.connector + '-' + s.name);
    }
    std::string text = kind + ':' + names.Name(fault.a);
    if (fault.b >= 0)
        text += ',' + names.Name(fault.b);
    return text + value;
}

Harness WithFault(Harness harness, const Fault& fault) {
    auto& conductor = harness.conductor;
    const auto at = [](int p) { return static_cast<std::size_t>(p); };
    switch (fault.kind) {
    case FaultKind::Open:
    case FaultKind::Dead:
        conductor[at(fault.a)] = LooseConductor(fault.a);
        break;
    case FaultKind::Short:
        if (fault.ohms) {
            harness.softShorts.push_back({fault.a, fault.b, *fault.ohms});
        } else {
            const int from = conductor[at(fault.b)];
            const int to = conductor[at(fault.a)];
            std::ranges::replace(conductor, from, to);
            for (auto& c : harness.components) {
                c.sideA = c.sideA == from ? to : c.sideA;
                c.sideB = c.sideB == from ? to : c.sideB;
            }
        }
        break;
    case FaultKind::Swap:
        std::swap(conductor[at(fault.a)], conductor[at(fault.b)]);
        break;
    case FaultKind::Missing:
        harness.components[at(fault.component)].missing = true;
        break;
    case FaultKind::Reverse:
        harness.components[at(fault.component)].reversed = true;
        break;
    case FaultKind::Value:
        harness.components[at(fault.component)].ohms = fault.ohms;
        break;
    case FaultKind::StuckOpen:
        harness.switches[at(fault.switchIndex)].stuckOpen = true;
        break;
    case FaultKind::StuckClosed:
        harness.switches[at(fault.switchIndex)].stuckClosed = true;
        break;
    }
    return harness;
}

} // namespace zolt::analyzer
