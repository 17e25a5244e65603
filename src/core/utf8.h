#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zolt::utf8 {

// The code points of UTF-8 text; a cut or stray byte stands for itself.
std::vector<char32_t> CodePoints(std::string_view text);
void Append(std::string& out, char32_t codePoint);
std::string Encode(char32_t codePoint);
// Characters, not bytes.
int Length(std::string_view text);
// The first `characters` characters of the text, never half of one.
std::string Left(std::string_view text, int characters);

} // namespace zolt::utf8
