#include "core/value.h"

#include "core/utf8.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace zolt {
namespace {

bool isBlank(char c) {
    return c == ' ';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Scans a plain decimal number (sign, digits, point, exponent) from the start of
// text. Returns the length used; 0 when there is no number.
std::size_t scanDecimal(std::string_view text, bool allowSign) {
    std::size_t i = 0;
    if (allowSign && i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && isDigit(text[i])) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0)
        return 0;
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        std::size_t expDigits = 0;
        while (j < text.size() && isDigit(text[j])) {
            ++j;
            ++expDigits;
        }
        if (expDigits > 0)
            i = j;
    }
    return i;
}

std::optional<double> parseRadix(std::string_view digits, int radix) {
    if (digits.empty())
        return std::nullopt;
    std::uint64_t n = 0;
    for (char c : digits) {
        int d = -1;
        if (isDigit(c))
            d = c - '0';
        else if (radix == 16 && c >= 'a' && c <= 'f')
            d = c - 'a' + 10;
        else if (radix == 16 && c >= 'A' && c <= 'F')
            d = c - 'A' + 10;
        if (d < 0 || d >= radix)
            return std::nullopt;
        n = n * radix + d;
        if (n > 0xFFFFFFFFull)
            return std::nullopt;
    }
    // &H literals are 16-bit when they fit, else 32-bit, both signed.
    if (n <= 0xFFFF)
        return static_cast<double>(static_cast<std::int16_t>(n));
    return static_cast<double>(static_cast<std::int32_t>(n));
}

std::optional<double> parseNumber(std::string_view raw) {
    const std::string t = vb::Trim(raw);
    if (t.empty())
        return std::nullopt;
    if (t.size() > 2 && t[0] == '&' && (t[1] == 'H' || t[1] == 'h'))
        return parseRadix(std::string_view(t).substr(2), 16);
    if (t.size() > 2 && t[0] == '&' && (t[1] == 'O' || t[1] == 'o'))
        return parseRadix(std::string_view(t).substr(2), 8);
    if (scanDecimal(t, true) != t.size())
        return std::nullopt;
    std::string copy = t;
    for (char& c : copy)
        if (c == 'D' || c == 'd')
            c = 'E';
    double result = std::strtod(copy.c_str(), nullptr);
    if (!std::isfinite(result))
        return std::nullopt;
    return result;
}

double roundHalfEven(double x) {
    return std::nearbyint(x);
}

// Lower and upper case pairs of the code page's letters beyond ASCII, as code points.
char32_t upperOf(char32_t c) {
    if (c >= 'a' && c <= 'z')
        return c - 32;
    if ((c >= 0xE0 && c <= 0xFE && c != 0xF7))
        return c - 32;
    switch (c) {
    case 0x0161:
        return 0x0160;
    case 0x0153:
        return 0x0152;
    case 0x017E:
        return 0x017D;
    case 0x00FF:
        return 0x0178;
    default:
        return c;
    }
}

