#include "cli/script_words.h"

#include <stdexcept>

namespace zolt::cli {

std::vector<Word> SplitWords(const std::string& line) {
    std::vector<Word> words;
    std::size_t i = 0;
    while (i < line.size()) {
        const char c = line[i];
        if (c == ' ' || c == '\t' || c == '\r') {
            ++i;
        } else if (c == '#') {
            break;
        } else if (c == '"') {
            std::string word;
            ++i;
            bool closed = false;
            while (i < line.size()) {
                if (line[i] == '"') {
                    if (i + 1 < line.size() && line[i + 1] == '"') {
                        word += '"';
                        i += 2;
                        continue;
                    }
                    closed = true;
                    ++i;
                    break;
                }
                word += line[i++];
            }
            if (!closed)
                throw std::invalid_argument("unterminated quoted word");
            words.push_back({word, true});
        } else {
            std::string word;
            while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r')
                word += line[i++];
            words.push_back({word, false});
        }
    }
    return words;
}

std::string Quoted(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            continue;
        else if (c == '"' || c == '\\')
            out += std::string("\\") + c;
        else
            out += c;
    }
    return out + "\"";
}

} // namespace zolt::cli
