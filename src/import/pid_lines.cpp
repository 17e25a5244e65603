#include "import/pid_lines.h"

namespace zolt::import {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && (isBlank(text.front()) || text.front() == '\r'))
        text.remove_prefix(1);
    while (!text.empty() && (isBlank(text.back()) || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

std::string_view BeforeEndOfFileMark(std::string_view text) {
    return text.substr(0, text.find('\x1a'));
}

void SplitFields(std::string_view line, std::vector<std::string_view>& fields) {
    fields.clear();
    std::size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && isBlank(line[i]))
            ++i;
        const std::size_t start = i;
        while (i < line.size() && !isBlank(line[i]))
            ++i;
        if (i > start)
            fields.push_back(line.substr(start, i - start));
    }
}

bool PidLines::NextPidLine() {
    while (pos_ < text_.size()) {
        const std::size_t end = text_.find('\n', pos_);
        const std::size_t stop = end == std::string_view::npos ? text_.size() : end;
        const std::string_view line = TrimBlanks(text_.substr(pos_, stop - pos_));
        pos_ = end == std::string_view::npos ? text_.size() : end + 1;
        ++lineNumber_;
        if (line.empty() || line.front() == ';')
            continue;
        line_ = line;
        if (line.front() == '[')
            return false;
        SplitFields(line, fields_);
        return true;
    }
    atEnd_ = true;
    line_ = {};
    fields_.clear();
    return false;
}

int PidLines::DataLinesAhead() const {
    int count = 0;
    for (std::size_t pos = pos_; pos < text_.size();) {
        const std::size_t end = text_.find('\n', pos);
        const std::size_t stop = end == std::string_view::npos ? text_.size() : end;
        const std::string_view line = TrimBlanks(text_.substr(pos, stop - pos));
        if (!line.empty() && line.front() == '[')
            break;
        if (!line.empty() && line.front() != ';')
            ++count;
        pos = stop + 1;
    }
    return count;
}

bool PidLines::SkipToHeader() {
    while (NextPidLine()) {
    }
    return !atEnd_;
}

} // namespace zolt::import
