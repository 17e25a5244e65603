#include "core/utf8.h"

namespace zolt::utf8 {

std::vector<char32_t> CodePoints(std::string_view text) {
    std::vector<char32_t> out;
    std::size_t i = 0;
    while (i < text.size()) {
        const auto b = static_cast<unsigned char>(text[i]);
        const std::size_t len = b < 0x80             ? 1
                                : (b & 0xE0) == 0xC0 ? 2
                                : (b & 0xF0) == 0xE0 ? 3
                                : (b & 0xF8) == 0xF0 ? 4
                                                     : 0;
        bool whole = len > 0 && i + len <= text.size();
        char32_t cp = len == 2 ? (b & 0x1F) : len == 3 ? (b & 0x0F) : len == 4 ? (b & 0x07) : b;
        for (std::size_t k = 1; whole && k < len; ++k) {
            const auto cont = static_cast<unsigned char>(text[i + k]);
            whole = (cont & 0xC0) == 0x80;
            cp = (cp << 6) | (cont & 0x3F);
        }
        out.push_back(whole ? cp : b);
        i += whole ? len : 1;
    }
    return out;
}

void Append(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

std::string Encode(char32_t c) {
    std::string out;
    Append(out, c);
    return out;
}

int Length(std::string_view text) {
    int n = 0;
    for (const char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            ++n;
    return n;
}

std::string Left(std::string_view text, int characters) {
    int n = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80 && n++ == characters)
            return std::string(text.substr(0, i));
    return std::string(text);
}

} // namespace zolt::utf8
