#include "analyzer/point_names.h"

#include "core/value.h"

#include <algorithm>
#include <charconv>

namespace zolt::analyzer {
namespace {

std::optional<int> Digits(std::string_view text) {
    int value = 0;
    const auto [rest, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || ec != std::errc() || rest != text.data() + text.size())
        return std::nullopt;
    return value;
}

} // namespace

std::string TestPointText(int point) {
    const std::string pin = std::to_string(point % 128);
    return std::to_string(point / 128) + '-' +
           std::string(3 - std::min<std::size_t>(3, pin.size()), '0') + pin;
}

std::optional<int> ParseTestPoint(std::string_view text) {
    const auto dash = text.find('-');
    if (dash == std::string_view::npos)
        return std::nullopt;
    const auto board = Digits(text.substr(0, dash));
    const auto point = Digits(text.substr(dash + 1));
    if (!board || !point || *board >= kPoints / 128 || *point >= 128)
        return std::nullopt;
    return *board * 128 + *point;
}

PointNames::PointNames(const std::vector<const compile::ProgramImage*>& images) {
    const auto add = [this](int point, const std::string& connector, const std::string& pin) {
        if (point < 0 || point >= kPoints || connector.empty())
            return;
        const std::string name = connector + '-' + pin;
        if (names_.try_emplace(point, name).second)
            connectors_.try_emplace(point, connector);
        points_.try_emplace(vb::UCase(name), point);
    };
    // The fixture's own map first; group members name pins of images without one.
    for (const auto* image : images)
        for (const auto& netlist : image->netlists)
            for (const auto& p : netlist.points)
                add(p.testPoint, p.connector, p.pin);
    for (const auto* image : images)
        for (const auto& netlist : image->netlists)
            for (const auto& member : netlist.groups)
                add(member.testPoint, member.connector, member.pin);
}

std::string PointNames::Name(int point) const {
    const auto found = names_.find(point);
    return found != names_.end() ? found->second : TestPointText(point);
}

std::string PointNames::Connector(int point) const {
    const auto found = connectors_.find(point);
    return found != connectors_.end() ? found->second : std::string();
}

std::optional<int> PointNames::Find(std::string_view text) const {
    const auto found = points_.find(vb::UCase(text));
    if (found != points_.end())
        return found->second;
    return ParseTestPoint(text);
}

} // namespace zolt::analyzer
