#include "download/serial_port.h"

#include <cctype>
#include <charconv>
#include <sstream>
#include <vector>

namespace zolt::download {

namespace {

std::optional<int> Number(const std::string& text) {
    std::size_t first = text.find_first_not_of(' ');
    std::size_t last = text.find_last_not_of(' ');
    if (first == std::string::npos)
        return std::nullopt;
    int value = 0;
    const char* begin = text.data() + first;
    const char* end = text.data() + last + 1;
    const auto [rest, ec] = std::from_chars(begin, end, value);
    if (ec != std::errc() || rest != end || value <= 0)
        return std::nullopt;
    return value;
}

char ParityLetter(const std::string& parity) {
    const std::size_t first = parity.find_first_not_of(' ');
    if (first == std::string::npos)
        return 'N';
    return static_cast<char>(std::toupper(static_cast<unsigned char>(parity[first])));
}

} // namespace

std::string SettingsText(const LineSettings& settings) {
    std::ostringstream text;
    text << settings.baud << ',' << settings.parity << ',' << settings.dataBits << ','
         << settings.stopBits;
    return text.str();
}

std::optional<LineSettings> ParseSettingsText(const std::string& text) {
    std::vector<std::string> fields;
    std::istringstream in(text);
    for (std::string field; std::getline(in, field, ',');)
        fields.push_back(field);
    if (fields.size() != 4 || fields[1].size() != 1)
        return std::nullopt;
    const auto baud = Number(fields[0]);
    const auto dataBits = Number(fields[2]);
    const auto stopBits = Number(fields[3]);
    const char parity = ParityLetter(fields[1]);
    if (!baud || !dataBits || !stopBits || std::string("NEOMS").find(parity) == std::string::npos)
        return std::nullopt;
    return LineSettings{*baud, parity, *dataBits, *stopBits};
}

LineSettings LineFromParameters(const std::string& baud, const std::string& parity,
                                const std::string& dataBits, const std::string& stopBits) {
    const LineSettings defaults;
    return {Number(baud).value_or(defaults.baud), ParityLetter(parity),
            Number(dataBits).value_or(defaults.dataBits),
            Number(stopBits).value_or(defaults.stopBits)};
}

} // namespace zolt::download
