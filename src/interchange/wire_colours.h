#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zolt::interchange {

// A wire's colours as the Color table names them; stripe empty for none.
struct WireColours {
    std::string base;
    std::string stripe;
};

// IEC 60757 two-letter codes, one or two run together ("GN", "GNYE"), as the
// Color table's names. nullopt for an unknown code or more than two colours.
std::optional<WireColours> ColoursOfCode(std::string_view code);
// The code of a base and stripe; nullopt when a name has no code.
std::optional<std::string> CodeOfColours(const WireColours& colours);
// "GRN" or "GRN/BLK" as a from/to list writes them.
std::string ColourText(const WireColours& colours);
// The inverse of ColourText; the text is taken as the user typed it.
WireColours ColoursOfText(std::string_view text);

// The codes a cable's colour code gives its first `count` wires; nullopt for
// a colour code we do not know that far.
std::optional<std::vector<std::string>> ColourCodeColours(std::string_view colourCode, int count);

} // namespace zolt::interchange
