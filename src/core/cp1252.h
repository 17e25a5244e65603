#pragma once

#include <string>
#include <string_view>

namespace zolt::cp1252 {

// Program files and legacy formats are Windows-1252. Every one of the 256 byte
// values maps to one code point (the five unassigned bytes to the C1 controls of
// the same number), so decode followed by encode gives back the same bytes.
std::string toUtf8(std::string_view bytes);
// Code points outside the code page become '?'; malformed UTF-8 bytes too.
std::string fromUtf8(std::string_view utf8);

} // namespace zolt::cp1252
