#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zolt::import {

// The lines of a PID file, one at a time: comments (";") and empty lines are
// passed over, a line that begins with "[" is a section header, any other line
// a data line cut into fields at runs of blanks and tabs.
class PidLines {
public:
    explicit PidLines(std::string_view text) : text_(text) {}

    // The next data line (true), or false at a header or the end of the file;
    // the header then stands in `Header()`.
    bool NextPidLine();
    bool AtEnd() const { return atEnd_; }
    // Skips data lines up to the next header; false at the end of the file.
    bool SkipToHeader();
    // How many data lines follow before the next header, without reading them.
    int DataLinesAhead() const;

    const std::vector<std::string_view>& Fields() const { return fields_; }
    std::string_view Line() const { return line_; }
    std::string_view Header() const { return line_; }
    int LineNumber() const { return lineNumber_; }

private:
    std::string_view text_;
    std::size_t pos_ = 0;
    std::string_view line_;
    std::vector<std::string_view> fields_;
    int lineNumber_ = 0;
    bool atEnd_ = false;
};

// Splits at runs of blanks and tabs.
void SplitFields(std::string_view line, std::vector<std::string_view>& fields);
std::string_view TrimBlanks(std::string_view text);
// DOS editors close a text with Ctrl+Z: nothing from that mark on is text.
std::string_view BeforeEndOfFileMark(std::string_view text);

} // namespace zolt::import
