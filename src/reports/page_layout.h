#pragma once

#include "reports/report.h"

#include <vector>

namespace zolt::reports {

// Page geometry in points (1/72 inch) on a Letter sheet. The text layout and
// the painter both take their measures from here, so that a report breaks
// into the same pages on paper, in a PDF and as plain text.
namespace page {
inline constexpr double kShortSide = 612.0;
inline constexpr double kLongSide = 792.0;
inline constexpr double kLeftMargin = 36.0; // 720 twips
inline constexpr double kRightMargin = 36.0;
inline constexpr double kTopMargin = 36.0;
inline constexpr double kBottomMargin = 36.0;
inline constexpr double kHeaderHeight = 92.0;
inline constexpr double kCaptionHeight = 16.0;
inline constexpr double kSpanCaptionHeight = 14.0;
inline constexpr double kFooterHeight = 22.0;
inline constexpr double kRowHeight = 12.0;
inline constexpr double kDetailPointSize = 9.0;
// An advance of a character of the detail font that capitals rarely exceed
// (names and messages are mostly capitals), and the space kept between columns.
inline constexpr double kCharWidth = 6.4;
inline constexpr double kCaptionCharWidth = 6.6; // captions are bold
inline constexpr double kColumnPadding = 8.0;
} // namespace page

struct PageLayout {
    bool landscape = false;
    double pageWidth = page::kShortSide;
    double pageHeight = page::kLongSide;
    std::vector<double> columnWidths; // points, summing to at most the printable width
    // Detail lines a page holds; a row whose cells wrap takes several.
    int linesPerPage = 1;

    double printableWidth() const { return pageWidth - page::kLeftMargin - page::kRightMargin; }
};

// Portrait when the columns' natural widths (their longest cell) fit across the
// page, landscape otherwise; columns wider than even that are narrowed in
// proportion and their cells wrap. A report never shortens a cell.
PageLayout LayOut(const Report& report);

// The lines a row takes: its cells wrap within their columns.
int LinesOfRow(const std::vector<std::string>& cells, const PageLayout& layout);

// The detail rows of one page: [firstRow, firstRow + rowCount) of the report's
// rows; a page takes rows while their lines fit, and at least one.
struct ReportPage {
    int number = 1;
    int firstRow = 0;
    int rowCount = 0;
};

// At least one page, also for a report without rows.
std::vector<ReportPage> Paginate(const Report& report, const PageLayout& layout);

} // namespace zolt::reports
