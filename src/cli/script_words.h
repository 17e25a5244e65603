#pragma once

#include <string>
#include <vector>

namespace zolt::cli {

// Splits a batch line into words: blanks separate, a double-quoted word may hold
// blanks (a doubled quote inside stands for one), "#" outside quotes starts a
// comment. Throws std::invalid_argument on an unterminated quote.
struct Word {
    std::string text;
    bool quoted = false;
};
std::vector<Word> SplitWords(const std::string& line);
// A text in double quotes with quotes, backslashes and line breaks escaped, as
// the tool prints texts of boxes and prompts.
std::string Quoted(const std::string& text);

} // namespace zolt::cli
