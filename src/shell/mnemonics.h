#pragma once

#include <string>
#include <vector>

namespace zolt::shell {

// The menus of the main frame's menu bar, in their order; each is underlined
// at its first letter.
const std::vector<std::string>& MenuBarMenus();
// The letters (upper case) the menu bar's Alt keys take.
std::string MenuBarMnemonics();

// Captions with "&" before the letter Alt reaches them by, such that none
// takes a letter of `reserved` or of a caption before it: a clashing caption
// moves to the first free letter of a word, then to any free letter, and
// without one loses its mnemonic. Letters compare in upper case.
std::vector<std::string> UniqueMnemonics(const std::vector<std::string>& captions,
                                         std::string reserved);

} // namespace zolt::shell
