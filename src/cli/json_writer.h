#pragma once

#include <string>

namespace zolt::cli {

// A JSON string literal of UTF-8 text.
std::string JsonString(const std::string& text);

} // namespace zolt::cli