char32_t lowerOf(char32_t c) {
    if (c >= 'A' && c <= 'Z')
        return c + 32;
    if ((c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return c + 32;
    switch (c) {
    case 0x0160:
        return 0x0161;
    case 0x0152:
        return 0x0153;
    case 0x017D:
        return 0x017E;
    case 0x0178:
        return 0x00FF;
    default:
        return c;
    }
}

template <typename Map> std::string mapCodePoints(std::string_view text, Map map) {
    std::string out;
    out.reserve(text.size());
    // Most texts are plain ASCII, which maps byte for byte.
    if (std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        for (const char c : text)
            out.push_back(static_cast<char>(map(static_cast<char32_t>(c))));
        return out;
    }
    for (const char32_t cp : utf8::CodePoints(text))
        utf8::Append(out, map(cp));
    return out;
}

} // namespace

std::string Value::text() const {
    return std::visit(
        [](const auto& v) -> std::string {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return {};
            else if constexpr (std::is_same_v<T, std::string>)
                return v;
            else if constexpr (std::is_same_v<T, double>)
                return vb::NumberText(v);
            else if constexpr (std::is_same_v<T, bool>)
                return v ? "True" : "False";
            else
                return std::to_string(v);
        },
        data_);
}

std::optional<double> Value::number() const {
    return std::visit(
        [](const auto& v) -> std::optional<double> {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return std::nullopt;
            else if constexpr (std::is_same_v<T, std::string>)
                return parseNumber(v);
            else if constexpr (std::is_same_v<T, bool>)
                return v ? -1.0 : 0.0;
            else
                return static_cast<double>(v);
        },
        data_);
}

namespace vb {

bool IsNumeric(std::string_view text) {
    return parseNumber(text).has_value();
}

bool IsNumeric(const Value& value) {
    return !value.isNull() && value.number().has_value();
}

double Val(std::string_view text) {
    std::string compact;
    for (char c : text)
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r')
            compact += c;
    if (compact.size() > 2 && compact[0] == '&' &&
        (compact[1] == 'H' || compact[1] == 'h' || compact[1] == 'O' || compact[1] == 'o')) {
        const int radix = (compact[1] == 'H' || compact[1] == 'h') ? 16 : 8;
        std::size_t end = 2;
        while (end < compact.size() && parseRadix(compact.substr(2, end - 1), radix))
            ++end;
        return parseRadix(compact.substr(2, end - 2), radix).value_or(0.0);
    }
    const std::size_t used = scanDecimal(compact, true);
    if (used == 0)
        return 0.0;
    std::string number = compact.substr(0, used);
    for (char& c : number)
        if (c == 'D' || c == 'd')
            c = 'E';
    const double result = std::strtod(number.c_str(), nullptr);
    return std::isfinite(result) ? result : 0.0;
}

std::string NumberText(double n) {
    if (n == 0)
        return "0";
    if (std::isnan(n) || std::isinf(n))
        return n > 0 ? "1.#INF" : (n < 0 ? "-1.#INF" : "-1.#IND");
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.15G", n);
    std::string text = buffer;
    const auto e = text.find('E');
    std::string mantissa = e == std::string::npos ? text : text.substr(0, e);
    std::string exponent = e == std::string::npos ? "" : text.substr(e);
    if (mantissa.find('.') != std::string::npos) {
        while (!mantissa.empty() && mantissa.back() == '0')
            mantissa.pop_back();
        if (!mantissa.empty() && mantissa.back() == '.')
            mantissa.pop_back();
    }
    if (!exponent.empty()) {
        // Exponents keep two digits at least: "E+20", "E-07".
        const char sign = exponent[1];
        std::string digits = exponent.substr(2);
        while (digits.size() > 2 && digits[0] == '0')
            digits.erase(0, 1);
        exponent = std::string("E") + sign + digits;
    }
    return mantissa + exponent;
}

std::optional<std::int16_t> CInt(const Value& value) {
    const auto n = value.number();
    if (!n)
        return std::nullopt;
    const double r = roundHalfEven(*n);
    if (r < std::numeric_limits<std::int16_t>::min() ||
        r > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    return static_cast<std::int16_t>(r);
}

std::optional<std::int32_t> CLng(const Value& value) {
    const auto n = value.number();
    if (!n)
        return std::nullopt;
    const double r = roundHalfEven(*n);
    if (r < std::numeric_limits<std::int32_t>::min() ||
        r > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(r);
}

std::optional<double> CDbl(const Value& value) {
    return value.number();
}

std::string LTrim(std::string_view text) {
    std::size_t b = 0;
    while (b < text.size() && isBlank(text[b]))
        ++b;
    return std::string(text.substr(b));
}

std::string RTrim(std::string_view text) {
    std::size_t e = text.size();
    while (e > 0 && isBlank(text[e - 1]))
        --e;
    return std::string(text.substr(0, e));
}

std::string Trim(std::string_view text) {
    std::size_t b = 0;
    std::size_t e = text.size();
    while (b < e && isBlank(text[b]))
        ++b;
    while (e > b && isBlank(text[e - 1]))
        --e;
    return std::string(text.substr(b, e - b));
}

std::string UCase(std::string_view text) {
    return mapCodePoints(text, upperOf);
}
std::string LCase(std::string_view text) {
    return mapCodePoints(text, lowerOf);
}

bool LooseEquals(const Value& a, const Value& b) {
    if (a.isNull() || b.isNull())
        return a.isNull() && b.isNull();
    if (a.isText() && b.isText())
        return a.text() == b.text();
    const auto x = a.number();
    const auto y = b.number();
    if (x && y)
        return *x == *y;
    return a.text() == b.text();
}

bool TextEqualsNoCase(std::string_view a, std::string_view b) {
    return UCase(a) == UCase(b);
}

} // namespace vb
} // namespace zolt
