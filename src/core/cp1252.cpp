#include "core/cp1252.h"

#include "core/utf8.h"

#include <array>

namespace zolt::cp1252 {
namespace {

// Code points of bytes 0x80 to 0x9F; the unassigned ones keep their own number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char b) {
    return (b >= 0x80 && b <= 0x9F) ? kHighControls[b - 0x80] : b;
}

int byteOf(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
        return static_cast<int>(cp);
    for (std::size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == cp)
            return static_cast<int>(0x80 + i);
    return -1;
}

} // namespace

std::string toUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (char c : bytes)
        utf8::Append(out, codePointOf(static_cast<unsigned char>(c)));
    return out;
}

std::string fromUtf8(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto b = static_cast<unsigned char>(utf8[i]);
        std::size_t len = b < 0x80             ? 1
                          : (b & 0xE0) == 0xC0 ? 2
                          : (b & 0xF0) == 0xE0 ? 3
                          : (b & 0xF8) == 0xF0 ? 4
                                               : 0;
        if (len == 0 || i + len > utf8.size()) {
            out += '?';
            ++i;
            continue;
        }
        char32_t cp = len == 1 ? b : len == 2 ? (b & 0x1F) : len == 3 ? (b & 0x0F) : (b & 0x07);
        bool ok = true;
        for (std::size_t k = 1; k < len; ++k) {
            const auto cont = static_cast<unsigned char>(utf8[i + k]);
            ok = ok && (cont & 0xC0) == 0x80;
            cp = (cp << 6) | (cont & 0x3F);
        }
        const int byte = ok ? byteOf(cp) : -1;
        out += byte < 0 ? '?' : static_cast<char>(byte);
        i += ok ? len : 1;
    }
    return out;
}

} // namespace zolt::cp1252
