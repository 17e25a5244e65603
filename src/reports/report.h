#pragma once

#include <string>
#include <vector>

namespace zolt::reports {

// The page header every report shares, one text per label, top to bottom.
struct ReportHeader {
    std::string product;  // lblHeader1
    std::string build;    // lblHeader2
    std::string heading;  // lblHeader3
    std::string fileName; // lblHeader4
    std::string baseName; // lblheader5
    std::string compiled; // lblHeader6
    std::string printed;  // lblHeader7
};

// A caption over several neighbouring columns, such as "From" over one wire end.
struct CaptionSpan {
    int firstColumn = 0;
    int columnCount = 1;
    std::string text;
};

// One banded report: the page header, the column captions and one detail row
// per record, cells in caption order.
struct Report {
    ReportHeader header;
    std::vector<std::string> captions;
    std::vector<CaptionSpan> spans;
    std::vector<std::vector<std::string>> rows;
};

} // namespace zolt::reports
