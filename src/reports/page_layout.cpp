#include "reports/page_layout.h"

#include "core/utf8.h"

#include <algorithm>
#include <numeric>

namespace zolt::reports {
namespace {

double NaturalWidth(const Report& report, std::size_t column) {
    int chars = 1;
    for (const auto& row : report.rows)
        if (column < row.size())
            chars = std::max(chars, utf8::Length(row[column]));
    const double caption = utf8::Length(report.captions[column]) * page::kCaptionCharWidth;
    return std::max(caption, chars * page::kCharWidth) + page::kColumnPadding;
}

} // namespace

PageLayout LayOut(const Report& report) {
    PageLayout layout;
    for (std::size_t c = 0; c < report.captions.size(); ++c)
        layout.columnWidths.push_back(NaturalWidth(report, c));
    const double total =
        std::accumulate(layout.columnWidths.begin(), layout.columnWidths.end(), 0.0);
    if (total > layout.printableWidth()) {
        layout.landscape = true;
        layout.pageWidth = page::kLongSide;
        layout.pageHeight = page::kShortSide;
    }
    if (total > layout.printableWidth()) {
        const double scale = layout.printableWidth() / total;
        for (double& w : layout.columnWidths)
            w *= scale;
    }
    double body = layout.pageHeight - page::kTopMargin - page::kBottomMargin - page::kHeaderHeight -
                  page::kCaptionHeight - page::kFooterHeight;
    if (!report.spans.empty())
        body -= page::kSpanCaptionHeight;
    layout.linesPerPage = std::max(1, static_cast<int>(body / page::kRowHeight));
    return layout;
}

int LinesOfRow(const std::vector<std::string>& cells, const PageLayout& layout) {
    int lines = 1;
    for (std::size_t c = 0; c < cells.size() && c < layout.columnWidths.size(); ++c) {
        const double room = layout.columnWidths[c] - page::kColumnPadding;
        const int perLine = std::max(1, static_cast<int>(room / page::kCharWidth));
        const int chars = utf8::Length(cells[c]);
        lines = std::max(lines, (chars + perLine - 1) / perLine);
    }
    return lines;
}

std::vector<ReportPage> Paginate(const Report& report, const PageLayout& layout) {
    std::vector<ReportPage> pages;
    const int rows = static_cast<int>(report.rows.size());
    int first = 0;
    do {
        int count = 0;
        int lines = 0;
        while (first + count < rows) {
            const int more =
                LinesOfRow(report.rows[static_cast<std::size_t>(first + count)], layout);
            if (count > 0 && lines + more > layout.linesPerPage)
                break;
            lines += more;
            ++count;
        }
        pages.push_back({static_cast<int>(pages.size()) + 1, first, count});
        first += count;
    } while (first < rows);
    return pages;
}

} // namespace zolt::reports
