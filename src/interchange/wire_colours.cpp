#include "interchange/wire_colours.h"

#include "core/value.h"

#include <array>
#include <utility>

namespace zolt::interchange {
namespace {

// The Color table's names for the codes; the first nine are those a new
// harness program is usually given.
constexpr std::array<std::pair<std::string_view, std::string_view>, 21> kNames{{
    {"BK", "BLK"}, {"RD", "RED"}, {"GN", "GRN"}, {"BU", "BLU"}, {"YE", "YEL"}, {"OG", "ORN"},
    {"VT", "VIO"}, {"WH", "WHT"}, {"BN", "BRN"}, {"GY", "GRY"}, {"PK", "PNK"}, {"OL", "OLV"},
    {"TQ", "TRQ"}, {"LB", "LTB"}, {"BG", "BGE"}, {"IV", "IVR"}, {"SL", "SLT"}, {"CU", "COP"},
    {"SN", "TIN"}, {"SR", "SIL"}, {"GD", "GLD"},
}};

std::optional<std::string> nameOf(std::string_view code) {
    for (const auto& [c, name] : kNames)
        if (c == code)
            return std::string(name);
    return std::nullopt;
}

std::optional<std::string> codeOf(std::string_view name) {
    for (const auto& [code, n] : kNames)
        if (n == name)
            return std::string(code);
    return std::nullopt;
}

} // namespace

std::optional<WireColours> ColoursOfCode(std::string_view code) {
    const std::string upper = vb::UCase(vb::Trim(code));
    if (upper.empty())
        return WireColours{};
    if (upper.size() != 2 && upper.size() != 4)
        return std::nullopt;
    const auto base = nameOf(std::string_view(upper).substr(0, 2));
    if (!base)
        return std::nullopt;
    if (upper.size() == 2)
        return WireColours{*base, {}};
    const auto stripe = nameOf(std::string_view(upper).substr(2, 2));
    if (!stripe)
        return std::nullopt;
    return WireColours{*base, *stripe};
}

std::optional<std::string> CodeOfColours(const WireColours& colours) {
    if (colours.base.empty())
        return colours.stripe.empty() ? std::optional<std::string>("") : std::nullopt;
    const auto base = codeOf(vb::UCase(colours.base));
    if (!base)
        return std::nullopt;
    if (colours.stripe.empty())
        return base;
    const auto stripe = codeOf(vb::UCase(colours.stripe));
    if (!stripe)
        return std::nullopt;
    return *base + *stripe;
}

std::string ColourText(const WireColours& colours) {
    return colours.stripe.empty() ? colours.base : colours.base + "/" + colours.stripe;
}

WireColours ColoursOfText(std::string_view text) {
    const std::string trimmed = vb::UCase(vb::Trim(text));
    const std::size_t slash = trimmed.find('/');
    if (slash == std::string::npos)
        return {trimmed, {}};
    return {vb::Trim(trimmed.substr(0, slash)), vb::Trim(trimmed.substr(slash + 1))};
}

std::optional<std::vector<std::string>> ColourCodeColours(std::string_view colourCode, int count) {
    const std::string code = vb::UCase(vb::Trim(colourCode));
    // The cyclic codes repeat; DIN 47100 is known here up to its twelfth wire.
    std::vector<std::string> cycle;
    bool repeats = true;
    if (code == "IEC")
        cycle = {"BN", "RD", "OG", "YE", "GN", "BU", "VT", "GY", "WH", "BK"};
    else if (code == "BW")
        cycle = {"BK", "WH"};
    else if (code == "T568A")
        cycle = {"WHGN", "GN", "WHOG", "BU", "WHBU", "OG", "WHBN", "BN"};
    else if (code == "T568B")
        cycle = {"WHOG", "OG", "WHGN", "BU", "WHBU", "GN", "WHBN", "BN"};
    else if (code == "DIN") {
        cycle = {"WH", "BN", "GN", "YE", "GY", "PK", "BU", "RD", "BK", "VT", "GYPK", "RDBU"};
        repeats = false;
    }
    if (cycle.empty() || (!repeats && count > static_cast<int>(cycle.size())))
        return std::nullopt;
    std::vector<std::string> colours;
    for (int i = 0; i < count; ++i)
        colours.push_back(cycle[static_cast<std::size_t>(i) % cycle.size()]);
    return colours;
}

} // namespace zolt::interchange
