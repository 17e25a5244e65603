#include "shell/mnemonics.h"

#include <cctype>

namespace zolt::shell {
namespace {

char upper(char c) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

bool isLetter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

// The caption without its "&" (a "&&" stays a literal ampersand) and the
// position of the letter it marked, or npos.
std::pair<std::string, std::size_t> stripMnemonic(const std::string& caption) {
    std::string plain;
    std::size_t marked = std::string::npos;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) {
            if (caption[i + 1] == '&') {
                plain += "&&";
                ++i;
            } else if (marked == std::string::npos) {
                marked = plain.size();
            }
            continue;
        }
        plain += caption[i];
    }
    return {plain, marked};
}

std::size_t freeLetter(const std::string& plain, const std::string& used, bool wordStartsOnly) {
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const bool wordStart = i == 0 || plain[i - 1] == ' ';
        if (isLetter(plain[i]) && (wordStart || !wordStartsOnly) &&
            used.find(upper(plain[i])) == std::string::npos)
            return i;
    }
    return std::string::npos;
}

} // namespace

const std::vector<std::string>& MenuBarMenus() {
    static const std::vector<std::string> menus = {"File", "Edit",   "Netlist Tables", "Sequence",
                                                   "GRV",  "Window", "Tools",          "Help"};
    return menus;
}

std::string MenuBarMnemonics() {
    std::string letters;
    for (const auto& menu : MenuBarMenus())
        letters += upper(menu.front());
    return letters;
}

std::vector<std::string> UniqueMnemonics(const std::vector<std::string>& captions,
                                         std::string reserved) {
    for (char& c : reserved)
        c = upper(c);
    std::vector<std::string> out;
    for (const auto& caption : captions) {
        const auto [plain, marked] = stripMnemonic(caption);
        if (marked == std::string::npos) {
            out.push_back(caption);
            continue;
        }
        std::size_t at = marked < plain.size() && isLetter(plain[marked]) &&
                                 reserved.find(upper(plain[marked])) == std::string::npos
                             ? marked
                             : freeLetter(plain, reserved, true);
        if (at == std::string::npos)
            at = freeLetter(plain, reserved, false);
        if (at == std::string::npos) {
            out.push_back(plain);
            continue;
        }
        reserved += upper(plain[at]);
        out.push_back(plain.substr(0, at) + "&" + plain.substr(at));
    }
    return out;
}

} // namespace zolt::shell
